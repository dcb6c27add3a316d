#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Opens the dashboard of an account with 1 000 players and scrolls it with the wheel, beside a plain grid in qmlscene.

measure.py --program NUVEX --plugins PROBE_PLUGINS --localcloud LOCALCLOUD [--players N] [--rounds N]

Opening: from the click on the main page until a page's tiles are there and the program answers. Scrolling: the time
from one frame to the next, all of them between the first and the last turn of the wheel. The cloud is on the same
machine; every player has a screenshot. The programs take turns; the first round is dropped.
"""
import argparse
import datetime
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[1:1] = [str(ROOT / "tests/e2e"), str(ROOT / "tests/localcloud")]
# pylint: disable=wrong-import-position
from cloud import Cloud
from driver import Profile, Program, Screen, wait_for

QMLSCENE = "/usr/lib/qt5/bin/qmlscene"
LOGGING = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true",
           "QT_MESSAGE_PATTERN": "%{time hh:mm:ss.zzz} %{message}"}
FRAME = re.compile(r"^(\d\d:\d\d:\d\d\.\d{3}) .*rame rendered.* in [1-9]\d*ms", re.MULTILINE)
TURNS = 120
ACCOUNT = {"userEmail": "a@b.c", "playerUID": "here_1", "shareFolder": "false", "doOnStart": "", "lastProject": ""}


def fill(cloud, count):
    now = int(time.time() * 1000)
    drawing = ["convert", "-size", "300x169", "plasma:", "jpg:-"]
    picture = subprocess.run(drawing, capture_output=True, check=True).stdout
    cloud.database("PUT", "/Users/a@bc/Players", {f"screen-{number}_{number}": {
        "heartbeat": now - number * 1000, "project": f"Project {number % 20}"} for number in range(count)})
    for number in range(count):
        cloud.put(f"NUVEX/users/a@b.c/screenshots/screen-{number}_{number}.jpg", picture)


def scroll(screen, log):
    """Milliseconds between frames while the wheel turns down and up again."""
    screen.do("mousemove", 640, 400)
    begun = datetime.datetime.now()
    for button in (5, 4):
        screen.do("click", "--repeat", TURNS, "--delay", 16, button)
    ended = datetime.datetime.now()
    times = [datetime.datetime.combine(begun.date(), datetime.time.fromisoformat(stamp)) for stamp in
             FRAME.findall(log())]
    times = [moment for moment in times if begun <= moment <= ended]
    return [(after - before).total_seconds() * 1000 for before, after in zip(times, times[1:])]


def percentile(values, percent):
    return sorted(values)[min(len(values) - 1, len(values) * percent // 100)]


def memory_mib(process):
    lines = pathlib.Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Anonymous:")) / 1024


def figures(opened, frames, process):
    return opened, percentile(frames, 50), percentile(frames, 99), len(frames), memory_mib(process)


def measure_nuvex(options, screen, cloud):
    profile = Profile()
    try:
        profile.write_settings(**ACCOUNT)
        program = Program(options, screen, profile, "--deployment", str(cloud.folder / "deployment.json"),
                          environment=LOGGING)
        try:
            program.wait_page("MainPage")
            time.sleep(2)
            begun = time.monotonic()
            program.click("Dashboard")
            wait_for(lambda: sum(item["name"] == "playerTile" for item in program.items()) >= 8, "the tiles")
            opened = (time.monotonic() - begun) * 1000
            time.sleep(2)
            return figures(opened, scroll(screen, program.log), program.process.pid)
        finally:
            program.close()
    finally:
        profile.remove()


def measure_plain(screen):
    with tempfile.NamedTemporaryFile() as log:
        process = subprocess.Popen([QMLSCENE, str(ROOT / "bench/dashboard/PlainGrid.qml")], stderr=log,
                                   env={**os.environ, **LOGGING, "DISPLAY": screen.name})
        try:
            time.sleep(3)
            return figures(0, scroll(screen, lambda: pathlib.Path(log.name).read_text()), process.pid)
        finally:
            process.kill()
            process.wait()


def spread(values, digits):
    return f"{statistics.median(values):.{digits}f} ({min(values):.{digits}f} to {max(values):.{digits}f})"


def main():
    parser = argparse.ArgumentParser()
    for name in ("program", "plugins", "localcloud"):
        parser.add_argument("--" + name, required=True)
    parser.add_argument("--players", type=int, default=1000)
    parser.add_argument("--rounds", type=int, default=4)
    options = parser.parse_args()
    screen, cloud = Screen(), Cloud(options.localcloud)
    try:
        fill(cloud, options.players)
        rounds = [(measure_nuvex(options, screen, cloud), measure_plain(screen)) for _ in range(options.rounds)][1:]
    finally:
        cloud.stop()
        screen.close()
    print(f"{options.players} players, 1280x720, {len(rounds)} rounds\n")
    titles = ["program", "opened after, ms", "frame, median ms", "frame, 99th percentile ms", "frames",
              "private memory, MiB"]
    print("| " + " | ".join(titles) + " |\n" + "|---" * len(titles) + "|")
    for name, results in zip(("Nuvex", "plain grid"), zip(*rounds)):
        columns = list(zip(*results))
        opened = spread(columns[0], 0) if any(columns[0]) else ""
        print(f"| {name} | {opened} | " + " | ".join(spread(column, 0) for column in columns[1:]) + " |")


if __name__ == "__main__":
    main()
