#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Pulls from the local cloud under kills: afterwards the project is the old or the new one, to the last file, its record
says which, and nothing else is left. Prints one table a scenario; stops at the first row that is neither."""

import argparse
import json
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
BUILT = ROOT / "build/dev"
sys.path[:0] = [str(ROOT / "tests/support"), str(ROOT / "tests/localcloud")]
from cloud import Cloud  # noqa: E402
from killtable import KillTable, Scenario, tree  # noqa: E402

SHARED = "NUVEX/users/a@b.c/ShareFolder/Shop/"


def publish(cloud, files, revisions):
    """Puts a project into the cloud as an editor does."""
    for name, data in files.items():
        assert cloud.put(SHARED + name, data).status == 200
    assert cloud.put(SHARED + "dirmap", "".join(f"{name} {n}\n" for name, n in sorted(revisions.items()))).status == 200


class Pull(Scenario):
    """A project at revision 0 is pulled to revision 1."""
    OLD = {"main.qml": b"old", "images/a b.png": b"old a", "gone/x.txt": b"x", "becomes/a/folder": b"f", "kept": b"k"}
    NEW = {"main.qml": b"new" * 10_000, "images/a b.png": b"new a", "fresh/y.txt": b"y", "becomes": b"a file",
           "gone": b"a file, too", "kept": b"k"}
    victim = cloud = ""

    def run_victim(self, *arguments):
        subprocess.run([self.victim, str(self.folder), *arguments], check=True, stderr=subprocess.DEVNULL)

    def pull(self, revision):
        return [self.victim, str(self.folder), str(self.cloud.folder / "deployment.json"), revision]

    def prepare(self):
        """The same in each row: what a pull of the old project leaves, kept for the first row and copied then."""
        template = self.cloud.folder / type(self).__name__
        if not template.exists():
            self.make(template)
        shutil.copytree(template, self.folder, dirs_exist_ok=True)
        self.old = tree(self.folder / "Work")

    def make(self, template):
        publish(self.cloud, self.OLD, {name: 1 for name in self.OLD})
        self.run_victim(*self.pull("0")[2:])
        shutil.copytree(self.folder, template)
        publish(self.cloud, self.NEW, {name: 1 if name == "kept" else 2 for name in self.NEW})

    def command(self):
        return self.pull("1")

    def next_start(self):
        return [self.victim, str(self.folder)]

    def renewed(self):
        lines = "".join(f"{name} {1 if name == 'kept' else 2}\n" for name in sorted(self.NEW))
        files = {**self.NEW, "dirmap": lines.encode()}
        folders = {str(parent): None for name in files for parent in list(Path(name).parents)[:-1]}
        return {"Shop": None, **{f"Shop/{name}": data for name, data in {**folders, **files}.items()}}

    def verdict(self):
        found = tree(self.folder / "Work")
        new = self.renewed()
        assert found in (self.old, new), f"neither: {sorted(found)}"
        is_new = found == new
        left = {name for name, data in tree(self.folder / "ShareFolder").items() if data is not None}
        assert left <= {"Shop/record.json"}, f"left: {left}"
        revision = json.loads((self.folder / "ShareFolder/Shop/record.json").read_text())["revision"] if left else ""
        assert revision == ("1" if is_new else self.old_revision()), f"at revision {revision}"
        places = {name.split("/")[0] for name, data in tree(self.folder).items() if data is not None}
        assert places <= {"ShareFolder", "Work"}, f"files in {places}"
        return "new" if is_new else "old"

    def old_revision(self):
        return "0"


class FirstPull(Pull):
    """There is no project yet; a folder that is empty is none either."""

    def make(self, template):
        self.run_victim()
        shutil.copytree(self.folder, template)
        publish(self.cloud, self.NEW, {name: 1 if name == "kept" else 2 for name in self.NEW})

    def verdict(self):
        empty = self.folder / "Work/Shop"
        if empty.exists() and not any(empty.iterdir()):
            empty.rmdir()
        return super().verdict()

    def old_revision(self):
        return ""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--library", default=BUILT / "tests/support/libnuvex_killpoint.so",
                        help="what tests/support/killpoint.cpp builds")
    parser.add_argument("--victim", default=BUILT / "tests/cloud/projectplayer", help="what projectplayer.cpp builds")
    parser.add_argument("--program", default=BUILT / "localcloud/nuvex-localcloud")
    parser.add_argument("--sample", type=int, default=0, help="rows of each table; all without it")
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    Pull.victim = str(options.victim)
    Pull.cloud = Cloud(options.program, folder=tempfile.mkdtemp(prefix="nuvex-localcloud-"))
    try:
        for scenario in (Pull, FirstPull):
            with KillTable(str(options.library), scenario, options.seed) as table:
                print("\n", table.rows(options.sample))
    finally:
        Pull.cloud.kill()
        shutil.rmtree(Pull.cloud.folder)


if __name__ == "__main__":
    main()
