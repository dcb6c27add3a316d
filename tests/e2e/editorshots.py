# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The states of both editors for docs/screenshots, with the demo Menu Board."""

import time

from driver import wait_for

TITLE, HOURS, MARK, MENU = "Osteria Faro", "Kitchen open until 23 h", "vegetarian", "Antipasti"


class EditorShots:
    """Drives the editor through its states; `take(name)` takes a picture."""

    def __init__(self, program, take):
        self.program = program
        self.do = program.screen.do
        self.take = take
        self.begun = (0, 0)  # where the last drag began

    def centre(self, label):
        x, y, width, height = wait_for(lambda: self.program.find(label), label)["rect"]
        return round(x + width / 2), round(y + height / 2)

    def click(self, label, times=1, held=None):
        if held:
            self.do("keydown", held)
        self.do("mousemove", *self.centre(label), "click", "--repeat", times, "--delay", 50, 1)
        if held:
            self.do("keyup", held)

    def hold(self, label, by):
        """Begins a drag and keeps the button down."""
        self.begun = x, y = self.centre(label)
        self.do("mousemove", x, y, "mousedown", 1)
        for step in range(1, 7):
            self.do("mousemove", round(x + by[0] * step / 6), round(y + by[1] * step / 6))

    def all(self):
        self.questions()
        self.open()
        for state in (self.guides, self.several, self.rotated, self.text, self.outline, self.slides, self.media,
                      self.table, self.colours):
            state()
            self.take("editor-" + state.__name__)
            self.leave()
        self.fault()

    def open(self):
        self.program.click("Edit")
        self.program.wait_page("RADEditorPage")
        wait_for(lambda: self.program.find(HOURS), "the document")

    def questions(self):
        """A project from nothing: how it begins, its empty page, the keys, and what is asked about it."""
        self.program.click("Open")
        self.program.wait_page("ProjectsPage")
        self.program.key("ctrl+n")
        self.program.wait_page("NewProjectPage")
        wait_for(lambda: self.program.find("projectName")["focus"], "the field for the name")
        self.program.type("Bar")
        wait_for(lambda: self.program.find("projectName")["text"] == "Bar", "the name")
        self.take("editor-new")
        self.program.click("Landscape")
        self.program.click("Create and edit")
        self.program.wait_page("RADEditorPage")
        wait_for(lambda: self.program.find("emptyHint"), "the empty page")
        self.take("editor-empty")
        self.program.key("question")
        wait_for(lambda: self.program.find("keySheet"), "the page of keys")
        self.take("editor-keys")
        self.program.key("Escape")
        self.click("palette BasicText", times=2)
        wait_for(lambda: self.program.find("selectedName"), "the text")
        self.program.click("Back")
        self.program.wait_text("Save the changes of Bar?")
        self.take("editor-question")
        self.program.click("Stay")
        document = self.program.profile.work / "Bar/main.qml"
        document.write_text(document.read_text() + "\n")
        self.program.key("ctrl+s")
        self.program.wait_text("Changed elsewhere")
        self.take("editor-elsewhere")
        self.program.click("Take the other")
        self.program.click("Back")
        self.program.wait_page("MainPage")
        self.program.click("Open")
        self.program.wait_page("ProjectsPage")
        self.program.click("Menu Board")
        self.program.wait_page("MainPage")

    def leave(self):
        """Ends what a state has begun; nothing is selected afterwards."""
        self.program.key("Escape")
        self.do("mousemove", *self.begun, "mouseup", 1)
        time.sleep(0.5)  # the next click is no double click
        for _ in range(6):
            if not self.program.find("selectedName") and not self.program.find("entriesTable"):
                return
            self.program.key("Escape")

    def guides(self):
        self.hold(HOURS, (-90, 3))

    def several(self):
        self.click(TITLE)
        for text in (HOURS, MARK):
            self.click(text, held="shift")

    def rotated(self):
        self.click(TITLE)
        self.program.click("Properties")
        for field, text in (("newProperty", "rotation"), ("newValue", "12")):
            self.program.click(field)
            self.program.type(text)
        self.program.key("Return")
        self.program.click("Item")

    def text(self):
        self.program.key("ctrl+z")
        self.click(HOURS, times=2)
        wait_for(lambda: (self.program.find("textInPlace") or {}).get("focus"), "the text to be written in")
        self.program.type("Kitchen open until midnight")

    def outline(self):
        self.program.key("ctrl+z")
        self.program.click("Items")
        self.do("mousemove", *self.centre("outline pictures1"))
        self.program.click("hide pictures1")
        self.hold("outline DigitalClock", (20, -42))

    def slides(self):
        self.program.click("hide pictures1")
        self.click("outline olives")
        wait_for(lambda: self.program.find("slide 2"), "the bar of slides")

    def media(self):
        self.program.click("Media")
        self.click(TITLE)

    def table(self):
        self.click(MENU, times=2)
        wait_for(lambda: self.program.find("name 1"), "the table")

    def colours(self):
        self.program.click("Parts")
        self.click(TITLE)
        self.program.wait_text("Position and size")
        time.sleep(0.5)  # until the panel lies as it will
        self.program.click("#F2EADD")
        self.program.wait_text("In this project")

    def fault(self):
        """The document as somebody else has left it."""
        self.program.key("ctrl+s")
        self.program.click("Back")
        self.program.wait_page("MainPage")
        document = self.program.profile.work / "Menu Board/main.qml"
        document.write_text(document.read_text().replace("width: 1920", "width: ", 1))
        self.program.click("Edit")
        wait_for(lambda: self.program.find("faultHint"), "what is wrong")
        self.take("editor-fault")


def take_device(program, take):
    """Drives the editor for touch through its states."""
    wait_for(lambda: program.find(HOURS), "the document")
    program.tap(TITLE)
    take("device-selected")
    program.tap("Edit")
    program.wait_page("ItemEditor")
    take("device-item")
    program.tap("Back")
    program.wait_page("EditorPage")
    program.tap("Properties")
    program.wait_page("PropertyEditor")
    take("device-properties")
    program.tap("text")
    program.wait_page("PropertyCodeEditor")
    take("device-code")
    program.tap("Back")
    program.wait_page("PropertyEditor")
    program.tap("Back")
    program.wait_page("EditorPage")
    program.tap("Add a part")
    take("device-parts")
    program.key("Escape")
    program.tap("Delete")
    program.tap("Back")
    program.wait_text("Save the changes of Menu Board?")
    take("device-question")
