# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""A project's files as text, and the editor for touch: found, changed, refused, saved, played."""

import sys
import time
from contextlib import ExitStack
from pathlib import Path

from driver import Profile, Program, ProgramTest, Screen, run_tests, wait_for
from editordriver import DOCUMENT, EditorTest
from test_badinput import PNG

sys.path.append(str(Path(__file__).resolve().parents[1] / "localcloud"))
from cloud import Cloud  # noqa: E402

WINDOWS_TEXT = "import QtQuick 2.15\r\n\r\nRectangle {\r\n    color: 'teal'\r\n    // 20\u00a0°C\r\n}\r\n"
HUGE = 1 << 30  # bytes of a file with nothing in it


class SourcesTest(ProgramTest):
    def open(self, file):
        self.folder = self.profile.add_project("Shop", None)
        (self.folder / "main.qml").write_bytes(WINDOWS_TEXT.encode())
        (self.folder / "notes.txt").write_bytes("Café\n".encode("latin-1"))
        with (self.folder / "huge.js").open("wb") as huge:
            huge.truncate(HUGE)
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", doOnStart="",
                                    lastProject="Shop")
        self.program = self.start()
        self.program.click("Menu")
        self.program.click("Advanced Editor")
        self.program.click(file)
        self.program.wait_page("TextEditor")
        wait_for(lambda: self.program.find("source"), "the text")
        return self.program

    def source(self):
        return (self.folder / "main.qml").read_bytes().decode()

    def revision(self, file):
        dirmap = self.folder / "dirmap"
        return dirmap.exists() and f"{file} 1" in dirmap.read_text("utf-8").splitlines()

    def test_document(self):
        program = self.open("main.qml")
        program.key("ctrl+f")
        program.type("TEAL")
        program.wait_text("1 of 1")
        program.key("Escape")
        program.type("navy")
        program.wait_text("main.qml •")
        program.key("ctrl+s")
        program.wait_text("Saved local")
        self.assertEqual(self.source(), WINDOWS_TEXT.replace("teal", "navy"))
        self.assertTrue(self.revision("main.qml"))
        program.type("'}{")
        program.key("ctrl+s")
        program.wait_text("Not saved: line 4:")
        program.key("ctrl+a", "Delete", "ctrl+s")
        program.wait_text("Not saved: the text is empty")
        program.key("Escape")
        program.click("Save and leave")
        program.wait_text("Not saved: the text is empty")
        self.assertEqual(program.page(), "TextEditor")
        self.assertEqual(self.source(), WINDOWS_TEXT.replace("teal", "navy"))
        program.key("Escape")
        program.click("Do not save")
        program.wait_page("AdvancedEditPage")
        program.press("main.qml", by_keyboard=True)
        program.wait_page("TextEditor")
        program.key("F5")
        program.wait_page("PlayerPage")
        program.key("Escape")
        program.wait_page("TextEditor")

    def test_file_too_large(self):
        program = self.open("huge.js")
        program.wait_text("This file cannot be read")
        program.type("x")
        program.key("ctrl+s")
        program.wait_text("Not saved")
        self.assertEqual((self.folder / "huge.js").stat().st_size, HUGE)

    def test_other_encoding(self):
        program = self.open("notes.txt")
        program.wait_text("This file is not UTF-8")
        program.type("Tea and ")
        program.click("Save")
        program.wait_text("Saved local")
        self.assertEqual([text for text in program.texts() if "not UTF-8" in text], [])
        self.assertTrue((self.folder / "notes.txt").read_text("utf-8").startswith("Tea and Caf"))
        kept = [file.read_bytes() for file in self.folder.iterdir() if file.name not in ("notes.txt", "huge.js")]
        self.assertIn("Café\n".encode("latin-1"), kept)


class TouchPageTest(EditorTest):
    """The document on the editor page of a device, which a command from the cloud opens on this computer. The
    engine has forgotten before what it had compiled, as after an update."""

    def open(self, document=DOCUMENT):
        cloud = Cloud(self.setup.localcloud)
        self.addCleanup(cloud.stop)
        self.folder = self.profile.add_project("Shop", document)
        self.profile.write_settings(userEmail="ann.b@example.org", playerUID="west_12", doOnStart="",
                                    lastProject="Shop", shareFolder="false")
        self.program = Program(self.setup, self.screen, self.profile,
                               "--deployment", str(cloud.folder / "deployment.json"))
        self.addCleanup(self.program.close)
        self.program.wait_page("MainPage")
        cloud.database("PUT", "/Users/annb@exampleorg/Players/west_12/command",
                       "CAPI.clearComponentCache(); CAPI.createEditorFile(); open('EditorPage')")
        self.program.wait_page("EditorPage")
        return self.program


class TouchEditorTest(TouchPageTest):
    def edit(self, *steps):
        """Presses what leads to a text, and waits for it."""
        for step in steps:
            self.program.click(step)
        wait_for(lambda: self.program.find("source"), "the code")

    def replace(self, code):
        self.program.key("ctrl+a")
        self.program.type(code)
        self.program.click("Apply")

    def save(self):
        before = self.revision()
        self.program.click("Save")
        wait_for(lambda: self.revision() == before + 1, "the saved revision")
        return self.source()

    def test_handles_for_fingers(self):
        program = self.open()
        for name in ("red", "spot"):
            self.select(name)
            handles = [item["rect"] for item in program.items() if item["name"].startswith("handle ")]
            self.assertGreaterEqual(len(handles), 4)
            self.assertGreaterEqual(round(min(min(rect[2:]) for rect in handles)), 44)
            middle = self.centre(name)
            for i, (x, y, width, height) in enumerate(handles):
                is_over_middle = x < middle[0] < x + width and y < middle[1] < y + height
                self.assertFalse(is_over_middle, name)
                for left, top, *_ in handles[:i]:
                    self.assertTrue(abs(left - x) > width - 1 or abs(top - y) > height - 1, name)
        before = self.rect("spot")
        self.drag("handle 1,1", by=(30, 20), held=["ctrl"])
        wait_for(lambda: round(self.rect("spot")[2] - before[2]) == 30, "the larger spot")

    def test_properties_and_source(self):
        program = self.open()
        self.select("red")
        width = self.rect("red")[2]
        self.edit("Properties", "width")
        self.replace("width: }")
        program.wait_text("This cannot be written here")
        self.replace("width: 240")
        program.wait_page("PropertyEditor")
        program.key("Escape")
        program.wait_page("EditorPage")
        self.wait_selected("red")
        self.assertAlmostEqual(self.rect("red")[2], 2 * width, delta=1)
        wider = DOCUMENT.replace("width: 120", "width: 240", 1)
        self.assertEqual(self.save(), wider)

        self.select("first")
        self.edit("Properties", "fa-code")
        program.key("ctrl+a", "Delete", "Escape")
        program.click("Do not save")
        program.wait_page("EditorPage")
        self.edit("Properties", "fa-code")
        self.replace("Rectangle { objectName: 'first'; width: 60; height: 60; color: '#00ff00' }")
        program.wait_page("EditorPage")
        self.wait_colour("first", "#00ff00")
        program.click("fa-undo")
        self.wait_colour("first", "#ffa500")
        self.select("blue")
        program.click("fa-trash-o")
        wait_for(lambda: not program.find("blue"), "its end")
        program.click("fa-arrow-left")
        program.click("Stay")
        program.click("fa-undo")
        wait_for(lambda: program.find("blue"), "it again")
        self.assertEqual(self.save(), wider)
        self.select("page")
        program.click("fa-plus")
        wait_for(lambda: self.rect("palette BasicRectangle")[1] > self.rect("palette BasicText")[1], "the parts in place")
        program.click("palette BasicRectangle")
        wait_for(lambda: program.find("selectedName")["text"].startswith("BasicRectangle"),
                 lambda: f"the new part: {self.selected()}; log:\n{program.log()}")
        self.assertIn("BasicRectangle {", self.save())
        program.click("fa-arrow-left")
        program.wait_page("MainPage")
        self.assert_clean()


class FingersTest(TouchPageTest):
    """The same pages by touch alone, on a screen that lies and on one that stands."""

    def tap(self, *labels):
        """Taps as far beside the middle of each as a target of 44 px reaches."""
        for label in labels:
            x, y, width, height = wait_for(lambda: self.program.find(label), label)["rect"]
            self.assertTrue(x >= 0 and y >= 0 and x + width <= self.size[0] and y + height <= self.size[1], label)
            self.program.tap((x + width / 2, y + height / 2 + 21))

    def test_by_fingers(self):
        for self.size in (1280, 720), (1080, 1920):
            with self.subTest(self.size), ExitStack() as stack:
                self.screen = Screen("%dx%d" % self.size)
                stack.callback(self.screen.close)
                self.profile = Profile()
                stack.callback(self.profile.remove)
                self.open()
                stack.callback(self.program.close)
                self.edit_by_fingers(self.program)

    def edit_by_fingers(self, program):
        page = self.rect("page")
        x, y = self.centre("red")  # the first finger lands on an item, which is not moved
        program.swipe(((x, y), (x - 50, y - 20)), ((x + 100, y), (x + 150, y + 20)))
        wait_for(lambda: self.rect("page")[2] > 1.5 * page[2], "a larger page")
        self.tap("Whole page")
        wait_for(lambda: self.rect("page") == page, "the whole page")
        time.sleep(0.6)  # two quick taps are a double tap, wherever they are
        program.tap("red")
        self.wait_selected("red")
        scale = page[2] / 600
        at = self.centre("red")
        program.swipe((at, (at[0] + 60 * scale, at[1] + 233 * scale)))
        wait_for(lambda: self.place("red")[1] > 250 * scale, "its new place")
        self.tap("Save")
        wait_for(lambda: self.revision() == 1, "the saved revision")
        self.assertLess(abs(int(self.values("red", "x")[0]) - 80) + abs(int(self.values("red", "y")[0]) - 263), 12)
        self.tap("Undo")
        self.assertNotIn("Undo", program.texts())  # no hint stays where the finger was

        program.tap("words")
        self.tap("Edit")
        program.wait_page("ItemEditor")
        program.tap("Soup")
        program.key("ctrl+a")
        program.type("Stew")
        self.tap("Back")
        program.wait_page("EditorPage")
        self.wait_selected("words")
        self.tap("Save")
        wait_for(lambda: self.revision() == 2, "the saved revision")
        self.assertEqual(self.source(), DOCUMENT.replace("Soup", "Stew"))

        picture = self.profile.folder / "dot.png"
        picture.write_bytes(PNG)
        self.drop((page[0] + 500 * scale, page[1] + 250 * scale), picture)
        wait_for(lambda: self.selected() == "BasicImage", "the picture")
        self.assertIn("images/dot.png 1", (self.folder / "dirmap").read_text())
        self.tap("Delete", "Properties")
        program.wait_page("PropertyEditor")
        program.tap("color")
        program.wait_page("PropertyCodeEditor")
        self.tap("Back")
        program.wait_page("PropertyEditor")
        self.tap("Back")
        program.wait_page("EditorPage")
        self.tap("Back", "Do not save")
        program.wait_page("MainPage")
        self.assert_clean()

    def test_mending_a_document(self):
        self.size = 1280, 720
        program = self.open("import QtQuick 2.15\nRectangle { width: }\n")
        self.tap("Open the source")
        program.wait_page("TextEditor")
        program.key("ctrl+End", "Up", "End", "Left")
        program.type("7; height: 7 ")
        self.tap("Save")
        wait_for(lambda: self.revision() == 1, "the saved revision")
        self.tap("Back")
        program.wait_page("EditorPage")
        wait_for(lambda: program.find("emptyHint"), "the page that is mended")


if __name__ == "__main__":
    run_tests()
