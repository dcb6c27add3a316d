#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Compares Nuvex playing a project with Debian's qmlscene and qml showing the same document.

measure.py NUVEX PROJECT [--rounds N] [--seconds S]

Time from process start to the first frame, CPU (in percent of one core) and memory while playing. The programs take
turns on one virtual screen; the first round is dropped. Prints a markdown table of medians with minimum and maximum.
"""
import argparse
import os
import pathlib
import statistics
import subprocess
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
CLOCK_TICKS = os.sysconf("SC_CLK_TCK")


def programs(nuvex, project, folder):
    """Command lines by name. qmlscene and qml find the components through a tree of modules in `folder`."""
    modules = pathlib.Path(folder) / "modules"
    modules.mkdir()
    (modules / "Nuvex").symlink_to(HERE.parents[1] / "qml")
    plain = ["-I", str(modules), str(HERE / "PlainHost.qml")]
    return {
        "nuvex": [nuvex, "--profile", str(pathlib.Path(folder) / "profile"), "--play", project],
        "qmlscene": ["/usr/lib/qt5/bin/qmlscene", *plain, project],
        "qml": ["/usr/lib/qt5/bin/qml", *plain, "--", project],
    }


def cpu_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / CLOCK_TICKS


def memory_mib(pid):
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


def first_frame(process):
    """Seconds from now until the scene graph reports a rendered frame."""
    start = time.monotonic()
    for line in process.stderr:
        if "rame rendered" in line:
            return time.monotonic() - start
    raise RuntimeError("no frame was drawn")


def play(command, seconds):
    environment = dict(os.environ, QT_LOGGING_RULES="qt.scenegraph.time.renderloop=true")
    start = time.monotonic()
    process = subprocess.Popen(command, stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True, env=environment)
    try:
        first_frame(process)
        shown = time.monotonic() - start
        drain = subprocess.Popen(["cat"], stdin=process.stderr, stdout=subprocess.DEVNULL)
        before, begun = cpu_seconds(process.pid), time.monotonic()
        time.sleep(seconds)
        cpu = 100 * (cpu_seconds(process.pid) - before) / (time.monotonic() - begun)
        return shown * 1000, cpu, memory_mib(process.pid)
    finally:
        process.terminate()
        process.wait()
        drain.wait()


def spread(values):
    return f"{statistics.median(values):.0f} ({min(values):.0f} to {max(values):.0f})"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("nuvex")
    parser.add_argument("project")
    parser.add_argument("--rounds", type=int, default=6)
    parser.add_argument("--seconds", type=float, default=10)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        commands = programs(options.nuvex, str(pathlib.Path(options.project).resolve()), folder)
        results = {name: [] for name in commands}
        for _ in range(options.rounds):
            for name, command in commands.items():
                results[name].append(play(command, options.seconds))
    print(f"{pathlib.Path(options.project).name}, {options.rounds - 1} rounds, {options.seconds:.0f} s each\n")
    print("| program | first frame, ms | CPU, % of a core | memory (PSS), MiB |\n|---|---|---|---|")
    for name, rounds in results.items():
        columns = zip(*rounds[1:])
        print(f"| {name} | " + " | ".join(spread(column) for column in columns) + " |")


if __name__ == "__main__":
    main()
