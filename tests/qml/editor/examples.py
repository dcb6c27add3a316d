#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""examples.py TRIAL [FOLDER...]: opens every QML file below the folders (those of Qt's examples in Debian without any:
qtdeclarative5-examples, qtquickcontrols5-examples, qtquickcontrols2-5-examples) in the editor, each in a process of its
own, on the screen of the caller: tests/support/on-virtual-screen. TRIAL, nuvex_trial, selects and moves each item and
takes that back. Prints a table of what shows and what is said of the others; fails for a crash, a hang or other bytes."""

import collections
import concurrent.futures
import os
import re
import subprocess
import sys
from pathlib import Path

EXAMPLES = "/usr/lib/x86_64-linux-gnu/qt5/examples"
DEADLINE = 120  # seconds


def try_file(trial, file):
    """What came of it: "shown", what the editor says, or what broke."""
    try:
        run = subprocess.run([trial, file], capture_output=True, text=True, errors="replace", timeout=DEADLINE)
    except subprocess.TimeoutExpired:
        return "BROKEN: it hangs"
    told = run.stdout.strip().splitlines()[-1:] or [""]
    return told[0] if run.returncode == 0 and told[0] else f"BROKEN: exit code {run.returncode} {told[0]}"


def kind(told):
    """The message without the names in it."""
    return re.sub(r'"[^"]*"|\b[\w./]+(?= is not a type| is not installed|:)', "…", told)


def main(trial, *folders):
    files = sorted(str(file) for folder in folders or [EXAMPLES] for file in Path(folder).rglob("*.qml"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = dict(zip(files, pool.map(lambda file: try_file(trial, file), files)))
    for file, told in results.items():
        print(f"{file}: {told}", file=sys.stderr)
    print(f"{len(files)} files\n\n| files | the editor |\n|---|---|")
    for message, count in collections.Counter(map(kind, results.values())).most_common():
        print(f"| {count} | {message} |")
    return any(told.startswith("BROKEN") for told in results.values())


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
