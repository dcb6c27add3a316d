# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Steam that rises over a still picture, as frames of a loop."""
import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter, map_coordinates


def noise(shape, scales, seed):
    """Soft noise in 0..1 that joins at the upper and lower edge, so that it can scroll for ever."""
    rng = np.random.default_rng(seed)
    total = np.zeros(shape, dtype=np.float32)
    for scale, weight in scales:
        layer = gaussian_filter(rng.normal(0, 1, shape).astype(np.float32), (scale * 1.6, scale), mode="wrap")
        total += weight * layer / layer.std()
    total -= total.min()
    return total / total.max()


def frames(still, folder, count, source, spread):
    """Writes `count` pictures. `source` is where the steam starts (x, y) and `spread` its width there, in pixels."""
    picture = np.asarray(Image.open(still).convert("RGB"), dtype=np.float32) / 255
    height, width = picture.shape[:2]
    y, x = np.mgrid[0:height, 0:width].astype(np.float32)
    wisps = noise((height, width), [(26, 1.0), (11, 0.6), (5, 0.25)], 3)
    sway = noise((height, width), [(46, 1.0)], 4) - 0.5
    rise = np.clip((source[1] - y) / source[1], 0, 1)
    for frame in range(count):
        turn = frame / count
        bend = map_coordinates(sway, [(y + turn * height) % height, x], order=1, mode="wrap") * 90 * rise
        drift = map_coordinates(wisps, [(y * 0.9 + turn * height) % height, (x + bend) % width], order=1, mode="wrap")
        column = np.exp(-((x + bend - source[0]) / (spread * (0.55 + 0.9 * rise))) ** 2)
        fade = np.clip((source[1] - y) / 30, 0, 1) * (1 - rise) ** 1.1
        steam = np.clip((drift - 0.28) * 2.6, 0, 1) ** 1.3 * column * fade * 1.1
        steam = gaussian_filter(steam, 1.5)[..., None]
        light = 1 - (1 - picture) * (1 - steam * np.array([1.0, 0.95, 0.88], dtype=np.float32))
        Image.fromarray((np.clip(light, 0, 1) * 255 + 0.5).astype(np.uint8)).save(folder / f"{frame:04}.png")
