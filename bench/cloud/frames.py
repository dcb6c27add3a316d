#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""How evenly a board plays while its next revision is pulled: from the write of the revision until the swap.

frames.py --program NUVEX --plugins PROBE_PLUGINS --localcloud LOCALCLOUD [--files N] [--mebibytes N] [--rounds N]

The program plays a document of one animated item; the revision brings small files and large ones. The peer is the same
program as long before, with nothing to pull. Prints a markdown table of the times from one frame to the next.
"""
import argparse
import datetime
import pathlib
import re
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[1:1] = [str(ROOT / "tests/e2e"), str(ROOT / "tests/localcloud")]
# pylint: disable=wrong-import-position
from cloud import Cloud, content
from driver import Profile, Program, Screen, wait_for

LOGGING = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true",
           "QT_MESSAGE_PATTERN": "%{time hh:mm:ss.zzz} %{message}"}
FRAME = re.compile(r"^(\d\d:\d\d:\d\d\.\d{3}) .*rame rendered.* in \d+ms", re.MULTILINE)
SWAP = re.compile(r"^(\d\d:\d\d:\d\d\.\d{3}) .*swapped out", re.MULTILINE)
SETTLING = 12  # seconds until all is over that a player does once: first heartbeat, screenshot, still
PATIENCE = 300  # seconds for a pull
SMALL, LARGE = 4000, 16 << 20  # bytes of a file
PLACE = "NUVEX/users/a@b.c/ShareFolder/Bench/"
DOCUMENT = """import QtQuick 2.15
Rectangle {
    Rectangle {
        width: 90; height: 90; color: 'teal'
        NumberAnimation on x { from: 0; to: 500; duration: 2000; loops: Animation.Infinite }
    }
    Component.onDestruction: console.warn("swapped out")
}
"""


def publish(cloud, revision, files):
    connection = cloud.connect()
    for name, data in files.items():
        cloud.storage("POST", f"/o?uploadType=media&name={PLACE}{name}", data, service="/upload", connection=connection)
    cloud.put(PLACE + "dirmap", "".join(f"{name} {revision + 1}\n" for name in sorted(files)))


def tell(cloud, revision):
    cloud.database("PUT", "/Users/a@bc/Projects/Bench/revision", revision)


def moments(pattern, log):
    today = datetime.date.today()
    return [datetime.datetime.combine(today, datetime.time.fromisoformat(stamp)) for stamp in pattern.findall(log)]


def gaps(times, begin, end):
    """Milliseconds between the frames from the last one before `begin` to `end`, which is no frame."""
    first = max((time for time in times if time <= begin), default=begin)
    some = [first, *(time for time in times if begin < time <= end), end]
    return [(after - before).total_seconds() * 1000 for before, after in zip(some, some[1:])]


def play(options, screen, cloud):
    """Frame times of one round: at rest, and while a revision is pulled."""
    publish(cloud, 0, {"main.qml": DOCUMENT.encode()})
    tell(cloud, 0)
    profile = Profile()
    try:
        profile.write_settings(userEmail="a@b.c", playerUID="wall_1", doOnStart="play", lastProject="Bench",
                               shareFolder="true")
        with Program(options, screen, profile, "--deployment", str(cloud.folder / "deployment.json"),
                     environment=LOGGING) as program:
            wait_for(lambda: FRAME.search(program.log()), "the first frame")
            time.sleep(SETTLING)
            files = {f"s{number}": content(SMALL, number) for number in range(options.files)}
            files.update({f"l{number}": content(LARGE, number) for number in range(options.mebibytes * 2**20 // LARGE)})
            publish(cloud, 1, {"main.qml": DOCUMENT.encode(), **files})
            time.sleep(1)
            swaps, begun = len(SWAP.findall(program.log())), datetime.datetime.now()
            tell(cloud, 1)
            deadline = time.monotonic() + PATIENCE
            while len(SWAP.findall(program.log())) == swaps:
                assert time.monotonic() < deadline, program.log()[-2000:]
                time.sleep(0.1)
            frames, swap = moments(FRAME, program.log()), moments(SWAP, program.log())[-1]
            return gaps(frames, begun - (swap - begun) - datetime.timedelta(seconds=0.5),
                        begun - datetime.timedelta(seconds=0.5)), gaps(frames, begun, swap)
    finally:
        profile.remove()


def percentile(values, percent):
    return sorted(values)[min(len(values) - 1, len(values) * percent // 100)]


def main():
    parser = argparse.ArgumentParser()
    for name in ("program", "plugins", "localcloud"):
        parser.add_argument("--" + name, required=True)
    for name, default in {"files": 1000, "mebibytes": 256, "rounds": 3}.items():
        parser.add_argument("--" + name, type=int, default=default)
    options = parser.parse_args()
    screen = Screen()
    rounds = []
    try:
        for _ in range(options.rounds):
            cloud = Cloud(options.localcloud)
            try:
                rounds.append(play(options, screen, cloud))
            finally:
                cloud.stop()
    finally:
        screen.close()
    print(f"\n{options.files} files of {SMALL} bytes and {options.mebibytes} MiB in larger ones, {options.rounds} rounds\n")
    print("| frame to frame, ms | median | 99th percentile | most | over 50 ms | frames |\n|---|---|---|---|---|---|")
    for name, lists in zip(("with nothing to pull", "from a revision's write to the swap"), zip(*rounds)):
        times = sum(lists, [])
        print(f"| {name} | {percentile(times, 50):.0f} | {percentile(times, 99):.0f} | {max(times):.0f} "
              f"| {sum(time > 50 for time in times)} | {len(times)} |")


if __name__ == "__main__":
    main()
