# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Programs that take turns, and the tables of what was measured of them."""
import pathlib
import shutil
import statistics
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.append(str(HERE.parent / "player"))
from measure import spread  # noqa: E402
from processes import CLOCK_TICKS, Player, read_options  # noqa: E402, F401  (for those who measure)

QMLSCENE = "/usr/lib/qt5/bin/qmlscene"


def nuvex_playing(nuvex, folder, document):
    """The command line that plays `document`, QML text, as a project below `folder`."""
    project = pathlib.Path(folder) / "project"
    project.mkdir(exist_ok=True)
    (project / "main.qml").write_text(document)
    return [str(nuvex), "--profile", str(pathlib.Path(folder) / "profile"), "--play", str(project)]


def program_of(command):
    """The program that a command line runs, without the settings before it."""
    return next(word for word in command if word != "env" and "=" not in word)


def in_turns(commands, rounds, measure):
    """Columns by name: what `measure(command)`, a tuple, gave in each round but the first. Programs that are not
    installed are left out, and said to be."""
    for name in [name for name, command in commands.items() if not shutil.which(program_of(command))]:
        print(f"{name}: {program_of(commands.pop(name))} is not installed: left out\n")
    results = {name: [] for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            results[name].append(measure(command))
    return {name: list(zip(*tuples[1:])) for name, tuples in results.items()}


def ratio(results, name, column):
    """How many times as much the first program of `results` needed as the program `name`, by medians."""
    first, other = (statistics.median(results[one][column]) for one in (next(iter(results)), name))
    return f"{first / other:.2f}" if other else "-"


def print_table(titles, results, compared):
    """A row a program: its columns as medians with minimum and maximum, and the ratio of the column `compared`."""
    print("| program | " + " | ".join(titles) + f" | {next(iter(results))} to it |")
    print("|---" * (len(titles) + 2) + "|")
    for name, columns in results.items():
        cells = [spread(column) if None not in column else "" for column in columns]
        print(f"| {name} | " + " | ".join(cells) + f" | {ratio(results, name, compared)} |", flush=True)
