# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""A project's files as text, by mouse and keys: found, changed, refused, saved, played."""

from driver import ProgramTest, run_tests, wait_for

DOCUMENT = "import QtQuick 2.15\r\n\r\nRectangle {\r\n    color: 'teal'\r\n    // 20\u00a0°C\r\n}\r\n"


class SourcesTest(ProgramTest):
    def open(self, file):
        self.folder = self.profile.add_project("Shop", None)
        (self.folder / "main.qml").write_bytes(DOCUMENT.encode())
        (self.folder / "notes.txt").write_bytes("Café\n".encode("latin-1"))
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
        self.assertEqual(self.source(), DOCUMENT.replace("teal", "navy"))
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
        self.assertEqual(self.source(), DOCUMENT.replace("teal", "navy"))
        program.key("Escape")
        program.click("Do not save")
        program.wait_page("AdvancedEditPage")
        program.press("main.qml", by_keyboard=True)
        program.wait_page("TextEditor")
        program.key("F5")
        program.wait_page("PlayerPage")
        program.key("Escape")
        program.wait_page("TextEditor")

    def test_other_encoding(self):
        program = self.open("notes.txt")
        program.wait_text("This file is not UTF-8")
        program.type("Tea and ")
        program.click("Save")
        program.wait_text("Saved local")
        self.assertEqual([text for text in program.texts() if "not UTF-8" in text], [])
        self.assertTrue((self.folder / "notes.txt").read_text("utf-8").startswith("Tea and Caf"))
        kept = [file.read_bytes() for file in self.folder.iterdir() if file.name not in ("main.qml", "notes.txt")]
        self.assertIn("Café\n".encode("latin-1"), kept)


if __name__ == "__main__":
    run_tests()
