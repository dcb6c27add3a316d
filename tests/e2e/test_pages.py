# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Every button of every page, by mouse and by keyboard, in the real program."""

import re
import subprocess
import zipfile

from driver import Program, ProgramTest, Screen, run_tests, wait_for

ACCOUNT = {"userEmail": "ann@example.org", "playerUID": "west_12", "doOnStart": "", "lastProject": "Shop"}

# How to get from the main page to a page.
WAYS = {
    "MainPage": [],
    "menu": ["fa-cog"],
    "ProjectsPage": ["Open"],
    "SettingsPage": ["fa-cog", "Settings"],
    "AboutPage": ["fa-cog", "About"],
    "HelpPage": ["fa-cog", "About", "Help"],
    "ConnectedPlayers": ["Dashboard"],
    "AdvancedEditPage": ["fa-cog", "Advanced Editor"],
}

# Page, its buttons, and the page that each leads to.
LEADS = [
    ("MainPage", {"Open": "ProjectsPage", "Edit": "RADEditorPage", "Dashboard": "ConnectedPlayers"}),
    ("menu", {"Settings": "SettingsPage", "Advanced Editor": "AdvancedEditPage", "About": "AboutPage"}),
    ("ProjectsPage", {"Back": "MainPage", "New": "NewProjectPage", "Shop": "MainPage"}),
    ("SettingsPage", {"Back": "MainPage"}),
    ("AboutPage", {"Back": "MainPage", "Help": "HelpPage"}),
    ("HelpPage", {"Back": "AboutPage", "Go back": "AboutPage"}),
    ("ConnectedPlayers", {"Back": "MainPage"}),
    ("AdvancedEditPage", {"Back": "MainPage", "main.qml": "TextEditor"}),
]

# Buttons whose effect is another one; each is pressed in a test of its own below.
OTHERS = {
    "MainPage": {"Menu"},
    "menu": {"fa-cog", "Open", "Edit", "Dashboard"},  # those of the page beneath
    "ProjectsPage": {"Delete Shop"},
    "SettingsPage": {"Logout", "runAtStartup", "None", "Cloud", "Play", "Edit", "Dash", "Main", "save"},
    "AboutPage": {"Web Site"},
}


class PagesTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.profile.write_settings(**ACCOUNT)
        self.profile.add_project("Shop")

    def go_to(self, program, page):
        while program.page() != "MainPage":
            before = program.page()
            program.key("Escape")
            wait_for(lambda: program.page() != before, f"the way out of {before}")
        if program.find("Advanced Editor"):
            program.key("Escape")
            wait_for(lambda: not program.find("Advanced Editor"), "the menu to close")
        for step in WAYS[page]:
            program.click(step)
        if page == "menu":
            program.wait_text("Advanced Editor")
        else:
            program.wait_page(page)

    def assert_clean(self, program):
        """Nothing in the log but what the shell says about its pages."""
        told = [line for line in program.log().splitlines()
                if not line.startswith("nuvex.") and not line.startswith("ALSA")]
        self.assertEqual(told, [])

    def test_buttons_lead_to_pages(self):
        program = self.start()
        for page, leads in LEADS:
            self.go_to(program, page)
            self.assertEqual(set(program.buttons()), set(leads) | OTHERS.get(page, set()), page)
            program.screen.do("mousemove", 1, 719)
            for by_keyboard in (False, True):
                for button, target in leads.items():
                    with self.subTest(page=page, button=button, by_keyboard=by_keyboard):
                        self.go_to(program, page)
                        program.press(button, by_keyboard)
                        program.wait_page(target)
                        if page == "menu":
                            program.key("Escape")
                            program.wait_page("MainPage")
                            self.assertIsNone(program.find("Advanced Editor"))
        self.assert_clean(program)

    def test_menu_opens_and_closes(self):
        program = self.start()
        for open_menu in (lambda: program.click("fa-cog"), lambda: program.press("fa-cog", by_keyboard=True)):
            open_menu()
            program.wait_text("Advanced Editor")
            program.key("Escape")
            wait_for(lambda: not program.find("Advanced Editor"), "the menu to close")
            self.assertEqual(program.page(), "MainPage")
        program.click("fa-cog")
        program.wait_text("Advanced Editor")
        program.screen.do("mousemove", 100, 600, "click", 1)  # beside it
        wait_for(lambda: not program.find("Advanced Editor"), "the menu to close")

    def test_arrow_keys_walk_the_tiles(self):
        program = self.start()
        program.tab_to("Open")
        program.key("Right", "Right")
        wait_for(lambda: program.find("Dashboard")["focus"], "the focus on Dashboard")
        program.key("Left", "Return")
        program.wait_page("RADEditorPage")
        self.assertTrue((self.profile.work / "Shop/editor05.qml").exists())

    def test_first_start_leads_on(self):
        self.profile.write_settings()
        program = self.start()
        program.wait_page("LoginPage")
        self.assertEqual(set(program.buttons()), {"Back", "Continue without an account"})
        program.wait_text("No cloud is set up")
        program.press("Continue without an account", by_keyboard=True)
        program.wait_page("MainPage")
        program.wait_text("No Open Project")
        program.click("Edit")
        program.wait_text("No project is open.")
        program.click("Open")
        program.wait_page("ProjectsPage")
        self.assert_clean(program)

    def test_escape_quits_from_the_main_page(self):
        program = self.start()
        program.key("Escape")
        self.assertEqual(program.process.wait(10), 0)

    def test_keys_of_the_main_page(self):
        program = self.start()
        program.key("F1")
        program.wait_page("HelpPage")
        program.wait_text("Wellcome to Nuvex")
        program.key("Escape")
        program.wait_page("MainPage")
        program.key("ctrl+e")
        program.wait_page("ZipGeneratorPage")

    def test_web_site(self):
        program = self.start()
        for by_keyboard in (False, True):
            self.go_to(program, "AboutPage")
            program.opened_links.unlink(missing_ok=True)
            program.press("Web Site", by_keyboard)
            wait_for(program.opened_links.exists, "the web site")
        program.wait_text("App version: 118")

    def test_projects_page(self):
        for name in ("Bakery", "Café Zoë", "Museum"):
            self.profile.add_project(name)
        program = self.start()
        self.go_to(program, "ProjectsPage")
        self.assertEqual([t for t in program.buttons() if t in ("Bakery", "Café Zoë", "Museum", "Shop")],
                         ["Bakery", "Café Zoë", "Museum", "Shop"])
        for tab, text in (("Store", "The store's ready-made projects need a cloud."), ("Cloud", "No cloud is set up")):
            program.click(tab)
            program.wait_text(text)
        program.key("Left", "Left")  # the tabs by keyboard
        program.wait_text("Bakery")

        program.tab_to("Bakery")
        program.key("Down", "Return")
        program.wait_page("MainPage")
        wait_for(lambda: self.profile.setting("lastProject") == "Café Zoë", "the chosen project")
        program.wait_text("Working on: <b>Café Zoë</b>")

        self.go_to(program, "ProjectsPage")
        program.click("Delete Museum")
        program.wait_text("Delete Museum?")
        program.key("Return")  # at first the button that does no harm has the keyboard
        wait_for(lambda: not program.find("Keep"), "the question's end")
        self.assertTrue((self.profile.work / "Museum").exists())
        program.click("Delete Museum")
        program.click("Delete")
        wait_for(lambda: not (self.profile.work / "Museum").exists(), "the project's end")
        program.tab_to("Bakery")
        program.key("Down")  # each row's button is reached from its row
        program.press("Delete Café Zoë", by_keyboard=True)
        program.click("Delete")
        wait_for(lambda: not (self.profile.work / "Café Zoë").exists(), "the project's end")
        self.assertEqual(self.profile.setting("lastProject"), "")
        program.key("Up", "Up")  # the list keeps the keyboard
        wait_for(lambda: program.find("Bakery")["focus"], "the focus on Bakery")
        program.key("Delete")
        program.click("Delete")
        wait_for(lambda: not (self.profile.work / "Bakery").exists(), "the project's end")
        self.assertEqual(sorted(p.name for p in self.profile.work.iterdir()), ["Shop"])
        self.assert_clean(program)

    def make_archive(self, name, files):
        with zipfile.ZipFile(self.profile.work / "Shop" / name, "w") as archive:
            for file, text in files.items():
                archive.writestr(file, text)

    def import_archive(self, program, name):
        """Chooses it in the browser, which begins at the current project."""
        self.go_to(program, "ProjectsPage")
        program.key("ctrl+i")
        program.wait_page("ImportPage")
        program.wait_text(name)
        program.click(name)
        program.click("Open")
        program.wait_page("ProjectsPage")

    def test_import(self):
        self.profile.write_settings(**{**ACCOUNT, "lastProject": "100%20 #1?"})
        (self.profile.work / "Shop").rename(self.profile.work / "100%20 #1?")
        (self.profile.work / "Shop").symlink_to("100%20 #1?")
        self.make_archive("m #1 50%20?.zip", {"Museum/": "", "Museum/main.qml": "new"})
        self.make_archive("broken.zip", {"Broken/a": "x", "Broken/A": "x"})
        program = self.start()
        document = self.profile.work / "Museum/main.qml"
        self.import_archive(program, "m #1 50%20?.zip")
        program.wait_text("Museum")
        document.write_text("old")
        self.import_archive(program, "m #1 50%20?.zip")  # again: it is listed once
        wait_for(lambda: document.read_text() == "new", "the second import")
        self.import_archive(program, "broken.zip")
        program.wait_text("broken.zip could not be imported: a name occurs twice: Broken/A.")
        self.assertEqual(program.buttons().count("Museum"), 1)
        self.assertNotIn("Broken", program.buttons())
        program.click("Close")
        wait_for(lambda: not program.find("importNotice"), "the message to close")
        program.key("ctrl+i")
        program.wait_page("ImportPage")
        program.key("Escape")
        program.wait_page("ProjectsPage")

    def test_still_of_an_import(self):
        self.profile.write_settings(**{**ACCOUNT, "lastProject": "Shop"})
        program = self.start()
        still = self.profile.work.parent / "Stills/Museum.jpg"
        for color in ("#0000FF", "#FF0000"):
            self.make_archive("museum.zip", {
                "Museum/main.qml": "import QtQuick 2.15\nGround { width: 400; height: 300 }",
                "Museum/Ground.qml": f"import QtQuick 2.15\nRectangle {{ color: '{color}' }}"})
            self.import_archive(program, "museum.zip")
            wait_for(lambda: still.exists() and self.middle_of(still)[1] == color[1], "the project's still")

    @staticmethod
    def middle_of(picture):
        """The colour in the middle of a picture, as "#RRGGBB"."""
        found = subprocess.run(["convert", picture, "-gravity", "center", "-crop", "1x1+0+0", "-depth", "8", "txt:-"],
                               capture_output=True, text=True, check=True).stdout
        return re.search(r"#[0-9A-F]{6}", found)[0]

    def test_import_can_be_stopped(self):
        self.make_archive("large.zip", {f"Shop/{number}.txt": "x" for number in range(1000)})
        for way in ("cancel", "quit"):
            program = self.start_with_killpoint(pause=50)  # the import would take longer than any test waits
            self.import_archive(program, "large.zip")
            program.wait_text("Importing large.zip")
            wait_for(lambda: program.find("1 %"), "progress")
            if way == "cancel":
                program.press("Cancel", by_keyboard=True)
                wait_for(lambda: not program.find("Cancel"), "the import to stop")
                self.assertIn("Shop", program.texts())
            program.key("Escape")
            program.wait_page("MainPage")
            program.key("Escape")
            self.assertEqual(program.process.wait(20), 0)
            self.assertEqual(len(list((self.profile.work / "Shop").iterdir())), 2)
            with self.start():
                wait_for(lambda: [path.name for path in self.profile.work.iterdir()] == ["Shop"], "the tidying up")

    def test_last_project_goes(self):
        program = self.start()
        self.go_to(program, "ProjectsPage")
        program.click("Delete Shop")
        program.click("Delete")
        program.wait_text("There is no project on this computer")  # and not another tab
        program.key("Escape")
        program.wait_page("MainPage")
        program.click("Open")
        program.wait_text("The store's ready-made projects need a cloud.")

    def export(self, program, target, by_keyboard=False):
        program.key("ctrl+e")
        program.wait_page("ZipGeneratorPage")
        program.tab_to("path")
        program.key("ctrl+a")
        program.type(str(target))
        program.press("Export", by_keyboard)

    def test_export(self):
        program = self.start()
        for by_keyboard in (False, True):
            target = self.profile.folder / "out.zip"
            self.export(program, target, by_keyboard)
            program.wait_text(f"Saved as {target}")
            self.assertEqual(zipfile.ZipFile(target).namelist(), ["main.qml"])
            target.write_text("older")
            program.key("Escape")
            program.wait_page("MainPage")
        self.export(program, "/proc/nowhere/out.zip")
        program.wait_text("/proc/nowhere/out.zip could not be written: No such file or directory.")
        self.assert_clean(program)

    def test_export_can_be_stopped(self):
        (self.profile.work / "Shop/noise.mp4").write_bytes(bytes(range(256)) * 100_000)
        program = self.start_with_killpoint(pause=100)
        target = self.profile.work / "out.zip"
        target.write_text("older")
        for way in ("Return", "Escape"):  # the button, and leaving the page
            self.export(program, target)
            wait_for(lambda: program.find("1 %"), "progress")
            program.key(way)
            wait_for(lambda: not list(self.profile.work.glob(".*")), "the export to stop")
            self.assertEqual(target.read_text(), "older")
            if way == "Return":
                program.key("Escape")
            program.wait_page("MainPage")

    def test_settings_choices(self):
        program = self.start()
        self.go_to(program, "SettingsPage")
        program.click("None")
        wait_for(lambda: self.profile.setting("shareFolder") == "false", "sharing off")
        program.tab_to("None")
        program.key("Right")
        wait_for(lambda: self.profile.setting("shareFolder") == "true", "sharing on")
        program.click("runAtStartup")
        wait_for(lambda: program.find("runAtStartup")["focus"], "the press")
        self.assertFalse(program.find("runAtStartup")["checked"])
        program.key("space")
        self.assertFalse(program.find("runAtStartup")["checked"])
        program.click("Dash")
        wait_for(lambda: program.find("Dash")["checked"], "the choice")
        program.key("Escape")
        program.wait_page("MainPage")
        self.assertEqual(self.profile.setting("doOnStart"), "")  # only stored by the save button
        self.assert_clean(program)

    def test_settings_on_a_small_screen(self):
        screen = Screen("640x360")
        self.addCleanup(screen.close)
        program = Program(self.setup, screen, self.profile)
        self.addCleanup(program.close)
        self.go_to(program, "SettingsPage")
        for label in ("Logout", "hostName", "save"):
            program.tab_to(label)
            _, y, _, height = program.find(label)["rect"]
            self.assertTrue(y >= 56 and y + height <= 360, f"{label} at {y}")

    def test_wall_without_a_cloud_starts_by_itself(self):
        self.profile.write_settings(**{**ACCOUNT, "userEmail": "", "doOnStart": "play"})
        deployment = self.profile.folder / "deployment.json"
        deployment.write_text("{")
        program = self.start("--deployment", str(deployment))
        program.wait_page("LoginPage")
        program.wait_text("The deployment file is not used")
        program.wait_text(f"{deployment}: ")
        program.wait_text("Its start screen opens in a few seconds.")
        program.wait_page("PlayerPage")
        program.close()
        program = self.start()
        program.wait_page("LoginPage")
        program.key("Return")
        program.wait_page("PlayerPage")
        self.assertIn("page MainPage", program.log())
        self.assert_clean(program)

    def test_sharing_needs_an_account(self):
        self.profile.write_settings(**{**ACCOUNT, "userEmail": "", "shareFolder": "false"})
        program = self.start()
        program.wait_page("LoginPage")
        self.go_to(program, "SettingsPage")
        program.click("Cloud")
        program.wait_text("The cloud needs an account. Log in first.")
        self.assertFalse(program.find("Cloud")["checked"])
        wait_for(lambda: self.profile.setting("shareFolder") == "true", "the setting, stored all the same")

    def test_save_renames_and_restarts(self):
        program = self.start()
        for start_screen, value, name, host, by_keyboard in (("Main", "", "Bistro", "east", False),
                                                             ("Edit", "edit", "Deli", "north-2", True)):
            self.go_to(program, "SettingsPage")
            pid = program.tree()["pid"]
            program.click(start_screen)
            for field, text in (("projectName", name), ("hostName", host)):
                program.tab_to(field)
                program.key("ctrl+a")
                program.type(text)
                wait_for(lambda: program.find(field)["text"] == text, f"{text} in {field}")
            program.press("save", by_keyboard)
            program.wait_restarted(pid)
            self.assertEqual(self.profile.setting("doOnStart"), value)
            self.assertEqual(self.profile.setting("playerUID"), host + "_12")
            self.assertTrue((self.profile.work / name / "main.qml").exists())
        program.wait_page("RADEditorPage")
        self.assertEqual([p.name for p in self.profile.work.iterdir()], ["Deli"])

    def test_save_refuses_a_bad_host_name(self):
        program = self.start()
        self.go_to(program, "SettingsPage")
        for host in ("Office/1", "[A]", "#", "$", ".", " "):
            program.tab_to("hostName")
            program.key("ctrl+a", "Delete")
            program.type(host)
            program.click("save")
            program.wait_text("A host name needs a letter or digit")
            self.assertEqual(program.page(), "SettingsPage")
        self.assertEqual(self.profile.setting("playerUID"), "west_12")

    def test_save_refuses_a_bad_project_name(self):
        program = self.start()
        self.go_to(program, "SettingsPage")
        for name in ("../Shop", "..", ""):
            program.tab_to("projectName")
            program.key("ctrl+a", "Delete")
            program.type(name)
            program.tab_to("hostName")
            program.key("ctrl+a", "Delete")  # without a host name it does not restart
            program.click("save")
            program.wait_page("MainPage")
            self.assertEqual(self.profile.setting("lastProject"), "Shop")
            self.assertTrue((self.profile.work / "Shop/main.qml").exists())
            self.go_to(program, "SettingsPage")

    def test_logout_restarts_at_the_login_page(self):
        program = self.start()
        self.go_to(program, "SettingsPage")
        pid = program.tree()["pid"]
        program.press("Logout", by_keyboard=True)
        program.wait_restarted(pid)
        program.wait_page("LoginPage")
        self.assertEqual(self.profile.setting("userEmail"), "")
        self.go_to(program, "SettingsPage")
        program.click("Login")
        program.wait_page("LoginPage")

    def test_wall_shows_nothing_of_the_machinery(self):
        self.profile.write_settings(**{**ACCOUNT, "doOnStart": "play"})
        program = self.start()
        program.wait_page("PlayerPage")
        program.screen.do("mousemove", 640, 300)
        wait_for(lambda: program.tree()["cursorHidden"], "the cursor to hide")
        self.assertEqual(program.buttons(), [])
        self.assertEqual(program.texts(), [])
        program.key("Escape")
        program.wait_page("MainPage")
        wait_for(lambda: not program.tree()["cursorHidden"], "the cursor to come back")
        self.assert_clean(program)


if __name__ == "__main__":
    run_tests()
