#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Compares Nuvex playing a demo with qmlscene showing a plain scene of the same picture, written by hand.

demos.py NUVEX PROJECT [--rounds N] [--seconds S]

The plain scenes (plain/) use QtQuick and QtMultimedia alone. Frames a second, the time that the scene graph takes for
one, and CPU, in percent of one core, from the first frame on: both programs do the same at the same moments. They take
turns; the first round is dropped.
"""
import pathlib
import statistics
import tempfile

from turns import HERE, QMLSCENE, Player, in_turns, print_table, read_options


def play(command, seconds):
    """(frames a second, ms of drawing, CPU)"""
    player = Player(command)
    try:
        player.wait_for_first_frame()
        cpu = player.cpu_percent(seconds)
        return len(player.frames) / seconds, statistics.mean(player.frames), cpu
    finally:
        player.stop()


def main():
    options = read_options("project", rounds=6, seconds=24)
    demo = pathlib.Path(options.project).resolve()
    with tempfile.TemporaryDirectory() as profile:
        commands = {"Nuvex": [options.nuvex, "--profile", profile, "--play", str(demo)],
                    "plain scene": [QMLSCENE, str(HERE / "plain" / (demo.name.replace(" ", "") + ".qml"))]}
        results = in_turns(commands, options.rounds, lambda command: play(command, options.seconds))
    print(f"{demo.name}, {options.rounds - 1} rounds of {options.seconds} s\n")
    print_table(["frames a second", "drawing, ms", "CPU, % of a core"], results, 2)
    print(flush=True)


if __name__ == "__main__":
    main()
