#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Restarts on bare X servers, as a kiosk's: one starts anew when its last client leaves, the other ends.

NUVEX_RESTARTS sets how often; twenty times proves more than the three of every test run.
"""

import os
from contextlib import closing

from driver import ProgramTest, Screen, run_tests, wait_for

RESTARTS = int(os.environ.get("NUVEX_RESTARTS", "3"))
ACCOUNT = {"userEmail": "cafe@nuvex.example", "playerUID": "west_12", "lastProject": "Shop", "shareFolder": "false"}
RESTARTING = "import QtQuick 2.15\nRectangle { Timer { interval: 200; running: true; onTriggered: Qt.exit(1000) } }\n"


class RestartTest(ProgramTest):
    def on_each_screen(self, test):
        """Runs `test` with the program on a screen of each kind."""
        for options in ((), ("-terminate",)):
            with self.subTest(options=options), closing(Screen(options=options)) as self.screen, \
                    self.start() as program:
                test(program)

    def test_as_a_new_process(self):
        self.profile.write_settings(**ACCOUNT, doOnStart="")
        self.profile.add_project("Shop")
        self.on_each_screen(self.save_settings)

    def save_settings(self, program):
        for _ in range(RESTARTS):
            program.wait_page("MainPage")
            pid = program.tree()["pid"]
            program.click("fa-cog")
            program.click("Settings")
            program.wait_page("SettingsPage")
            program.click("save")
            program.wait_restarted(pid)

    def test_in_place(self):
        self.profile.write_settings(**ACCOUNT, doOnStart="play")
        self.profile.add_project("Shop", RESTARTING)
        self.on_each_screen(self.wait_for_restarts)

    def wait_for_restarts(self, program):
        pid = program.tree()["pid"]
        wait_for(lambda: program.log().count("page PlayerPage") > RESTARTS,
                 lambda: "restarts; log:\n" + program.log())
        wait_for(lambda: program.tree().get("pid") == pid, "the same process")


if __name__ == "__main__":
    run_tests()
