#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""A menu board, made from an empty project by mouse and keyboard alone, then played.

With NUVEX_RECORDING=FILE the screen is filmed into that file.
"""

import os
import signal
import subprocess
import time
from pathlib import Path

from driver import run_tests, wait_for
from editordriver import EditorTest

MENU = (("Flat white", "3.60", "Beans from the roastery next door"),
        ("Linden blossom tea", "3.20", "With honey of our own bees"),
        ("Soup of the day", "6.90", "Pumpkin and ginger, with bread"),
        ("Goat cheese tart", "8.50", "Thyme, walnuts, a small salad"),
        ("Plum crumble", "4.80", "Warm, with vanilla sauce"))
MOST_ACTIONS = 150


class MenuBoardTest(EditorTest):
    """Counts what is done: a click, a drag, a key, a text typed in one go."""

    def test_board(self):
        self.actions = 0
        self.profile.write_settings(userEmail="ann@example.org", playerUID="west_12", shareFolder="false")
        self.program = self.start()
        self.film()
        self.begin("Cafe Linde", "Landscape")
        self.actions += 5
        self.program.wait_page("RADEditorPage")
        self.folder = self.profile.work / "Cafe Linde"
        self.program.wait_text("Nothing on the page yet")
        self.click((640, 500))
        self.click("Properties")
        self.fill("value of color", '"#f6efe2"')
        self.put("BasicRectangle", (500, 250))
        self.fill("value of width", "1920", "230", '"#24493f"', "0", "0", "0")
        self.put_text((500, 400), "Cafe Linde", '"#f6efe2"', "96", "96", "56")
        self.put_text((800, 500), "Open until 18 h", '"#e3b566"', "48", "1330", "92")
        self.put_menu()
        self.put("BasicRectangle", (800, 450))
        self.click("Properties")
        self.fill("value of width", "494", "180", '"#b5523b"', "24", "1330", "290")
        self.put_text((800, 500), "Brunch on Sunday", '"#ffffff"', "46", "1370", "348")
        self.key("ctrl+s")
        wait_for(lambda: self.revision() == 2, "the saved board")
        self.key("F5")
        self.program.wait_page("PlayerPage")
        for text in ("Cafe Linde", "Brunch on Sunday", *MENU[4]):
            self.program.wait_text(text)
        time.sleep(1.5)
        self.assert_like(Path(__file__).with_name("menuboard.png"))
        self.assertLess(self.actions, MOST_ACTIONS)
        self.assert_clean()

    def put(self, part, at):
        """Drops a part from the palette on the page."""
        self.drag("palette " + part, to=at)
        self.wait_selected(part)

    def put_text(self, at, text, color, size, x, y):
        self.put("BasicText", at)
        self.fill("value of color", color, None, size, None, x, y)
        self.key("Return")
        self.click("selectionRectangle", times=2)
        wait_for(lambda: (self.program.find("textInPlace") or {}).get("focus"), "the text to be written in")
        self.fill(None, text)
        self.key("Escape")

    def put_menu(self):
        self.fill("Find a part", "price")
        self.put("CartaMenu", (500, 350))
        self.fill("value of width", "1120", "520", "''")
        self.fill("value of x", "96", "290")
        self.key("Return")
        self.click("selectionRectangle", times=2)
        wait_for(lambda: (self.program.find("name 1") or {}).get("focus"), "the table of its entries")
        for column, texts in zip(("name", "price", "details"), zip(*MENU)):
            self.fill(f"{column} 1", *texts, onward="Return")
        self.key("Escape")
        wait_for(lambda: not self.program.find("name 1"), "the end of the table")
        self.click("price")
        self.key("ctrl+a")
        self.key("Delete")

    def fill(self, field, *texts, onward="Tab"):
        """Puts texts in place of those in a field, else in the one that has the keyboard, and in the next ones; None
        leaves one as it is."""
        if field:
            self.click(field)
        self.key("ctrl+a")
        for number, text in enumerate(texts):
            if number:
                self.key(onward)
            if text is not None:
                self.type(text)

    # What is done is counted

    def click(self, *arguments, **options):
        self.actions += 1
        super().click(*arguments, **options)

    def drag(self, *arguments, **options):
        self.actions += 1
        super().drag(*arguments, **options)

    def key(self, key):
        self.actions += 1
        self.program.key(key)

    def type(self, text):
        self.actions += 1
        self.program.type(text)

    # What is seen

    def assert_like(self, picture):
        """The screen is like a picture but for what fonts may differ in."""
        grabbed = self.profile.folder / "screen.png"
        subprocess.run(["import", "-display", self.screen.name, "-window", "root", "-resize", "640x", grabbed], check=True)
        found = subprocess.run(["compare", "-metric", "MAE", grabbed, picture, "null:"], capture_output=True, text=True)
        self.assertLess(float(found.stderr.split("(")[1].rstrip(")")), 0.01, found.stderr)

    def film(self):
        """Films the screen at four frames a second, where that is asked for."""
        target = os.environ.get("NUVEX_RECORDING")
        if not target:
            return
        camera = subprocess.Popen(["ffmpeg", "-loglevel", "error", "-y", "-f", "x11grab", "-framerate", "4", "-video_size", "1280x720",
                                   "-i", self.screen.name, "-crf", "30", "-pix_fmt", "yuv420p", target])
        self.addCleanup(camera.wait)
        self.addCleanup(camera.send_signal, signal.SIGINT)


if __name__ == "__main__":
    run_tests()
