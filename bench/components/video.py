#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Compares BasicVideo, TransparentVideo and ChromaVideo with Qt's bare VideoOutput and with other players.

video.py NUVEX [--size WIDTHxHEIGHT] [--rounds N] [--seconds S] [--only COMPONENT]

Each shows the same clip, made for the occasion, over the whole virtual screen. A frame counts as dropped when its
number (see clips.py) is on none of the pictures grabbed of the screen, 200 a second, while it was due. CPU is what the
program itself uses, in percent of one core; that of Mesa's threads, which do what a graphics card would, is also told
on its own. Drawing is the time that the scene graph takes for a frame, in ms. The programs take turns; the first round
is dropped.
"""
import argparse
import os
import pathlib
import statistics
import tempfile
import time

import clips
from turns import CLOCK_TICKS, QMLSCENE, Player, in_turns, nuvex_playing, print_table

LEAD = 3  # seconds from the start to the measurement

DOCUMENT = """import QtQuick 2.15
import QtMultimedia 5.15
%s
Rectangle { width: %d; height: %d; color: "purple"; %s }
"""
BARE = "VideoOutput { anchors.fill: parent; source: MediaPlayer { source: '%s'; autoPlay: true } }"
COMPONENTS = {
    "BasicVideo": ("opaque", "mp4", "import Nuvex.Components 1.0", "BasicVideo { anchors.fill: parent; source: '%s' }"),
    "TransparentVideo": ("alpha", "webm", "import Nuvex.Native 1.0",
                         "TransparentVideo { anchors.fill: parent; source: '%s'; autoPlay: true }"),
    "ChromaVideo": ("green", "mp4", "import Nuvex.Components 1.0",
                    "ChromaVideo { anchors.fill: parent; source: '%s' }"),
}


def commands(nuvex, component, clip, size, folder):
    """Command lines by name. The players decode the alpha channel where there is one, as Qt does."""
    kind, _, modules, item = COMPONENTS[component]
    width, height = map(int, size.split("x"))
    bare = pathlib.Path(folder) / "Bare.qml"
    bare.write_text(DOCUMENT % ("", width, height, BARE % clip.as_uri()))
    alpha = kind == "alpha"
    playing = nuvex_playing(nuvex, folder, DOCUMENT % (modules, width, height, item % clip.as_uri()))
    return {
        component: playing,
        # The other items draw by OpenGL alone.
        **({f"{component}, Qt's raster engine": ["env", "QT_QUICK_BACKEND=software", *playing]} if alpha else {}),
        "VideoOutput": [QMLSCENE, str(bare)],
        "mpv": ["mpv", "--no-config", "--no-terminal", "--no-audio", "--no-osc", "--no-border", "--vo=x11",
                f"--geometry={size}+0+0", *["--vd=libvpx-vp9"][:alpha], str(clip)],
        "ffplay": ["env", "SDL_RENDER_DRIVER=software", "SDL_FRAMEBUFFER_ACCELERATION=0", "ffplay", "-v", "error",
                   "-an", "-noborder", "-left", "0", "-top", "0", *["-vcodec", "libvpx-vp9"][:2 * alpha], str(clip)],
        "gst-play-1.0": ["gst-play-1.0", "--no-interactive", "--videosink=ximagesink", str(clip)],
    }


def rasterizing(player):
    """Processor seconds that Mesa's software rasterizer has used."""
    stats = [path.read_text() for path in pathlib.Path(f"/proc/{player.process.pid}/task").glob("*/stat")]
    fields = [stat.rsplit(")", 1)[1].split() for stat in stats if "(llvmpipe" in stat]
    return sum(int(words[11]) + int(words[12]) for words in fields) / CLOCK_TICKS


def play(command, seconds):
    """(dropped frames, CPU, Mesa's part of it, ms of drawing or None)"""
    player = Player(command)
    try:
        time.sleep(LEAD)
        seen, watch = len(player.frames), clips.Watch(seconds)
        before, cpu = rasterizing(player), player.cpu_percent(seconds)
        mesa = 100 * (rasterizing(player) - before) / seconds
        shown, drawn = watch.numbers(), player.frames[seen:]
        if not shown:
            raise RuntimeError(" ".join(command) + " showed no numbered frame: " + "\n".join(player.messages[-5:]))
        return max(0, seconds * clips.RATE - len(shown)), cpu, mesa, statistics.mean(drawn) if drawn else None
    finally:
        player.stop()


def compare(nuvex, component, options):
    kind, suffix, *_ = COMPONENTS[component]
    with tempfile.TemporaryDirectory() as folder:
        clip = pathlib.Path(folder) / f"{kind}.{suffix}"
        clips.make(kind, options.size, LEAD + options.seconds + 4, clip)
        results = in_turns(commands(nuvex, component, clip, options.size, folder), options.rounds,
                           lambda command: play(command, options.seconds))
    print(f"{component}, {kind} clip of {options.size}, {options.rounds - 1} rounds of {options.seconds} s\n")
    titles = [f"dropped of {options.seconds * clips.RATE}", "CPU, % of a core", "of it Mesa's", "drawing, ms"]
    print_table(titles, results, 1)
    print(flush=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("nuvex")
    parser.add_argument("--size", default=os.environ.get("NUVEX_SCREEN", "1280x720"))
    parser.add_argument("--only", choices=COMPONENTS)
    parser.add_argument("--rounds", type=int, default=6)
    parser.add_argument("--seconds", type=int, default=8)
    options = parser.parse_args()
    for component in [options.only] if options.only else COMPONENTS:
        compare(options.nuvex, component, options)


if __name__ == "__main__":
    main()
