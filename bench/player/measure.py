#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Compares Nuvex playing a project with Debian's qmlscene and qml showing the same document.

measure.py NUVEX PROJECT [--rounds N] [--seconds S]

Needs the target plainhost beside NUVEX.

Time from process start to the first frame, CPU (in percent of one core) and memory while playing. The programs take
turns on one virtual screen; the first round is dropped. Prints a markdown table of medians with minimum and maximum.
"""
import pathlib
import statistics
import tempfile
import time

from processes import Player, read_options

SETTLING = 3  # seconds that belong to the start, not to the playing
HERE = pathlib.Path(__file__).resolve().parent


def programs(nuvex, project, folder):
    """Command lines by name. qmlscene and qml find the components through a tree of modules in `folder`."""
    modules = pathlib.Path(folder) / "modules"
    modules.mkdir()
    (modules / "PlainHost").symlink_to(pathlib.Path(nuvex).resolve().parents[1] / "bench/modules/PlainHost")
    (modules / "Nuvex").symlink_to(HERE.parents[1] / "qml")
    host = pathlib.Path(folder) / "PlainHost.qml"
    host.write_text((HERE / "PlainHost.qml").read_text().replace("@PROJECT@", pathlib.Path(project).as_uri()))
    plain = ["-I", str(modules), str(host)]
    return {
        "nuvex": [nuvex, "--profile", str(pathlib.Path(folder) / "profile"), "--play", project],
        "qmlscene": ["/usr/lib/qt5/bin/qmlscene", *plain],
        "qml": ["/usr/lib/qt5/bin/qml", *plain],
    }


def play(command, seconds):
    player = Player(command)
    try:
        shown = player.wait_for_first_frame()
        time.sleep(SETTLING)
        cpu = player.cpu_percent(seconds)
        return shown * 1000, cpu, player.memory_mib()
    finally:
        player.stop()


def spread(values):
    return f"{statistics.median(values):.1f} ({min(values):.1f} to {max(values):.1f})"


def main():
    options = read_options("project", rounds=6, seconds=10.0)
    with tempfile.TemporaryDirectory() as folder:
        commands = programs(options.nuvex, str(pathlib.Path(options.project).resolve()), folder)
        results = {name: [] for name in commands}
        for _ in range(options.rounds):
            for name, command in commands.items():
                results[name].append(play(command, options.seconds))
    print(f"{pathlib.Path(options.project).name}, {options.rounds - 1} rounds, {options.seconds:.0f} s each\n")
    print("| program | first frame, ms | CPU, % of a core | private memory, MiB |\n|---|---|---|---|")
    for name, rounds in results.items():
        columns = zip(*rounds[1:])
        print(f"| {name} | " + " | ".join(spread(column) for column in columns) + " |")


if __name__ == "__main__":
    main()
