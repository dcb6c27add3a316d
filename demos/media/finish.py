# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The darkroom: what a lens and a film add to a rendered picture."""
import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter


def picture(source, target, exposure=1.0, bloom=0.12, vignette=0.16, grain=1.1, quality=88, size=None):
    """Finishes one picture and saves it as JPEG. Grain is in eight-bit steps; size is (width, height)."""
    image = Image.open(source).convert("RGB")
    if size:
        image = image.resize(size, Image.LANCZOS)
    light = np.asarray(image, dtype=np.float32) / 255 * exposure
    light = glow(light, bloom)
    light = darken_corners(light, vignette)
    light = soften_ends(light)
    light += grains(light.shape, grain / 255)
    target.parent.mkdir(parents=True, exist_ok=True)
    pixels = (np.clip(light, 0, 1) * 255 + 0.5).astype(np.uint8)
    Image.fromarray(pixels).save(target, quality=quality, optimize=True, progressive=True)


def glow(light, amount):
    """Lets bright parts spill over, as a lens does."""
    bright = np.clip(light - 0.72, 0, None) / 0.28
    radius = light.shape[0] / 30
    spill = np.stack([gaussian_filter(bright[..., c], radius) * 0.6 + gaussian_filter(bright[..., c], radius * 4) * 0.4
                      for c in range(3)], axis=-1)
    return 1 - (1 - np.clip(light, 0, 1)) * (1 - np.clip(spill * amount, 0, 1))


def darken_corners(light, amount):
    height, width = light.shape[:2]
    y, x = np.mgrid[-1:1:height * 1j, -1:1:width * 1j]
    return light * (1 - amount * np.clip((x * x + y * y) / 2, 0, 1) ** 1.5)[..., None]


def soften_ends(light):
    """Lifts black a little and rounds the highlights off."""
    light = np.clip(light, 0, 1)
    curve = light + 0.06 * np.sin((light - 0.5) * 2 * np.pi) / np.pi
    return 0.018 + 0.968 * curve


def grains(shape, amount):
    rng = np.random.default_rng(7)
    one = rng.normal(0, 1, shape[:2]).astype(np.float32)
    one = 0.7 * one + 0.9 * gaussian_filter(one, 0.7)
    return (one * amount)[..., None]
