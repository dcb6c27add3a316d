# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Every flow of the desktop editor by mouse, wheel and keys; then file, directory map and picture."""

import os
import shutil
import subprocess
import time
from pathlib import Path

from driver import run_tests, wait_for
from editordriver import DOCUMENT, EditorTest
from test_badinput import PNG


class DesktopEditorTest(EditorTest):
    def test_selecting(self):
        program = self.open()
        self.select("spot")
        for holder in ("red", "page", "page"):  # what holds the page is nothing
            program.key("Escape")
            self.wait_selected(holder)
        self.click("spot", button=3)
        menu = wait_for(lambda: program.find("itemMenu"), "the list of what lies there")
        self.assertEqual([t for t in program.texts() if t in ("spot", "red")], ["spot", "red"])
        program.key("Down", "Return")
        self.wait_selected("red")
        self.click((menu["rect"][0], 700))  # beside the page
        self.wait_selected("")
        program.key("Escape")
        program.wait_page("MainPage")
        self.assertEqual(self.source(), DOCUMENT)
        self.assert_clean()

    def test_moving_and_resizing(self):
        self.open()
        self.drag("red", by=(43, 21), held=["ctrl"])
        self.wait_values("red", x="63", y="51")
        self.assertEqual(self.saved(), DOCUMENT.replace("x: 20\n        y: 30", "x: 63\n        y: 51"))
        self.wait_colour("red", "#b22222")
        self.select("red")
        self.drag("handle 1,1", by=(31, 17), held=["ctrl"])
        self.wait_values("red", x="63", y="51", width="151", height="97")
        self.drag("handle -1,-1", by=(-13, -60), held=["ctrl", "shift"])
        self.wait_values("red", x="-30", y="-9", width="244", height="157")
        self.select("blue")  # turned by a quarter: its right edge is below
        self.drag("handle 1,0", by=(5, 40), held=["ctrl"])
        self.wait_values("blue", x="240", y="67", width="160", height="80")
        self.program.key("Right", "Right", "shift+Down", "Left")
        self.wait_values("blue", x="241", y="77")
        self.program.key("ctrl+z")  # the burst was one change
        self.wait_values("blue", x="240", y="67")

    def test_neighbours_and_gaps(self):
        program = self.open()
        self.press("red")
        x, y = self.centre("red")
        self.screen.do("mousemove", x + 13, y + 100)
        self.screen.do("mousemove", x + 15, y + 98)  # 2 px off the left edge of "words", 3 off its top
        wait_for(lambda: program.find("canvasLabel"), "the numbers at the handles")
        self.assertEqual(program.find("canvasLabel")["text"], "33, 131")
        self.screen.do("mouseup", 1)
        self.wait_values("red", x="33", y="131")
        self.press("red")
        self.screen.do("mousemove", x + 200, y + 200)
        program.key("Escape")  # a drag that is given up
        self.screen.do("mouseup", 1)
        self.wait_values("red", x="33", y="131")
        self.wait_selected("red")

    def test_several_items(self):
        program = self.open()
        self.select("red", "words", "bound")
        wait_for(lambda: program.find("selectedName")["text"] == "3 items", "three items")
        program.click("top")
        self.wait_values("words", y="30")
        self.wait_values("bound", x="page.width - 77", y="30")
        program.key("ctrl+z")
        self.wait_values("words", y="211")
        self.select("red", "words")
        self.drag("red", by=(10, 7), held=["ctrl"])
        self.wait_values("red", x="30", y="37")
        self.wait_values("words", x="43", y="218")
        program.key("ctrl+z")
        self.drag((self.centre("page")[0] + 290, self.rect("page")[1] + 490), to="words")  # a rubber band
        wait_for(lambda: program.find("selectedName")["text"] == "3 items", "what the band touched")
        program.key("Delete")
        wait_for(lambda: not program.find("row"), "the end of all three")
        for name in ("words", "row", "bound"):
            self.assertNotIn(f'"{name}"', self.saved())
        program.key("ctrl+z")
        wait_for(lambda: program.find("row"), "all three")
        self.assertEqual(self.saved(), DOCUMENT)

    def test_order(self):
        program = self.open()
        self.drag("red", to="blue", held=["ctrl"])
        self.wait_colour("blue", "#4682b4")
        program.click("front")
        self.wait_colour("blue", "#b22222")
        program.key("ctrl+Down", "ctrl+Down", "ctrl+Down", "ctrl+Down")
        self.wait_colour("blue", "#4682b4")
        self.wait_values("red", x="260", y="47")
        self.assertEqual(self.source(), DOCUMENT.replace("x: 20\n        y: 30", "x: 260\n        y: 47"))

    def test_properties(self):
        program = self.open()
        self.select("red")
        program.click("Properties")
        self.enter("value of color", '"#00aa00"')
        self.wait_colour("red", "#00aa00")
        self.enter("value of width", "page.height / 5 // of it")
        self.wait_values("red", width="page.height / 5 // of it", color='"#00aa00"')
        self.enter("value of height", '"tall"')
        program.wait_text("height cannot be used")
        self.assertEqual(self.values("red", "height"), ["80"])
        self.enter("newProperty", "radius")
        self.enter("newValue", "40")
        self.wait_values("red", radius="40")
        self.program.key("Escape", "Escape")  # out of the text, up to the page
        self.wait_selected("page")
        self.enter("value of height", "450")  # and the bound width follows
        wait_for(lambda: self.rect("red")[2] == 90, "the live binding")
        self.enter("newProperty", "onHeightChanged")
        self.enter("newValue", "page.color = 'red'")
        self.wait_values("page", onHeightChanged="page.color = 'red'")
        self.wait_colour((self.rect("page")[0] + 30, self.rect("page")[1] + 9), "#f7f1e3")  # it did not run

    def test_adding_and_deleting(self):
        program = self.open()
        self.drag("palette BasicRectangle", to=(self.rect("page")[0] + 400, self.rect("page")[1] + 200))
        self.wait_selected("BasicRectangle")
        source = self.saved()
        self.assertIn("\nBasicRectangle {\n", source)
        self.assertIn("    x : 400\n    y : 200", source)
        program.click("trash")
        self.wait_selected("page")
        self.assertNotIn("BasicRectangle", self.saved())
        self.select("red")
        self.click("palette BasicText", times=2)
        wait_for(lambda: self.selected() == "BasicText", "a text in what was selected")
        program.key("Escape")
        self.wait_selected("red")
        program.key("Escape", "Delete")  # the page itself stays
        self.assertIn('objectName: "page"', self.saved())

    def test_clipboard_and_duplicates(self):
        program = self.open()
        self.select("spot")
        program.key("ctrl+c")
        self.wait_selected("red")
        program.key("ctrl+v")
        self.wait_selected("spot2")
        self.assertEqual(self.saved().count('objectName: "spot"'), 2)
        program.key("ctrl+x")
        self.wait_selected("red")
        self.assertEqual(self.saved().count('objectName: "spot"'), 1)
        program.key("ctrl+d")
        self.wait_selected("red2")
        self.wait_values("red", x="20", y="30")
        self.assertEqual(self.source().count('objectName: "red"'), 2)
        self.assertIn("x: 156", self.source())
        for rubbish in (b"}{", b"", b"x" * 2_000_000):
            subprocess.run(["xclip", "-selection", "clipboard"], input=rubbish, check=True,
                           env={"DISPLAY": self.screen.name})
            program.key("ctrl+v")
            program.wait_text("The clipboard holds nothing that can be pasted.")
        self.assert_clean()

    def test_source(self):
        program = self.open()
        self.select("spot")
        program.key("F4")
        self.click("source")
        program.key("ctrl+End", "Left")
        program.type("; radius: 10; z: 3 ")
        program.click("Apply")
        self.wait_selected("spot")
        applied = self.saved()
        self.assertIn("; radius: 10; z: 3 }", applied)
        for text, message in (("; widht: 4 ", 'Cannot assign to non-existent property "widht"'), ("{", "This cannot be written here")):
            self.click("source")
            program.key("ctrl+End", "Left")
            program.type(text)
            program.key("ctrl+s")  # while one writes, only saving and playing act on the document
            program.click("Apply")
            program.wait_text(message)
            self.assertEqual(self.saved(), applied)
        self.wait_colour("spot", "#ffff00")

    def test_undo_and_redo(self):
        program = self.open()
        self.assertFalse(program.find("backward")["enabled"] or program.find("forward")["enabled"])
        states = [DOCUMENT]
        for way in ((40, 0), (0, 31), (17, 3)):
            self.drag("red", by=way, held=["ctrl"])
            wait_for(lambda: program.find("backward")["enabled"], "something to undo")
            states.append(self.saved())
        for keys, wanted in (("ctrl+z", states[2]), ("ctrl+y", states[1]), ("ctrl+shift+z", states[0]), ("ctrl+z", states[0])):
            program.key(keys)
            self.assertEqual(self.saved(), wanted, keys)
            self.wait_selected("red")
        self.assertFalse(program.find("backward")["enabled"])
        program.click("forward")
        self.assertEqual(self.saved(), states[1])
        # A change after undoing leaves an empty slot in the ring: nobody gets to see it.
        self.drag("red", by=(5, 90), held=["ctrl"])
        last = self.saved()
        for _ in range(6):
            program.key("ctrl+z")
        self.assertIn(self.saved(), states)
        for _ in range(6):
            program.click("forward")
            self.assertIn('"red"', self.saved())
        self.assertEqual(self.source(), last)

    def test_saving_and_playing(self):
        program = self.open()
        self.drag("red", by=(40, 60), held=["ctrl"])
        wait_for(lambda: program.find("project")["text"] == "Shop •", "the mark of a change")
        program.key("F5")
        program.wait_page("PlayerPage")
        self.assertIn("x: 60", (self.folder / "main2.qml").read_text())
        self.assertEqual(self.source(), DOCUMENT)
        program.key("Escape")
        program.wait_page("RADEditorPage")
        self.wait_selected("red")
        program.click("save")
        program.wait_text("Saved local")
        self.assertEqual((self.values("red", "x"), self.revision()), (["60"], 1))
        (self.folder / "main.qml").unlink()
        (self.folder / "main.qml").mkdir()  # as good as a full disk
        program.key("ctrl+s")
        program.wait_text("Not saved")
        self.assertEqual(self.revision(), 1)

    def test_text_in_place(self):
        program = self.open()
        self.click("words", times=2)
        wait_for(lambda: (program.find("textInPlace") or {}).get("focus"), "the text to be written in")
        program.type('Soup "of the day')
        program.key("ctrl+z", "ctrl+shift+z", "Delete", "Left", "Right", "Escape")
        self.wait_values("words", text='"Soup \\"of the day"')
        self.wait_selected("words")
        program.key("ctrl+z")
        self.wait_values("words", text='"Soup"')

    def test_files_from_elsewhere(self):
        self.open()
        picture = self.profile.folder / "blue dot.png"
        picture.write_bytes(PNG)
        notes = self.profile.folder / "notes.txt"
        notes.write_text("soup")
        at = (self.rect("page")[0] + 450, self.rect("page")[1] + 250)
        self.drop(at, picture)
        wait_for(lambda: self.selected() == "BasicImage", "the picture")
        self.assertIn('source: "images/blue dot.png"', self.saved())
        self.assertEqual((self.folder / "images/blue dot.png").read_bytes(), PNG)
        self.assertIn("images/blue dot.png 1", (self.folder / "dirmap").read_text())
        picture.write_bytes(PNG + b"\0")
        self.drop(at, picture)  # onto the picture: its source, beside the file that has the name
        wait_for(lambda: 'source: "images/blue dot-2.png"' in self.saved(), "the other picture")
        self.drop(at, notes)
        self.program.wait_text("Only pictures and videos can be put on the page.")
        self.assertEqual(sorted(p.name for p in (self.folder / "images").iterdir()), ["blue dot-2.png", "blue dot.png"])

    def test_items_that_are_placed(self):
        program = self.open()
        self.select("first")
        program.wait_text("Placed by its row")
        self.drag("first", by=(90, 0))
        wait_for(lambda: self.rect("first")[0] > self.rect("second")[0], "the other turn")
        self.assertLess(self.saved().index('"second"'), self.source().index('"first"'))
        self.wait_selected("first")
        self.select("bound")
        program.wait_text("x is worked out: page.width - 77")
        self.drag("bound", by=(-90, -40), held=["ctrl"])
        self.wait_values("bound", x="page.width - 77", y="367")

    def test_view(self):
        program = self.open()
        page = self.rect("page")
        x, y = self.centre("red")
        self.screen.do("mousemove", x, y, "click", 4)  # one notch of the wheel
        wait_for(lambda: program.find("zoomPercent")["text"] == "110 %", "the larger page")
        self.assertLess(max(abs(a - b) for a, b in zip(self.centre("red"), (x, y))), 2)
        self.drag("blue", by=(-30, 20), button=2)
        self.drag((self.rect("page")[0] + 300, self.rect("page")[1] + 30), by=(30, -20), held=["space"])
        program.key("ctrl+1", "ctrl+0")
        wait_for(lambda: program.find("zoomPercent")["text"] not in ("110 %", "100 %"), "the whole page")
        self.assertEqual(self.saved(), DOCUMENT)
        program.key("question")
        wait_for(lambda: program.find("keySheet"), "the page of keys")
        program.key("Escape")
        wait_for(lambda: not program.find("keySheet"), "its end")
        self.assertGreater(self.rect("page")[2], page[2])

    def test_outline(self):
        program = self.open()
        program.click("Items")
        program.click("outline spot")
        self.wait_selected("spot")
        self.rename("page", "board")
        self.wait_selected("board")
        self.assertEqual(self.saved(), DOCUMENT.replace("id: page", "id: board").replace("page.width", "board.width"))
        self.rename("red", "blue")
        program.wait_text('"blue" is used already')
        self.click("findItem")
        program.type("fir")
        wait_for(lambda: not program.find("outline blue"), "the rows that hold it alone")
        program.click("outline first")
        self.wait_selected("first")

    def rename(self, item, name):
        self.click(f"outline {item}", times=2)
        wait_for(lambda: (self.program.find("newId") or {}).get("focus"), "a field for the id")
        self.program.key("ctrl+a")
        self.program.type(name)
        self.program.key("Return")

    def test_starting(self):
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", shareFolder="false")
        program = self.program = self.start()
        self.begin("Cafe")
        program.wait_page("RADEditorPage")
        program.wait_text("Nothing on the page yet")
        self.drag("palette BasicRectangle", by=(500, 0))
        self.wait_selected("BasicRectangle")
        program.click("Back")
        wait_for(lambda: program.find("Save and leave"), "the question")
        program.key("Escape")
        wait_for(lambda: not program.find("Save and leave"), "its end")
        program.click("Back")
        program.click("Save and leave")
        program.wait_page("MainPage")
        folder = self.profile.work / "Cafe"
        self.assertIn("BasicRectangle {", (folder / "main.qml").read_text())
        self.assertIn("width: 1080\n    height: 1920", (folder / "main.qml").read_text())
        self.assertIn("main.qml 2", (folder / "dirmap").read_text())
        self.begin("Cafe")
        program.wait_text("There is a project of that name.")

    def test_starting_from_a_template(self):
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", shareFolder="false")
        program = self.program = self.start()
        demo = Path(__file__).resolve().parents[2] / "demos/Retail Window"
        files = {str(path.relative_to(demo)): path.read_bytes() for path in demo.rglob("*") if path.is_file()}
        self.begin("Window 2", "template Retail Window")
        program.wait_page("RADEditorPage")
        folder = self.profile.work / "Window 2"
        self.assertEqual({name: (folder / name).read_bytes() for name in files if name != "dirmap"},
                         {name: content for name, content in files.items() if name != "dirmap"})
        self.assertEqual(sorted((folder / "dirmap").read_text().split("\n")),
                         sorted(["", *(name + " 1" for name in files if name != "dirmap")]))
        wait_for(lambda: program.find("zoomPercent"), "the editor")
        self.assertNotIn("faultHint", [item["name"] for item in program.items()])

    def test_after_a_crash(self):
        program = self.open()
        self.drag("red", by=(5, 0), held=["ctrl"])
        kept = self.folder / "main.savestatus"
        wait_for(kept.exists, "what is kept")
        text = kept.read_text()
        program.close()  # it is killed
        program = self.program = self.start()
        program.wait_text("Take up what was not saved?")
        program.key("Escape")
        wait_for(lambda: not program.find("Take them up"), "the end of the question")
        self.assertEqual(kept.read_text(), text)
        program.close()
        program = self.program = self.start()
        program.wait_text("Take up what was not saved?")
        program.key("Return")
        wait_for(lambda: program.find("project")["text"] == "Shop •", "the mark of a change")
        self.assertEqual(self.source(), DOCUMENT)
        self.assertEqual(self.saved(), text)
        wait_for(lambda: not kept.exists(), "its end")
        program.key("ctrl+z")
        self.assertEqual(self.saved(), DOCUMENT)

    def test_end_in_mid_change(self):
        """What was changed a moment ago, and not saved, is offered by the next start."""
        program = self.open()
        self.select("red")
        left = self.rect("red")[0]
        program.key("Right", "Right")
        wait_for(lambda: self.rect("red")[0] > left, "the move")
        program.end()
        program = self.program = self.start()
        program.wait_text("Take up what was not saved?")
        program.key("Return")
        self.assertEqual(self.saved(), DOCUMENT.replace("x: 20", "x: 22"))

    def test_changed_elsewhere(self):
        program = self.open()
        file = self.folder / "main.qml"
        other = DOCUMENT.replace("#b22222", "#00aa00")
        file.write_text(other)
        program.key("ctrl+s")  # nothing was changed here
        self.wait_colour("red", "#00aa00")
        self.drag("red", by=(5, 0), held=["ctrl"])
        mine = self.saved()
        self.drag("red", by=(0, 7), held=["ctrl"])
        for answer, kept in (("Keep what is here", other), ("Take the other", DOCUMENT)):
            file.write_text(kept)
            program.key("ctrl+s")
            wait_for(lambda: program.find(answer), "the question")
            self.assertEqual(file.read_text(), kept)
            program.click(answer)
            wait_for(lambda: not program.find(answer), "its end")
            if answer.startswith("Keep"):
                self.assertEqual(self.saved(), mine.replace("y: 30\n", "y: 37\n"))
                self.drag("red", by=(9, 0), held=["ctrl"])
        self.wait_colour("red", "#b22222")
        program.key("ctrl+z")
        self.wait_colour("red", "#00aa00")
        self.assertEqual(self.saved(), mine.replace("x: 25", "x: 34").replace("y: 30\n", "y: 37\n"))

    def test_folder_that_goes(self):
        """Saving brings back what there is, tells so, and lists no file that is gone."""
        self.open().close()
        (self.folder / "dirmap").write_text("\nimages/a.png 3\nmain.qml 4")
        program = self.program = self.start()
        self.select("red")
        program.key("Right")
        wait_for(lambda: program.find("project")["text"] == "Shop •", "the mark of a change")
        shutil.rmtree(self.folder)
        program.key("ctrl+s")
        program.wait_text("folder was gone")
        self.assertEqual(self.source(), DOCUMENT.replace("x: 20", "x: 21"))
        self.assertEqual([line.split(" ")[0] for line in (self.folder / "dirmap").read_text().split("\n") if line],
                         ["main.qml"])

    def test_what_is_offered(self):
        for name, age, offered in (("Old", 60, False), ("New ä", -60, True), ("50% #1?", -60, True)):
            with self.subTest(name):
                folder = self.profile.add_project(name, DOCUMENT)
                kept = folder / "main.savestatus"
                kept.write_text(DOCUMENT.replace("red", "green"))
                os.utime(kept, (time.time() - age, time.time() - age))
                self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", doOnStart="edit",
                                            lastProject=name, shareFolder="false")
                program = self.program = self.start("--windowed")
                program.wait_page("RADEditorPage")
                wait_for(lambda: program.find("bound"), "the document")
                if offered:
                    program.wait_text("Take up what was not saved?")
                    x, y, width, height = self.rect("Take them up")  # and its box is as high as what it holds
                    wait_for(lambda: self.pixel(round(x), round(y + height + 16)) == "#FFFFFF", "the box's foot")
                time.sleep(0.5)
                self.assertEqual(program.find("Take them up") is not None, offered)
                program.close()

    def test_documents_that_cannot_be_shown(self):
        cases = {"Item {\n    width: }": "Line 2: ", "import QtQuick 2.15\nItm {}": "Line 2: Itm is not a type",
                 "import QtQml 2.15\nQtObject {}": "its root is no visual item", "": "It is empty.",
                 "/" * 68_000_000: "too large for a text",
                 "import QtQuick 2.15\nItem { property int element }": "is taken by the editor",
                 "import QtQuick 2.15\nItem { Component.onCompleted: { while (true) {} } }": "does not end",
                 'import QtQuick 2.15\nItem { Loader { source: "main.qml" } }': "loads itself again"}
        for number, (document, message) in enumerate(cases.items()):
            with self.subTest(message):
                if number:
                    self.program.close()
                    (self.folder / "main.qml").unlink()
                    self.folder.rename(self.folder.with_name(f"Old{number}"))
                program = self.open(document)
                program.wait_text(message)
                program.key("ctrl+s", "Delete", "ctrl+v", "ctrl+d", "ctrl+z", "F5")
                if program.page() == "PlayerPage":
                    program.key("Escape")
                program.wait_page("RADEditorPage")
                self.assertEqual(self.source(), document)

    def test_large_and_endless_documents(self):
        """What would take very long is asked about first; what never ends is not played either."""
        program = self.open('import QtQuick 2.15\nItem {\n    objectName: "page"; width: 500; height: 400\n'
                            '    Repeater { model: 9000; Item { } }\n}\n')
        program.wait_text("Line 4 makes it 9002 items.")
        self.assertIsNone(program.find("page"))
        program.click("Open it all the same")
        wait_for(lambda: program.find("page"), "the document")
        program.close()
        (self.folder / "main.qml").write_text('import QtQuick 2.15\nItem { Repeater { model: 1e8; Item { } } }\n')
        program = self.program = self.start()
        program.wait_text("Line 2 makes it 100000002 items.")
        program.key("Escape")
        program.wait_page("MainPage")
        program.close()
        (self.folder / "main.qml").write_text('import QtQuick 2.15\nItem { Loader { source: "main.qml" } }\n')
        program = self.program = self.start("--play", self.folder.name)
        program.wait_text("loads itself again")
        self.assertTrue(program.alive())


if __name__ == "__main__":
    run_tests()
