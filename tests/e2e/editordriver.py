# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The desktop editor in the real program: what its user does by mouse and keyboard, and what comes of it."""

import re
import subprocess
import time
from pathlib import Path

from driver import ProgramTest, wait_for

DOCUMENT = """import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: page
    objectName: "page"
    width: 600
    height: 500
    color: "#f7f1e3"

    Rectangle {
        id: red
        objectName: "red"
        x: 20
        y: 30
        width: 120
        height: 80
        color: "#b22222"

        Rectangle {
            id: spot
            objectName: "spot"
            x: 10
            y: 10
            width: 20
            height: 20
            color: "#ffff00"
        }
    }

    Rectangle {
        id: blue
        objectName: "blue"
        x: 260
        y: 47
        width: 120
        height: 80
        color: "#4682b4"
        rotation: 90
    }

    BasicText {
        id: words
        objectName: "words"
        x: 33
        y: 211
        text: "Soup"
    }

    BasicRow {
        id: row
        objectName: "row"
        x: 211
        y: 307

        Rectangle {
            id: first
            objectName: "first"
            width: 60
            height: 60
            color: "#ffa500"
        }

        Rectangle {
            id: second
            objectName: "second"
            width: 60
            height: 60
            color: "#008080"
        }
    }

    Rectangle {
        id: bound
        objectName: "bound"
        x: page.width - 77
        y: 407
        width: 50
        height: 50
        color: "#800080"
    }
}
"""


class EditorTest(ProgramTest):
    """A project that is open in the editor, at 100 %: a pixel of the document is one of the screen."""

    def open(self, document=DOCUMENT):
        self.folder = self.profile.add_project("Shop", document)
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", doOnStart="edit",
                                    lastProject="Shop", shareFolder="false")
        self.program = self.start()
        self.program.wait_page("RADEditorPage")
        if document == DOCUMENT:
            wait_for(lambda: self.program.find("bound"), "the document")
            self.program.key("ctrl+1")
            wait_for(lambda: self.program.find("zoomPercent")["text"] == "100 %", "its natural size")
        return self.program

    # What is shown

    def rect(self, name):
        return wait_for(lambda: self.program.find(name), lambda: f"{name}; log:\n{self.program.log()}")["rect"]

    def centre(self, place):
        if not isinstance(place, str):
            return place
        x, y, width, height = self.rect(place)
        return round(x + width / 2), round(y + height / 2)

    def place(self, name):
        """Where an item shows in the document: x and y."""
        (x, y, *_), (left, top, *_) = self.rect(name), self.rect("page")
        return round(x - left), round(y - top)

    def selected(self):
        item = self.program.find("selectedName")
        return item["text"].split(" · ")[-1] if item else ""

    def wait_selected(self, name):
        wait_for(lambda: self.selected() == name, lambda: f"{name} selected, not '{self.selected()}'")

    def pixel(self, x, y):
        """The colour on the screen, as "#RRGGBB"."""
        grab = ["import", "-display", self.screen.name, "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "txt:-"]
        return re.search(r"#[0-9A-F]{6}", subprocess.run(grab, capture_output=True, text=True, check=True).stdout)[0]

    def wait_colour(self, place, colour):
        wait_for(lambda: self.pixel(*self.centre(place)) == colour.upper(), f"{colour} at {place}")

    def assert_clean(self):
        told = [line for line in self.program.log().splitlines() if not re.match(r"nuvex\.(shell|qmldoc)|ALSA|AL lib|qt.qpa", line)]
        self.assertEqual(told, [])

    # What is done

    def click(self, place, button=1, held=(), times=1):
        x, y = self.centre(place)
        self._held(held, lambda: self.screen.do("mousemove", x, y, "click", "--repeat", times, "--delay", 50, button))
        if times == 1:
            time.sleep(0.45)  # the next click is no double click

    def select(self, *names):
        self.click(names[0])
        for name in names[1:]:
            self.click(name, held=["shift"])
        if len(names) == 1:
            self.wait_selected(names[0])

    def press(self, place):
        self.screen.do("mousemove", *self.centre(place), "mousedown", 1)

    def drag(self, place, by=None, to=None, held=(), button=1):
        """Drags from a place by a way or to another place, in steps as a hand does."""
        x, y = self.centre(place)
        end = self.centre(to) if to else (x + by[0], y + by[1])
        self._held(held, lambda: self._drag((x, y), end, button))

    def _drag(self, start, end, button):
        self.screen.do("mousemove", *start, "mousedown", button)
        for step in range(1, 7):
            self.screen.do("mousemove", *(round(a + (b - a) * step / 6) for a, b in zip(start, end)))
            time.sleep(0.02)
        self.screen.do("mouseup", button)

    def _held(self, keys, action):
        for key in keys:
            self.screen.do("keydown", key)
        action()
        for key in keys:
            self.screen.do("keyup", key)

    def drop(self, at, *files):
        """Drags files from a file manager to a place of the window."""
        source = subprocess.Popen([Path(self.setup.plugins) / "nuvex_dragsource", *files],
                                  env={"DISPLAY": self.screen.name, "PATH": "/usr/bin"})
        self.addCleanup(source.wait)
        self.addCleanup(source.kill)
        wait_for(lambda: self.pixel(30, 690) == "#FFFF00", "the file manager")
        self.drag((30, 690), to=at)
        wait_for(lambda: self.pixel(30, 690) != "#FFFF00", "the drop")
        self.program.focus()

    def enter(self, field, text):
        """Puts a text in place of that in a field."""
        self.click(field)
        self.program.key("ctrl+a")
        self.program.type(text)
        self.program.key("Return")

    def begin(self, name, choice="Portrait"):
        """Makes a project, of that form or from that template."""
        program = self.program
        program.wait_page("MainPage")
        program.click("Open")
        program.wait_page("ProjectsPage")
        program.key("ctrl+n")
        program.wait_page("NewProjectPage")
        wait_for(lambda: program.find("projectName")["focus"], "the field for the name")
        program.type(name)
        program.click(choice)
        program.click("Create and edit")

    # What is on disk

    def source(self):
        return (self.folder / "main.qml").read_text("utf-8")

    def revision(self):
        dirmap = self.folder / "dirmap"
        found = re.search(r"^main\.qml (\d+)$", dirmap.read_text("utf-8"), re.M) if dirmap.exists() else None
        return int(found[1]) if found else 0

    def saved(self):
        """Saves by Ctrl+S; the source on disk then."""
        before = self.revision()
        self.program.key("ctrl+s")
        wait_for(lambda: self.revision() == before + 1, lambda: f"the saved revision; log:\n{self.program.log()}")
        return self.source()

    def values(self, name, *properties):
        """Source texts of an item's own properties, of what was saved last; None where there is none."""
        body = re.search(r'objectName: "%s"(.*?)(?=\n *\w+ \{|\})' % name, self.source(), re.S)[1]
        found = [re.search(r"^ *%s ?: (.*)$" % re.escape(property), body, re.M) for property in properties]
        return [match[1] if match else None for match in found]

    def wait_values(self, name, **wanted):
        """Saves until the item's properties are as wanted."""
        def told():
            self.saved()
            return dict(zip(wanted, self.values(name, *wanted)))
        wait_for(lambda: told() == wanted, lambda: f"{wanted}, not {told()}")
