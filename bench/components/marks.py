# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""What a process holds at the marks that its document logs.

A mark is "made NAME COUNT": so many of this kind are gone by now. "rest begins" and "rest ends" say that nothing
happens between, "done" ends the run.
"""
import os
import pathlib
import time

from turns import Player

PATIENCE = 120  # seconds between two marks


def slope(points):
    """Of the line through `points` by least squares."""
    middle = [sum(column) / len(points) for column in zip(*points)]
    products = [((x - middle[0]) * (y - middle[1]), (x - middle[0]) ** 2) for x, y in points]
    return sum(product for product, _ in products) / sum(square for _, square in products)


class State:
    """Threads, with how often each has slept, and open files of a process at one moment."""

    def __init__(self, pid):
        process = pathlib.Path(f"/proc/{pid}")
        self.time = time.monotonic()
        self.files = len(os.listdir(process / "fd"))
        self.sleeps = {task.name: sleeps(task) for task in (process / "task").iterdir()}

    def since(self, before):
        wakeups = sum(count - before.sleeps.get(thread, 0) for thread, count in self.sleeps.items())
        return (f"{len(self.sleeps)} threads, {self.files} open files, "
                f"{wakeups / (self.time - before.time):.0f} wake-ups a second")


def sleeps(task):
    lines = (task / "status").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("voluntary"))


def follow(player, samples):
    """Samples the memory at each mark that the document logs; returns the states at the rests."""
    states, seen, deadline = [], 0, time.monotonic() + PATIENCE
    while True:
        if player.process.poll() is not None or time.monotonic() > deadline:
            raise RuntimeError("\n".join(player.messages[-5:]))
        for line in player.messages[seen:]:
            seen += 1
            if "made " in line:
                name, count = line.split("made ")[1].split()
                deadline = time.monotonic() + PATIENCE
                samples.setdefault(name, []).append((int(count), player.memory_mib() * 1024))
            elif "rest " in line:
                states.append(State(player.process.pid))
            elif line.endswith("done"):
                return states
        time.sleep(0.002)


def watch(command):
    """Runs `command`: (points of count and KiB of private memory by name, states at the rests)"""
    samples, player = {}, Player(["env", "QT_LOGGING_RULES="] + command)
    try:
        return samples, follow(player, samples)
    finally:
        player.stop()


def print_growth(samples):
    """The growth is that of the line through the second half of the points."""
    print("| kind | times | MiB at first | MiB at last | KiB a time |\n|---|---|---|---|---|")
    for name, points in samples.items():
        print(f"| {name} | {points[-1][0]} | {points[0][1] / 1024:.1f} | {points[-1][1] / 1024:.1f} "
              f"| {slope(points[len(points) // 2:]):.2f} |")
