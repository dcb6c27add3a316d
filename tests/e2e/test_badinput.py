# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""What is wrong on a player's disk: the real program starts, says so in its log and on the page, and goes on."""

import random
import shutil
import signal
import struct
import zipfile
import zlib

from driver import ProgramTest, run_tests, wait_for

IMPORTS = "import QtQuick 2.15\nimport Nuvex.Components 1.0\n"

# A document that says whether its picture was found.
WITH_PICTURE = IMPORTS + """Rectangle {
    width: 640; height: 360; color: "white"
    Image { id: picture; source: "images/blue dot.png" }
    Text { text: picture.status === Image.Ready ? "picture shown" : "no picture" }
}
"""


def png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


PNG = (b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", struct.pack(">IIBBBBB", 1, 1, 8, 2, 0, 0, 0))
       + png_chunk(b"IDAT", zlib.compress(b"\0\0\0\xff")) + png_chunk(b"IEND", b""))


class BadInputTest(ProgramTest):
    def use(self, project, **settings):
        self.profile.write_settings(**{"userEmail": "ann@example.org", "playerUID": "west_12", "doOnStart": "play",
                                       "lastProject": project, **settings})

    def assert_usable(self, program):
        """Every project, also a broken one, leaves the way to the other pages open."""
        self.assertTrue(program.alive())
        while program.page() != "MainPage":
            before = program.page()
            program.key("Escape")
            wait_for(lambda: program.page() != before, f"the way out of {before}")
        program.click("Open")
        program.wait_page("ProjectsPage")

    def test_projects_that_do_not_load(self):
        recursive = {"A.qml": "import QtQuick 2.15\nB {}", "B.qml": "import QtQuick 2.15\nA {}"}
        cases = {
            "no document": (None, {}, "The project has no file main.qml.", "", "ReferenceError: api is not defined"),
            "syntax error": ("import QtQuick 2.15\nItem {\n  width: }", {}, "main.qml:3", "Error loading... ",
                             "main.qml:3"),
            "empty document": ("", {}, "main.qml", "Error loading... ", "main.qml"),
            "not text": ("\x00\x01\ufffd" * 400, {}, "main.qml", "Error loading... ", "main.qml"),
            "unknown type": (IMPORTS + "Rectangel {}", {}, "Rectangel is not a type", "Error loading... ",
                             "Rectangel is not a type"),
            "unknown module": ("import Nowhere 1.0\nItem {}", {}, "Nowhere", "Error loading... ", "Nowhere"),
            "not an item": ("import QtQml 2.15\nQtObject {}", {}, "main.qml", "Error loading... ", "visual"),
            "types that hold each other": ("import QtQuick 2.15\nA {}", recursive, "Type A unavailable", "Error loading... ", "Type A unavailable"),
            "scripts that import each other": (
                'import QtQuick 2.15\nimport "a.js" as A\nItem {}',
                {"a.js": '.import "b.js" as B', "b.js": '.import "a.js" as A'}, "a.js", "Error loading... ",
                "Cyclic dependency"),
            "a document that imports itself": ('import QtQuick 2.15\nimport "." as Me\nMe.Main {}',
                                               {"Main.qml": 'import QtQuick 2.15\nimport "." as Me\nMe.Main {}'},
                                               "Me.Main unavailable", "Error loading... ", "Me.Main unavailable"),
        }
        for name, (document, files, reason, message, logged) in cases.items():
            with self.subTest(name):
                folder = self.profile.add_project(name, document)
                for file, text in files.items():
                    (folder / file).write_text(text, "utf-8")
                self.use(name)
                with self.start() as program:
                    program.wait_page("PlayerPage")
                    program.wait_text("west")
                    standby = wait_for(lambda: program.find("standbyReason"), f"a reason in {program.texts()}")
                    self.assertIn(reason, standby["text"])
                    shown = program.find("playerMessage")
                    self.assertEqual(shown["text"] if shown else "", message)
                    program.wait_log(logged)
                    self.assert_usable(program)

    def test_missing_picture_and_broken_video(self):
        folder = self.profile.add_project("Shop", WITH_PICTURE.replace("    Text", """
            BasicVideo { anchors.fill: parent; source: "broken.mp4" }
            BasicImage { source: "nowhere.png" }
            Text"""))
        (folder / "broken.mp4").write_bytes(random.Random(1).randbytes(100_000))
        self.use("Shop")
        with self.start() as program:
            program.wait_text("no picture")
            for file in ("images/blue dot.png", "nowhere.png", "broken.mp4"):
                program.wait_log(file)
            self.assert_usable(program)

    def test_names(self):
        names = ["Spring Sale", "O'Brien's \"Deli\"", "v1.2.final", ".hidden", "Müsli 北京 Ğ", "100%20 #1? a&b;c", "-x"]
        for name in names:
            with self.subTest(name):
                folder = self.profile.add_project(name, WITH_PICTURE)
                (folder / "images").mkdir()
                (folder / "images/blue dot.png").write_bytes(PNG)
                self.use(name)
                with self.start() as program:
                    program.wait_text("picture shown")
                    program.key("Escape")
                    program.wait_page("MainPage")
                    banner = program.find("banner")["text"]
                    self.assertEqual(banner.replace("&amp;", "&"), f"Working on: <b>{name}</b>")

    def test_project_folder_is_gone(self):
        self.use("Shop", doOnStart="")
        with self.start() as program:
            program.wait_text("The project Shop is not in the workspace.")
            wait_for(lambda: not program.find("footerMessage")["text"], "the message to clear itself")
            self.assert_usable(program)

    def test_workspace_cannot_be_used(self):
        for blocked in (self.profile.work, self.profile.work.parent):
            with self.subTest(blocked.name):
                shutil.rmtree(self.profile.folder / "data", ignore_errors=True)
                blocked.parent.mkdir(parents=True)
                blocked.write_text("not a folder")
                self.use("", doOnStart="")
                with self.start() as program:
                    program.wait_text(f"The workspace {self.profile.work} cannot be used.")
                    program.wait_log("cannot be made")
                    self.assert_usable(program)

    def test_broken_settings(self):
        for text in (b"\x00\xff\xfe[[[\n=%%=\n" * 50, b"[General\nlastProject=Shop\n", b"", random.Random(7).randbytes(10_000)):
            with self.subTest(text[:12]):
                self.profile.write_settings()
                self.profile.config.write_bytes(text)
                with self.start() as program:
                    program.wait_page("LoginPage")
                    self.assert_usable(program)
                    if text:
                        program.wait_log(str(self.profile.config))
                wait_for(lambda: self.profile.setting("playerUID"), "settings that can be stored again")

    def test_edit_makes_no_stub_of_a_missing_project(self):
        self.use("Shop", doOnStart="")
        with self.start() as program:
            program.wait_text("The project Shop is not in the workspace.")
            wait_for(lambda: not program.find("footerMessage")["text"], "the message to clear itself")
            program.click("Edit")
            program.wait_text("The project Shop is not in the workspace.")
        self.use("Shop", doOnStart="edit")
        with self.start() as program:
            program.wait_page("RADEditorPage")
            self.assert_usable(program)
        self.assertFalse((self.profile.work / "Shop").exists())

    def test_killed_import(self):
        """The program is killed while it imports; its next start finds the old or the new project and tidies up."""
        folder = self.profile.add_project("Shop", "old")
        (folder / "kept").write_text("kept")
        with zipfile.ZipFile(folder / "in.zip", "w") as archive:
            for name in ("main.qml", "new.qml"):
                archive.writestr("Shop/" + name, "new")
        self.use("Shop", doOnStart="")
        for call in (6, 14):
            with self.subTest(call), self.start_with_killpoint(at=call) as program:
                program.click("Open")
                program.key("ctrl+i")
                program.wait_text("in.zip")
                program.key("Return")
                self.assertEqual(program.process.wait(20), -signal.SIGKILL)
            with self.start() as program:
                program.wait_page("MainPage")
                wait_for(lambda: [path.name for path in self.profile.work.iterdir()] == ["Shop"], "the tidying up")
            self.assertIn({path.name: path.read_text() for path in folder.iterdir() if path.suffix != ".zip"},
                          [{"main.qml": "old", "kept": "kept"}, {"main.qml": "new", "new.qml": "new", "kept": "kept"}])


if __name__ == "__main__":
    run_tests()
