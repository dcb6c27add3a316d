#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The times between frames while a Slideshow turns, by every transition, beside plain QML that does the same.

transitions.py NUVEX [--rounds N]

Two pictures of 1280x720, each transition of one second twice a round, in Nuvex and in qmlscene by turns; the
first round is dropped. Prints the 95th percentile of each. Needs the target frametimes beside NUVEX.
"""
import pathlib
import subprocess
import tempfile
import time

from turns import HERE, QMLSCENE, Player, in_turns, nuvex_playing, ratio, read_options, spread

DOCUMENT = """import QtQuick 2.15
import Nuvex.Components 1.0
import "%s"
TransitionTimes {
    Slideshow {
        width: 1280; height: 720; running: false; transTime: 1000
        Slide { BasicImage { width: 1280; height: 720; source: "%s" } }
        Slide { BasicImage { width: 1280; height: 720; source: "%s" } }
    }
}
"""
PLAIN = """import QtQuick 2.15
import "%s"
import "%s/plain"
TransitionTimes { Transitions { width: 1280; height: 720; pictures: ["%s", "%s"] } }
"""


def make_pictures(folder):
    """Two colourful pictures of full size."""
    paths = [folder / "first.jpg", folder / "second.jpg"]
    for path, source in zip(paths, ("testsrc2", "mandelbrot")):
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", f"{source}=s=1280x720", "-frames:v", "1",
                        str(path)], check=True)
    return [path.as_uri() for path in paths]


def commands(nuvex, folder):
    here, pictures = HERE.as_uri(), make_pictures(folder)
    plain = folder / "Plain.qml"
    plain.write_text(PLAIN % (here, here, *pictures))
    modules = pathlib.Path(nuvex).resolve().parents[1] / "bench/modules"
    settings = ["env", f"QML2_IMPORT_PATH={modules}", "QT_LOGGING_RULES="]
    return {"Nuvex": settings + nuvex_playing(nuvex, folder, DOCUMENT % (here, *pictures)),
            "plain": settings + [QMLSCENE, str(plain)]}


def frame_times(command):
    """The 95th percentile of the milliseconds between frames, by transition."""
    player = Player(command)
    try:
        deadline = time.monotonic() + 120
        while not any(line.endswith("done") for line in player.messages):
            if time.monotonic() > deadline or player.process.poll() is not None:
                raise RuntimeError("\n".join(player.messages[-5:]))
            time.sleep(0.2)
    finally:
        player.stop()
    times = {}
    for line in player.messages:
        if "frames " in line:
            name, *frames = line.split("frames ")[1].split()
            times.setdefault(name, []).extend(map(float, frames))
    return {name: sorted(frames)[int(0.95 * (len(frames) - 1))] for name, frames in times.items()}


def main():
    options = read_options(rounds=6)
    transitions = []

    def measure(command):
        times = frame_times(command)
        transitions[:] = times
        return tuple(times.values())

    with tempfile.TemporaryDirectory() as folder:
        results = in_turns(commands(options.nuvex, pathlib.Path(folder)), options.rounds, measure)
    print("| transition | Nuvex, 95 %, ms | plain QML, 95 %, ms | Nuvex to it |\n|---|---|---|---|")
    for column, name in enumerate(transitions):
        print(f"| {name} | {spread(results['Nuvex'][column])} | {spread(results['plain'][column])} "
              f"| {ratio(results, 'plain', column)} |")


if __name__ == "__main__":
    main()
