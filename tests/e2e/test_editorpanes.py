#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The panes around the canvas: list of items, media, colours, what is worked out, menus as tables, slides."""


from driver import run_tests, wait_for
from editordriver import DOCUMENT, EditorTest
from test_badinput import PNG

WORDS = DOCUMENT[DOCUMENT.index("    BasicText {"):DOCUMENT.index("    BasicRow {")]

MENU = """import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: page
    width: 600
    height: 500

    CartaMenu {
        id: menu
        objectName: "menu"
        width: 400
        height: 400
        model: [
            { name: 'Soup', price: '4.50' },
            { price: '3.90', name: 'Cake', // not on Mondays
              details: "With {cream}, or \\"without" }, // ask
        ]
    }
}
"""

SLIDES = """import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: page
    width: 600
    height: 500

    Slideshow {
        id: show
        objectName: "show"
        width: 400
        height: 300
        transTime: 0

        Slide {
            id: morning
            Rectangle { x: 100; y: 100; width: 200; height: 100; color: "#ffa500" }
        }

        Slide {
            id: noon
            duration: 2500
            Rectangle { x: 100; y: 100; width: 200; height: 100; color: "#008080" }
        }
    }
}
"""


REPEATED = """import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    width: 600
    height: 500

    Row {
        Repeater {
            model: 2

            BasicRectangle { objectName: "tile"; width: 200; height: 200; color: "#ffa500" }
        }
    }
}
"""


# What an update does to what plays.
UPDATE = """
    Timer {
        interval: 50
        running: CAPI.getSSetting("isUpdated") === ""
        onTriggered: {
            CAPI.setSetting("isUpdated", "1");
            CAPI.clearComponentCache();
            CAPI.reloadPlayer();
        }
    }
"""


class EditorPanesTest(EditorTest):
    def hover(self, name):
        self.screen.do("mousemove", *self.centre(name))

    def drag_row(self, name, to, share):
        """Drags a row of the list of items to another one, at that share of its height."""
        x, y, width, height = self.rect(f"outline {to}")
        self.drag(f"outline {name}", to=(round(x + width / 2), round(y + share * height)))

    def test_hidden_and_locked(self):
        program = self.open()
        program.click("Items")
        ground = "#f7f1e3"
        self.hover("outline red")
        program.click("hide red")
        self.wait_colour("red", ground)
        self.click("red")
        self.wait_selected("page")
        self.select("blue")
        self.drag("blue", by=(30, 0), held=["ctrl"])
        program.key("ctrl+z")  # the document is made anew
        wait_for(lambda: self.place("blue") == (280, 27), "the blue one in its place")
        self.wait_colour("red", ground)
        self.hover("outline blue")
        program.click("lock blue")
        program.wait_text("Locked in the list of items")
        self.assertIsNone(program.find("handle 1,1"))
        program.key("Delete")
        self.drag("blue", by=(30, 0), held=["ctrl"])
        self.wait_selected("")
        self.click("outline red")
        program.key("h")
        self.wait_colour("red", "#b22222")
        self.assertEqual(self.saved(), DOCUMENT)
        self.assert_clean()

    def test_nesting(self):
        program = self.open()
        program.click("Items")
        place = self.place("words")
        self.drag_row("words", "red", 0.5)
        self.wait_selected("words")
        self.wait_values("words", x="13", y="181")
        self.assertEqual(self.place("words"), place)
        inside = self.source()
        self.assertLess(inside.index('"spot"'), inside.index('"words"'))
        self.assertLess(inside.index('"words"'), inside.index('"blue"'))
        self.assertIn('            text: "Soup"\n        }\n    }\n', inside)
        program.key("ctrl+z")
        self.assertEqual(self.saved(), DOCUMENT)
        self.drag_row("words", "red", 0.1)
        self.wait_selected("words")
        self.assertEqual(self.saved().split(),
                         DOCUMENT.replace(WORDS, "").replace("    Rectangle {", WORDS + "    Rectangle {", 1).split())
        program.key("ctrl+z")
        for row, onto, words in (("red", "words", "Nothing can be put into BasicText."),
                                 ("red", "spot", "An object cannot be moved into itself.")):
            self.drag_row(row, onto, 0.5)
            program.wait_text(words)
        self.assertEqual(self.saved(), DOCUMENT)
        self.assert_clean()

    def test_media(self):
        program = self.open()
        self.folder.joinpath("images").mkdir()
        program.click("Media")
        program.wait_text("No pictures or videos yet")
        for name in ("dot.png", "spot.png"):
            file = self.profile.folder / name
            file.write_bytes(PNG)
            self.drop(self.centre("addFile"), file)
            wait_for(lambda: program.find(f"media images/{name}"), name)
            self.assertIn(f"images/{name} 1", (self.folder / "dirmap").read_text())
        self.assertEqual((self.folder / "images/dot.png").read_bytes(), PNG)
        at = (self.rect("page")[0] + 450, self.rect("page")[1] + 250)
        self.drag("media images/dot.png", to=at)
        self.wait_selected("BasicImage")
        source = self.saved()
        self.assertIn('source: "images/dot.png"', source)
        self.assertIn("x : 350\n    y : 150\n", source)  # its middle is where it was dropped
        self.drag("media images/spot.png", to=at)
        wait_for(lambda: 'source: "images/spot.png"' in self.saved(), "the other picture")
        self.assertEqual(self.source(), source.replace("dot.png", "spot.png"))
        program.key("ctrl+z", "ctrl+z")
        self.assertEqual(self.saved(), DOCUMENT)

    def test_colours_and_bindings(self):
        program = self.open()
        self.select("red")
        program.click("#B22222")
        program.wait_text("In this project")
        program.click("colour #ffa500")
        self.wait_colour("red", "#ffa500")
        program.key("Escape")
        self.wait_values("red", color='"#ffa500"')
        self.assertEqual(self.source(), DOCUMENT.replace("#b22222", "#ffa500"))
        self.select("bound")
        program.click("Position and size")
        program.wait_text("page.width - 77")
        program.click("release")
        self.wait_values("bound", x="523")
        program.key("ctrl+z")
        self.wait_values("bound", x="page.width - 77")

    def test_item_that_shows_several_times(self):
        program = self.open(REPEATED)
        self.click("tile")
        program.wait_text("It shows several times")
        program.click("#FFA500")
        program.click("colour #000000")
        program.key("Escape")
        tiles = wait_for(lambda: [item["rect"] for item in program.items() if item["name"] == "tile"], "both tiles")
        self.assertEqual(len(tiles), 2)
        for x, y, width, height in tiles:
            self.wait_colour((round(x + width / 2), round(y + height / 2)), "#000000")
        self.assertEqual(self.saved(), REPEATED.replace("#ffa500", "#000000"))
        program.click("Items")
        self.screen.do("mousemove", *self.centre("outline BasicRectangle"))
        program.click("hide BasicRectangle")
        for keys in (), ("ctrl+z",):  # also in the document that is made anew
            program.key(*keys or ["Shift_L"])
            for x, y, width, height in tiles:
                self.wait_colour((round(x + width / 2), round(y + height / 2)), "#ffffff")

    def test_menu_table(self):
        program = self.open(MENU)
        self.click("menu", times=2)
        wait_for(lambda: (program.find("name 1") or {}).get("focus"), "the table")
        program.key("Tab", "ctrl+a")
        program.type("5.20")
        program.key("Return")  # goes down, to the other price
        wait_for(lambda: program.find("price 2")["focus"], "the price below")
        program.key("Return")  # the last one: another entry
        wait_for(lambda: (program.find("name 3") or {}).get("focus"), "the new entry")
        program.type("Tea")
        program.key("Tab")
        program.type("2.00")
        program.key("Tab")
        program.click("up 3")
        program.click("remove 1")
        wait_for(lambda: not program.find("name 3"), "two entries")
        left, _, width, _ = self.rect("remove 1")
        self.assertLess(left + width, 1280)
        program.key("Escape")
        wait_for(lambda: not program.find("name 1"), "the end of the table")
        model = MENU[MENU.index("["):MENU.index("]") + 1]
        wanted = MENU.replace(model, """[
            { name: "Tea", price: "2.00" },
            { price: '3.90', name: 'Cake', // not on Mondays
              details: "With {cream}, or \\"without" } // ask
        ]""")
        self.assertEqual(self.saved(), wanted)
        for _ in range(6):  # the price, the new entry, its name and price, the turn, the end of the soup
            program.key("ctrl+z")
        self.assertEqual(self.saved(), MENU)

    def test_panel_after_an_update(self):
        """The editor and the panels of what is compiled after an update have one script."""
        self.profile.add_project("Shop", MENU.replace("    CartaMenu", UPDATE + "    CartaMenu"))
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", doOnStart="play",
                                    lastProject="Shop", shareFolder="false")
        program = self.program = self.start()
        wait_for(lambda: program.log().count("plays file") == 2, "the update")
        program.key("Escape")
        program.wait_page("MainPage")
        program.click("Edit")
        program.wait_page("RADEditorPage")
        self.select("menu")
        wait_for(lambda: "All in a table" in program.texts(), lambda: f"the entries in {program.texts()}")
        self.assert_clean()

    def test_slides(self):
        program = self.open(SLIDES)
        morning, noon = "#ffa500", "#008080"
        self.click("show")
        wait_for(lambda: program.find("slide 2"), "the bar of slides")
        self.wait_colour("show", morning)
        program.click("slide 2")
        self.wait_colour("show", noon)
        self.wait_selected("noon")
        self.assertEqual(program.find("slide 2")["text"], "2 · 2.5 s")
        program.click("slideEarlier")
        wait_for(lambda: program.find("slide 1")["text"] == "1 · 2.5 s", "the other order")
        self.wait_colour("show", noon)
        self.assertLess(self.saved().index("noon"), self.source().index("morning"))
        program.click("duplicateSlide")
        self.wait_selected("noon2")
        self.wait_colour("show", noon)
        self.assertEqual([program.find(f"slide {number}")["text"] for number in (1, 2, 3)],
                         ["1 · 2.5 s", "2 · 2.5 s", "3 · 5 s"])
        program.click("removeSlide")
        self.wait_selected("morning")
        self.wait_colour("show", morning)
        program.click("addSlide")
        self.wait_selected("Slide")
        wait_for(lambda: program.find("slide 3"), "the new slide")
        for _ in range(4):
            program.key("ctrl+z")
        self.assertEqual(self.saved(), SLIDES)
        self.assert_clean()


if __name__ == "__main__":
    run_tests()
