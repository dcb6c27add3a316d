#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Makes the pictures and clips of the demo projects anew.

Needs the Debian packages povray, povray-includes, ffmpeg, python3-numpy, python3-pil and python3-scipy.
    make.py list            names everything that can be made
    make.py NAME...         makes these
    make.py dirmaps         lists each project's files in its directory map, at revision 1
Rendered frames are kept in build/media, so that a clip that was interrupted goes on where it stopped.
"""
import shutil
import subprocess
import sys
from pathlib import Path

import finish
import sound

HERE = Path(__file__).resolve().parent
DEMOS = HERE.parent
CACHE = DEMOS.parent / "build" / "media"

# scene -> (file below demos/, width, height, finish options)
STILLS = {
    "shop-morning": ("Shop Promotion/images/morning.jpg", 1920, 1080, {}),
    "shop-vases": ("Shop Promotion/images/vases.jpg", 1920, 1080, {}),
    "shop-lamp": ("Shop Promotion/images/lamp.jpg", 1920, 1080, {"bloom": 0.5}),
    "shop-table": ("Shop Promotion/images/table.jpg", 1920, 1080, {}),
    "menu-pasta": ("Menu Board/images/pasta.jpg", 512, 512, {"bloom": 0.2}),
    "menu-tomato": ("Menu Board/images/tomatoes.jpg", 512, 512, {"bloom": 0.2}),
    "menu-olives": ("Menu Board/images/olives.jpg", 512, 512, {"bloom": 0.2}),
    "menu-wine": ("Menu Board/images/wine.jpg", 512, 512, {"bloom": 0.2}),
    "menu-gelato": ("Menu Board/images/gelato.jpg", 512, 512, {"bloom": 0.2}),
    "lobby-arches": ("Lobby Board/images/court.jpg", 1080, 864, {}),
    "lobby-stairs": ("Lobby Board/images/stairs.jpg", 1080, 864, {}),
    "lobby-room": ("Lobby Board/images/corner.jpg", 1080, 864, {"bloom": 0.3}),
}
# scene -> (file below demos/, width, height, seconds, rendered frames a second, sound)
CLIPS = {
    "shop-wheel": ("Shop Promotion/videos/wheel.mp4", 640, 652, 8, 12, sound.workshop),
}
# Frames a second of a finished clip: what lies between the rendered ones is worked out from their motion.
FILM_RATE = 24


def trace(scene, picture, width, height, *more):
    """Renders a scene; `more` are options of the ray tracer."""
    subprocess.run(["povray", f"+I{scene}.pov", f"+O{picture}", f"+W{width}", f"+H{height}", "+A0.2", "-D", "+WT2", *more],
                   cwd=HERE / "scenes", check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def make_still(name):
    target, width, height, options = STILLS[name]
    raw = CACHE / f"{name}.png"
    trace(name, raw, width, height)
    finish.picture(raw, DEMOS / target, **options)


def make_clip(name):
    target, width, height, seconds, rate, score = CLIPS[name]
    folder = CACHE / name
    folder.mkdir(parents=True, exist_ok=True)
    count = seconds * rate
    for frame in range(count):
        picture = folder / f"{frame:04}.png"
        if not picture.exists():
            trace(name, folder / "next.png", width, height, f"+K{frame / count}")
            (folder / "next.png").rename(picture)
    score(seconds, CACHE / f"{name}.wav")
    # Two more frames than the loop has, so that motion is known across its end.
    for extra in range(2):
        shutil.copy(folder / f"{extra:04}.png", folder / f"{count + extra:04}.png")
    encode(folder / "%04d.png", rate, CACHE / f"{name}.wav", DEMOS / target, seconds)


def encode(frames, rate, wave, target, seconds):
    target.parent.mkdir(parents=True, exist_ok=True)
    motion = f"hqdn3d=2:2:3:3,minterpolate=fps={FILM_RATE}:mi_mode=mci:mc_mode=aobmc,noise=c0s=3:c0f=t"
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-framerate", str(rate), "-i", frames, "-i", wave, "-t", str(seconds),
                    "-vf", motion, "-c:v", "libx264", "-preset", "slow", "-crf", "21", "-pix_fmt", "yuv420p",
                    "-c:a", "aac", "-b:a", "96k", "-movflags", "+faststart", target], check=True)


def write_dirmaps():
    for document in sorted(DEMOS.glob("*/main.qml")):
        project = document.parent
        files = sorted(str(f.relative_to(project)) for f in project.rglob("*") if f.is_file() and f.name != "dirmap")
        (project / "dirmap").write_text("".join(f"{name} 1\n" for name in files), encoding="utf-8")


def main(names):
    CACHE.mkdir(parents=True, exist_ok=True)
    if names == ["list"]:
        print("\n".join([*STILLS, *CLIPS]))
        return
    if names == ["dirmaps"]:
        write_dirmaps()
        return
    for name in names:
        print(name, flush=True)
        make_still(name) if name in STILLS else make_clip(name)


main(sys.argv[1:] or ["list"])
