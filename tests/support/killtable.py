# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Kills a program at each of its calls that change a file, counted over all its threads, starts it again, and looks at
what is on the disk then."""

import os
import random
import re
import shutil
import signal
import subprocess
import tempfile
from pathlib import Path

DEADLINE = 60  # seconds for one run


class Scenario:
    """One thing that a program does with files below `self.folder`. A table's scenarios are derived from it."""
    environment = {}

    def __init__(self, folder):
        self.folder = folder

    def prepare(self):
        """Lays out the files as they are before, in the empty folder."""

    def command(self):
        """The command line that does it; 0 is its exit code."""

    def next_start(self):
        """The command line of the start after a crash; it ends when all is tidied up."""

    def verdict(self):
        """What the folder holds after that: "old" or "new", or more words; anything else is an AssertionError."""


def tree(folder):
    """The files of a folder, by relative path: bytes, a link's target, None for a folder."""
    files = {}
    for path in sorted(folder.rglob("*")):
        name = str(path.relative_to(folder))
        files[name] = os.readlink(path) if path.is_symlink() else path.read_bytes() if path.is_file() else None
    return files


class KillTable:
    """The rows of one scenario, a class derived from Scenario."""

    def __init__(self, library, make_scenario, seed=1):
        self.library = library
        self.make_scenario = make_scenario
        self.random = random.Random(seed)
        self.place = Path(tempfile.mkdtemp(prefix="nuvex-kill-")).resolve()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.place)

    def run(self, scenario, command, kill_at=0):
        """Exit code of a command, negative for a signal, and its calls up to then: (thread, call, path)."""
        report = self.place / "report"
        report.unlink(missing_ok=True)
        environment = {**os.environ, **scenario.environment, "LD_PRELOAD": self.library, "KILLPOINT_AT": str(kill_at),
                       "KILLPOINT_BELOW": str(scenario.folder), "KILLPOINT_REPORT": str(report), "QT_HASH_SEED": "0"}
        ended = subprocess.run(command, env=environment, timeout=DEADLINE, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE, check=False)
        lines = report.read_text().splitlines() if report.exists() else []
        calls = [tuple(line.split(" ", 3)[1:]) for line in lines]
        assert ended.returncode in (0, -signal.SIGKILL), ended.stderr.decode()
        return ended.returncode, calls

    def begin(self):
        """The scenario in a new folder, before anything is done."""
        folder = self.place / "files"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        scenario = self.make_scenario(folder)
        scenario.prepare()
        return scenario

    def whole_run(self):
        """All calls of a run that nobody kills."""
        scenario = self.begin()
        code, calls = self.run(scenario, scenario.command())
        assert code == 0 and calls
        assert scenario.verdict() == "new", "without a kill: " + scenario.verdict()
        return calls

    def row(self, number):
        """Kills call `number` of a run, then perhaps one of the next start's, and judges what the start after that
        leaves. Returns the call that was killed, the next start's, or None, and the verdict."""
        scenario = self.begin()
        code, calls = self.run(scenario, scenario.command(), number)
        assert code == -signal.SIGKILL and len(calls) == number, f"not killed at call {number} but {code}: {calls[-3:]}"
        code, second = self.run(scenario, scenario.next_start(), self.random.randint(1, 12))
        if code == -signal.SIGKILL:
            code, _ = self.run(scenario, scenario.next_start())
            assert code == 0
            return calls[-1], second[-1], scenario.verdict()
        return calls[-1], None, scenario.verdict()

    def shown(self, call):
        """A call as the table names it, without what differs from run to run."""
        return "-" if call is None else f"{call[1]} " + re.sub(
            "[0-9a-f]{16}", "*", call[2].replace(str(self.place / "files") + "/", ""))

    def rows(self, sample=0):
        """Prints all rows, or that many chosen by the seed. Returns how often each verdict came."""
        calls = self.whole_run()
        threads = len({call[0] for call in calls})
        numbers = range(1, len(calls) + 1)
        if sample:
            numbers = sorted(self.random.sample(numbers, min(sample, len(calls))))
        print(f"\n{self.make_scenario.__name__}: {len(calls)} calls in {threads} threads, {len(numbers)} rows\n")
        print("| killed at | call | next start killed at | afterwards |\n|---:|---|---|---|")
        verdicts = {}
        for number in numbers:
            call, second, verdict = self.row(number)
            print(f"| {number} | {self.shown(call)} | {self.shown(second)} | {verdict} |", flush=True)
            verdicts[verdict] = verdicts.get(verdict, 0) + 1
        return verdicts
