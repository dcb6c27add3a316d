# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Two real programs and the cloud on this machine: what is published in one is seen in the other."""

import io
import subprocess
import sys
import time
import zipfile
from pathlib import Path

from driver import Profile, Program, ProgramTest, Screen, run_tests, wait_for

sys.path.append(str(Path(__file__).resolve().parents[1] / "localcloud"))
from cloud import Cloud  # noqa: E402

EMAIL, PASSWORD = "ann.b@example.org", "secret word"
USER = "Users/annb@exampleorg"
TEAL, ORANGE, PURPLE, NAVY = (0, 128, 128), (255, 165, 0), (128, 0, 128), (0, 0, 128)


def colour_at(screen, x, y):
    command = ["import", "-display", screen.name, "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"]
    return tuple(subprocess.run(command, capture_output=True, check=True).stdout)


class CloudTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.cloud = Cloud(self.setup.localcloud)
        self.addCleanup(self.cloud.stop)
        self.began = time.monotonic()

    def tell(self, text):
        print(f"{time.monotonic() - self.began:6.2f} s  {text}", flush=True)

    def run_program(self, screen, profile):
        program = Program(self.setup, screen, profile, "--deployment", str(self.cloud.folder / "deployment.json"))
        self.addCleanup(program.close)
        return program

    def database(self, place, value=None):
        return self.cloud.database("GET" if value is None else "PUT", f"/{USER}/{place}", value).body

    def start_player(self):
        profile = Profile()
        self.addCleanup(profile.remove)
        self.play(profile)
        screen = Screen()
        self.addCleanup(screen.close)
        return self.run_program(screen, profile)

    def play(self, profile):
        profile.write_settings(userEmail=EMAIL, playerUID="wall_1", doOnStart="play", lastProject="Shop",
                               shareFolder="true")

    def write(self, project, colour, revision):
        """Saves a project's document as an editor does, which counts its revision up."""
        folder = self.profile.work / project
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "main.qml").write_text(f"import QtQuick 2.15\nRectangle {{ color: '{colour}' }}\n", "utf-8")
        (folder / "dirmap").write_text(f"main.qml {revision}\n", "utf-8")

    def publish(self, editor, project, revision):
        editor.click("Publish " + project)
        editor.wait_text(f"{project} is published, as revision {revision}.")
        self.tell(f"{project} published as revision {revision}")

    def wait_colour(self, program, colour):
        began = time.monotonic()
        wait_for(lambda: colour_at(program.screen, 640, 360) == colour,
                 lambda: f"{colour}, not {colour_at(program.screen, 640, 360)}; log:\n{program.log()}")
        self.tell(f"the player shows {colour}, {time.monotonic() - began:.2f} s later")

    def enter(self, program, field, text):
        program.tab_to(field)
        program.key("ctrl+a")
        program.type(text)

    def sign_up(self, editor):
        editor.wait_page("LoginPage")
        for password, button, words in ((PASSWORD, "Login", "There is no account with this e-mail."),
                                        ("short", "Sign Up", "at least six characters")):
            self.enter(editor, "email", EMAIL)
            self.enter(editor, "password", password)
            editor.press(button, by_keyboard=True)
            editor.wait_text(words)
            wait_for(lambda: editor.find("password")["focus"], "the keyboard back in the form")
        self.enter(editor, "password", PASSWORD)
        pid = editor.tree()["pid"]
        editor.tab_to("Sign Up")
        editor.key("Return")
        editor.wait_restarted(pid)
        editor.wait_page("MainPage")
        self.assertEqual(self.profile.setting("userEmail"), EMAIL)
        self.assertNotIn(PASSWORD, editor.log() + self.profile.config.read_text())
        self.tell("signed up")

    def test_two_programs(self):
        self.write("Shop", "teal", 1)
        self.write("Cafe", "purple", 1)
        editor = self.run_program(self.screen, self.profile)
        self.sign_up(editor)
        editor.click("Open")
        editor.wait_page("ProjectsPage")
        self.publish(editor, "Shop", 0)

        player = self.start_player()
        self.wait_colour(player, TEAL)
        wait_for(lambda: colour_at(player.screen, 1270, 10) == (255, 255, 255), "the dot of a good connection")
        wait_for(lambda: (self.database("Players/wall_1") or {}).get("heartbeat"), "the heartbeat")
        wait_for(lambda: self.cloud.get(f"NUVEX/users/{EMAIL}/screenshots/wall_1.jpg").body[:2] == b"\xff\xd8",
                 "the picture of what the player shows")
        self.write("Shop", "orange", 2)
        self.publish(editor, "Shop", 1)
        self.wait_colour(player, ORANGE)
        wait_for(lambda: self.database("Players/wall_1/revision") == "1", "what the player tells of its revision")

        self.database("Players/wall_1/command", "CAPI.setSetting('greeting', 'hello')")
        wait_for(lambda: player.profile.setting("greeting") == "hello", "the command")
        wait_for(lambda: self.database("Players/wall_1/command") == "", "the command to be cleared")
        self.tell("the player has obeyed")

        self.publish(editor, "Cafe", 0)
        streams = self.cloud.counters()["openStreams"]
        self.database("Players/wall_1/project", "Cafe")
        self.wait_colour(player, PURPLE)
        wait_for(lambda: self.cloud.counters()["openStreams"] == streams,
                 "the old project's stream to end")
        self.write("Cafe", "navy", 2)
        self.publish(editor, "Cafe", 1)
        self.wait_colour(player, NAVY)
        self.assertEqual(player.profile.setting("lastProject"), "Cafe")

        self.look_at_the_cloud(editor)
        self.sign_out(editor)

    def project_in_the_cloud(self, project, colour, revision):
        place = f"NUVEX/users/{EMAIL}/ShareFolder/{project}/"
        self.cloud.put(place + "main.qml", f"import QtQuick 2.15\nRectangle {{ color: '{colour}' }}\n")
        self.cloud.put(place + "dirmap", f"main.qml {revision + 1}\n")
        self.database(f"Projects/{project.replace('.', '')}/revision", revision)

    def test_chosen_project(self):
        """A project that the account chooses: what plays goes on until it is there; chosen while the player was off. The
        database has its name without dots."""
        self.project_in_the_cloud("Shop", "teal", 0)
        self.project_in_the_cloud("Ca.fe", "purple", 0)
        player = self.start_player()
        self.wait_colour(player, TEAL)
        wait_for(lambda: self.database("Players/wall_1/project") == "Shop", "what the player tells of its project")
        self.cloud.ask("DELETE", "/_localcloud/streams")  # heard of all the same, long before the next heartbeat
        self.cloud.faults({"method": "GET", "target": "*Ca.fe%2Fmain.qml*", "delayMs": 3000})
        self.database("Players/wall_1/project", "Cafe")
        wait_for(lambda: "waits for" in player.log(), "the player to hear of it")
        end = time.monotonic() + 2.5
        while time.monotonic() < end:
            self.assertEqual(colour_at(player.screen, 640, 360), TEAL)
        self.wait_colour(player, PURPLE)
        self.assertEqual(player.profile.setting("lastProject"), "Ca.fe")

        player.close()
        self.database("Players/wall_1/project", "Shop")
        player = self.run_program(player.screen, player.profile)
        self.wait_colour(player, TEAL)
        self.assertEqual(self.database("Players/wall_1/project"), "Shop")

    def test_publisher_is_killed(self):
        """A publish that ends half-way: new players wait, and the publisher's next start ends it."""
        self.write("Shop", "teal", 1)
        for number in range(20):
            (self.profile.work / f"Shop/x{number}").write_text("one", "utf-8")
        self.profile.write_settings(userEmail=EMAIL, playerUID="desk_1", doOnStart="", lastProject="Shop")
        editor = self.run_program(self.screen, self.profile)
        editor.click("Open")
        self.publish(editor, "Shop", 0)
        self.write("Shop", "orange", 2)
        (self.profile.work / "Shop/dirmap").write_text("main.qml 2\n" + "".join(f"x{n} 2\n" for n in range(20)), "utf-8")
        self.cloud.faults({"method": "POST", "target": "*Shop%2Fx*", "skip": 8, "times": 99, "requestStallAfter": 1})
        editor.click("Publish Shop")
        wait_for(lambda: self.cloud.ask("GET", "/_localcloud/faults").body["left"] < 99, "the publish to be half-way")
        editor.close()
        self.cloud.faults()
        player = self.start_player()
        wait_for(lambda: "newer than its map" in player.log(), "the player to see what it is")
        self.run_program(self.screen, self.profile)
        self.wait_colour(player, ORANGE)
        wait_for(lambda: self.database("Projects/Shop/revision") == 1, "the revision")

    def look_at_the_cloud(self, editor):
        """The store, and the tab Cloud: its list, a project got back, and words when the cloud has gone."""
        archive = io.BytesIO()
        with zipfile.ZipFile(archive, "w") as file:
            file.writestr("Museum/main.qml", "import QtQuick 2.15\nItem {}\n")
        self.cloud.put("NUVEX/Demos/Museum.zip", archive.getvalue())
        editor.click("Store")
        editor.click("Museum")
        wait_for(lambda: editor.find("Delete Museum"), "the list of what is here, once it has come")
        mine = self.profile.work / "Museum/main.qml"
        mine.write_text("import QtQuick 2.15\nItem { x: 7 }\n", "utf-8")
        for answer, text in (("Keep", "x: 7"), ("Replace", "Item {}")):
            editor.click("Store")
            editor.click("Museum")
            editor.wait_text("Replace Museum?")
            editor.click(answer)
            wait_for(lambda: not editor.find("Replace Museum?"), "the question to go")
            wait_for(lambda text=text: text in mine.read_text("utf-8"), text)
        editor.click("Delete Museum")
        editor.click("Delete")
        wait_for(lambda: not (self.profile.work / "Museum").exists(), "the project to go again")
        editor.click("Delete Shop")
        editor.click("Delete")
        wait_for(lambda: not (self.profile.work / "Shop").exists(), "the project to go")
        editor.click("Cloud")
        wait_for(lambda: self.details(editor, "revision 1"), "the published revision")
        editor.click("Shop")
        editor.wait_text("Shop is on this computer now.")
        self.assertIn("orange", (self.profile.work / "Shop/main.qml").read_text())
        self.cloud.kill()
        editor.click("Cloud")
        editor.wait_text("No connection to the cloud")
        self.cloud.start()
        editor.click("Try again")
        wait_for(lambda: len(self.details(editor, "revision 1, which is here")) == 2, "both, as they are here")
        self.tell("got back from the cloud, and words while it was away")

    def details(self, program, end):
        """The second lines of rows that end so."""
        return [text for text in program.texts() if "  ·  " in text and text.endswith(end)]

    def sign_out(self, editor):
        editor.key("Escape")
        editor.wait_page("MainPage")
        editor.click("Menu")
        editor.click("Settings")
        editor.wait_page("SettingsPage")
        pid = editor.tree()["pid"]
        editor.click("Logout")
        editor.wait_restarted(pid)
        editor.wait_page("LoginPage")
        self.assertEqual(self.profile.setting("userEmail"), "")
        self.assertEqual(editor.find("email")["text"], EMAIL)  # remembered, the password is not
        self.tell("signed out")


if __name__ == "__main__":
    run_tests()
