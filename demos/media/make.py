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
import steam

HERE = Path(__file__).resolve().parent
DEMOS = HERE.parent
CACHE = DEMOS.parent / "build" / "media"

# scene -> (file below demos/, width, height, finish options)
STILLS = {
    "shop-morning": ("Shop Promotion/images/morning.jpg", 1920, 1080, {}),
    "shop-vases": ("Shop Promotion/images/vases.jpg", 1920, 1080, {}),
    "shop-lamp": ("Shop Promotion/images/lamp.jpg", 1920, 1080, {"bloom": 0.5}),
    "shop-table": ("Shop Promotion/images/table.jpg", 1920, 1080, {}),
    "menu-pasta": ("Menu Board/images/pasta.jpg", 1120, 416, {"bloom": 0.2}),
    "menu-tomato": ("Menu Board/images/tomatoes.jpg", 1120, 416, {"bloom": 0.2}),
    "menu-olives": ("Menu Board/images/olives.jpg", 1120, 416, {"bloom": 0.2}),
    "menu-wine": ("Menu Board/images/wine.jpg", 1120, 416, {"bloom": 0.2}),
    "menu-ravioli": ("Menu Board/images/ravioli.jpg", 1920, 232, {"vignette": 0}),
    "menu-gelato": ("Menu Board/images/gelato.jpg", 1120, 416, {"bloom": 0.2}),
    "retail-scent": ("Retail Window/images/scent.jpg", 810, 1440, {"size": (1080, 1920)}),
    "retail-boxes": ("Retail Window/images/boxes.jpg", 810, 1440, {"size": (1080, 1920)}),
    "retail-podium": ("Retail Window/images/stage.jpg", 810, 1440, {"size": (1080, 1920)}),
    "corporate-tower": ("Corporate Lobby/images/towers.jpg", 720, 1080, {"bloom": 0.4}),
    "lobby-arches": ("Lobby Board/images/court.jpg", 1080, 864, {}),
    "lobby-stairs": ("Lobby Board/images/stairs.jpg", 1080, 864, {}),
    "lobby-room": ("Lobby Board/images/corner.jpg", 1080, 864, {"bloom": 0.3}),
}
# scene -> (file below demos/, width, height, seconds, rendered frames a second, sound). A film goes through its scene
# and back again, so that it can loop; those of ROUNDS end where they began.
ROUNDS = ["retail-card"]
CLIPS = {
    "retail-card": ("Retail Window/videos/card.mp4", 960, 640, 6, 24, sound.bells),
    "shop-wheel": ("Shop Promotion/videos/wheel.mp4", 640, 652, 8, 12, sound.workshop),
}
# scene -> (file below demos/, width, height, seconds, where the steam starts, its width there, sound)
STEAMING = {
    "menu-espresso": ("Menu Board/videos/espresso.mp4", 1120, 416, 8, (552, 190), 90, sound.kitchen),
}
# Folders of the faces that scenes write with, from fonts-crosextra-caladea and fonts-manrope.
FACES = ["crosextra", "manrope"]
# Frames a second of a finished clip: what lies between the rendered ones is worked out from their motion.
FILM_RATE = 24


def trace(scene, picture, width, height, *more):
    """Renders a scene; `more` are options of the ray tracer."""
    subprocess.run(["povray", f"+I{scene}.pov", f"+O{picture}", f"+W{width}", f"+H{height}", "+A0.2", "-D", "+WT2",
                    *[f"+L/usr/share/fonts/truetype/{face}" for face in FACES], *more],
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
    count = seconds * rate if name in ROUNDS else seconds * rate // 2
    for frame in range(count + (name not in ROUNDS)):
        picture = folder / f"{frame:04}.png"
        if not picture.exists():
            trace(name, folder / "next.png", width, height, f"+K{frame / count}")
            (folder / "next.png").rename(picture)
    if name not in ROUNDS:
        turn_back(folder, count)
    score(seconds, CACHE / f"{name}.wav")
    encode(folder / "%04d.png", rate, CACHE / f"{name}.wav", DEMOS / target, seconds)


def turn_back(folder, count):
    """Adds the way back, and two frames more than the loop has, so that motion is known across its end."""
    for step in range(1, count + 2):
        shutil.copy(folder / f"{abs(count - step):04}.png", folder / f"{count + step:04}.png")


def make_steaming(name):
    target, width, height, seconds, source, spread, score = STEAMING[name]
    folder = CACHE / name
    folder.mkdir(parents=True, exist_ok=True)
    trace(name, CACHE / f"{name}.png", width, height)
    finish.picture(CACHE / f"{name}.png", folder / "still.jpg", bloom=0.2, quality=97)
    steam.frames(folder / "still.jpg", folder, seconds * FILM_RATE, source, spread)
    score(seconds, CACHE / f"{name}.wav")
    encode(folder / "%04d.png", FILM_RATE, CACHE / f"{name}.wav", DEMOS / target, seconds)


def encode(frames, rate, wave, target, seconds):
    target.parent.mkdir(parents=True, exist_ok=True)
    motion = f"hqdn3d=2:2:3:3,minterpolate=fps={FILM_RATE}:mi_mode=mci:mc_mode=aobmc," if rate < FILM_RATE else ""
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-framerate", str(rate), "-i", frames, "-i", wave, "-t", str(seconds),
                    "-vf", motion + "noise=c0s=3:c0f=t", "-c:v", "libx264", "-preset", "slow", "-crf", "21", "-pix_fmt", "yuv420p",
                    "-c:a", "aac", "-b:a", "96k", "-movflags", "+faststart", target], check=True)


def write_dirmaps():
    for document in sorted(DEMOS.glob("*/main.qml")):
        project = document.parent
        files = sorted(str(f.relative_to(project)) for f in project.rglob("*") if f.is_file() and f.name != "dirmap")
        (project / "dirmap").write_text("".join(f"{name} 1\n" for name in files), encoding="utf-8")


def main(names):
    CACHE.mkdir(parents=True, exist_ok=True)
    if names == ["list"]:
        print("\n".join([*STILLS, *CLIPS, *STEAMING]))
        return
    if names == ["dirmaps"]:
        write_dirmaps()
        return
    for name in names:
        print(name, flush=True)
        for table, make in ((STILLS, make_still), (CLIPS, make_clip), (STEAMING, make_steaming)):
            if name in table:
                make(name)


main(sys.argv[1:] or ["list"])
