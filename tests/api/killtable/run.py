#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Imports, exports and text files under kills: afterwards each project, archive or file is the old or the new one, and
nothing else is left. Prints one table a scenario; stops at the first row that is neither."""

import argparse
import io
import sys
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
BUILT = ROOT / "build/dev/tests"
sys.path.insert(0, str(ROOT / "tests/support"))
from killtable import KillTable, Scenario, tree  # noqa: E402

OLD = {"Shop/main.qml": b"old", "Shop/images/a.png": b"old a", "Shop/images/kept.png": b"kept" * 50_000,
       "Shop/deep/er/kept.txt": b"kept", "Shop/.hidden": b"kept", "Bar/main.qml": b"bar"}


def write(folder, files):
    for name, data in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def archive_of(files):
    data = io.BytesIO()
    with zipfile.ZipFile(data, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, content in files.items():
            archive.writestr(name, content)
    return data.getvalue()


class InWorkspace(Scenario):
    victim = ""

    def __init__(self, folder):
        super().__init__(folder)
        self.work = folder / "Work"

    def prepare(self):
        write(self.work, OLD)
        (self.folder / "ShareFolder").mkdir()

    def next_start(self):
        return [self.victim, str(self.folder)]

    def command(self):
        return [*self.next_start(), *map(str, self.action())]

    def assert_same(self, folder, *allowed):
        found = tree(folder)
        assert found in allowed, f"{folder.name} holds {sorted(found)}"
        return "old" if found == allowed[0] else "new"


class ImportOverAProject(InWorkspace):
    NEW = {"Shop/main.qml": b"new", "Shop/images/a.png": b"new a" * 40_000, "Shop/new/b.png": b"new b"}

    def prepare(self):
        super().prepare()
        (self.work / "Shop/link").symlink_to("../elsewhere")
        self.old = tree(self.work)
        write(self.folder, {"in.zip": archive_of(self.NEW)})

    def action(self):
        return ["import", self.folder / "in.zip"]

    def renewed(self, top):
        """The old tree with what the archive has at and below `top`."""
        renewed = dict(self.old)
        for name, data in self.NEW.items():
            if name.split("/")[0] == top:
                renewed.update({str(parent): None for parent in list(Path(name).parents)[:-1]})
                renewed[name] = data
        return renewed

    def part(self, files, top):
        return {name: data for name, data in files.items() if name.split("/")[0] == top}

    def verdict(self):
        """Each top folder and loose file for itself."""
        found = tree(self.work)
        tops = sorted({name.split("/")[0] for name in self.NEW})
        verdicts = []
        for top in tops:
            old, new = self.part(self.old, top), self.part(self.renewed(top), top)
            assert self.part(found, top) in (old, new), f"{top} is mixed: {sorted(found)}"
            verdicts.append("old" if self.part(found, top) == old else "new")
        rest = {name for name in found if name.split("/")[0] not in tops}
        assert rest == {"Bar", "Bar/main.qml"} - ({"Bar", "Bar/main.qml"} if "Bar" in tops else set()), f"left: {rest}"
        assert sorted(path.name for path in self.folder.iterdir()) == ["ShareFolder", "Stills", "Work", "in.zip"]
        return verdicts[0] if len(set(verdicts)) == 1 else ", ".join(f"{t} {v}" for t, v in zip(tops, verdicts))


class ImportWithoutExchange(ImportOverAProject):
    environment = {"KILLPOINT_NO_EXCHANGE": "1"}


class ImportOfSeveral(ImportOverAProject):
    NEW = {"Shop/main.qml": b"new", "Bar/main.qml": b"new", "Cafe/main.qml": b"new", "loose.txt": b"new"}


class ExportOverAnArchive(InWorkspace):
    def prepare(self):
        super().prepare()
        write(self.folder, {"Pictures/Shop.zip": b"old"})

    def action(self):
        return ["export", self.folder / "Pictures/Shop.zip", "Shop"]

    def verdict(self):
        assert sorted(path.name for path in self.work.iterdir()) == ["Bar", "Shop"]
        assert [path.name for path in (self.folder / "Pictures").iterdir()] == ["Shop.zip"]
        packed = self.folder / "Pictures/Shop.zip"
        if packed.read_bytes() == b"old":
            return "old"
        with zipfile.ZipFile(packed) as archive:
            assert archive.testzip() is None and "images/kept.png" in archive.namelist()
        return "new"


class WriteOverText(InWorkspace):
    def prepare(self):
        super().prepare()
        write(self.work, {"Shop/main.qml": b"old \xff\xfe"})
        self.old = tree(self.work)

    def action(self):
        return ["write", "Shop", "main.qml", "new"]

    def verdict(self):
        kept = {**self.old, "Shop/main.qml.orig": self.old["Shop/main.qml"]}
        found = tree(self.work)
        assert found in (self.old, kept, {**kept, "Shop/main.qml": b"new"}), sorted(found)
        return "new" if found["Shop/main.qml"] == b"new" else "old"


SCENARIOS = [ImportOverAProject, ImportWithoutExchange, ImportOfSeveral, ExportOverAnArchive, WriteOverText]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--library", default=BUILT / "support/libnuvex_killpoint.so",
                        help="what tests/support/killpoint.cpp builds")
    parser.add_argument("--victim", default=BUILT / "api/workspaceuser", help="what workspaceuser.cpp builds")
    parser.add_argument("--sample", type=int, default=0, help="rows of each table; all without it")
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    InWorkspace.victim = str(options.victim)
    for scenario in SCENARIOS:
        with KillTable(str(options.library), scenario, options.seed) as table:
            print("\n", table.rows(options.sample))


if __name__ == "__main__":
    main()
