#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The dashboard of the real program, with the cloud on this machine and players of a local network of its own."""
import argparse
import signal
import statistics
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.path[1:1] = [str(Path(__file__).resolve().parents[1] / folder) for folder in ("lan", "localcloud")]
# pylint: disable=wrong-import-position
from cloud import Cloud
from driver import Profile, Program, ProgramTest, Screen, read_setup, wait_for
from peer import Peer
from players import Player, isolate, write_project

ACCOUNT = {"userEmail": "a.b@example.org", "playerUID": "zone_1", "shareFolder": "false", "doOnStart": "dashboard",
           "lastProject": "Shop"}
PLAYERS = "/Users/ab@exampleorg/Players"
SMALL = [0, 0, 640, 360]
PICTURE = ["convert", "-size", "300x170", "xc:#2040c0", "jpg:-"]


def link_up():
    """A link besides loopback, so that there is a network."""
    for words in ("add nuvex0 type veth peer name nuvex1", "set nuvex0 up", "set nuvex1 up"):
        subprocess.run(["ip", "link", *words.split()], check=True)


def three_players():
    now = int(time.time() * 1000)
    return {"lobby_10": {"heartbeat": now - 5_000, "project": "Board"},
            "hall_1764000360417": {"heartbeat": now - 170_000, "project": "A project with a name too long for a tile"},
            "hall_1764000000417": {"heartbeat": now - 7_200_000}}


def inside(inner, outer):
    return (outer[0] <= inner[0] and outer[1] <= inner[1] and inner[0] + inner[2] <= outer[0] + outer[2] + 1
            and inner[1] + inner[3] <= outer[1] + outer[3] + 1)


class DashboardTest(ProgramTest):
    local_cloud = None

    def setUp(self):
        super().setUp()
        self.cloud = Cloud(self.local_cloud)
        self.addCleanup(self.cloud.stop)
        self.profile.write_settings(**ACCOUNT)

    def open(self, screen=None):
        arguments = ("--deployment", str(self.cloud.folder / "deployment.json"))
        program = Program(self.setup, screen or self.screen, self.profile, *arguments)
        self.addCleanup(program.close)
        program.wait_page("ConnectedPlayers")
        return program

    def named(self, program, name):
        return [item for item in program.items() if item["name"] == name]

    def color_at(self, program, item, across=0.5):
        x, y, width, height = item["rect"]
        place = f"1x1+{round(x + width * across)}+{round(y + height / 2)}"
        grab = subprocess.run(["import", "-display", program.screen.name, "-window", "root", "-crop", place, "-depth",
                               "8", "rgb:-"], capture_output=True, check=True)
        return tuple(grab.stdout[:3])

    def is_blue(self, program, item):
        return all(abs(a - b) < 9 for a, b in zip(self.color_at(program, item), (0x20, 0x40, 0xC0)))

    def test_three_players(self):
        self.cloud.database("PUT", PLAYERS, three_players())
        picture = subprocess.run(PICTURE, capture_output=True, check=True).stdout
        self.cloud.put("NUVEX/users/a.b@example.org/screenshots/lobby_10.jpg", picture)
        for size in ("1280x720", "1080x1920"):
            screen = Screen(size)
            self.addCleanup(screen.close)
            with self.subTest(size), self.open(screen) as program:
                for name, texts in (("playerTile", ["Player 00417", "Player 60417", "lobby"]),
                                    ("playerHost", ["hall", "hall"]), ("age", ["2h", "3m"])):
                    self.wait_same(lambda: [item["text"] for item in self.named(program, name)][:len(texts)], texts)
                self.wait_same(lambda: [self.color_at(program, dot) for dot in self.named(program, "liveDot")[:3]],
                               [(255, 0, 0), (0x2D, 0xB6, 0x51), (0x2D, 0xB6, 0x51)])
                wait_for(lambda: self.named(program, "screenshot"), "the screenshot")
                wait_for(lambda: self.is_blue(program, self.named(program, "screenshot")[0]), "its colour")
                self.check_geometry(program, [0, 0, *map(int, size.split("x"))])

    def wait_same(self, read, expected):
        """What is known may not be shown yet: waits for what is."""
        wait_for(lambda: read() == expected, lambda: f"{expected}, not {read()}")

    def check_geometry(self, program, screen):
        self.wait_same(lambda: self.misplaced(program, screen), [])

    def misplaced(self, program, screen):
        """What is not where it belongs, each with the room that it should be in."""
        items = program.items()
        tiles = [item for item in items if item["name"] == "playerTile"]
        local = next(item["rect"] for item in items if item["name"] == "localPlayers")
        pairs = [(item, screen) for item in items]
        pairs += [(tile, [*screen[:3], local[1]]) for tile in tiles]
        for label in ("playerName", "playerHost", "playerProject", "age", "liveDot"):
            pairs += zip([item for item in items if item["name"] == label], [tile["rect"] for tile in tiles])
        return [pair for pair in pairs if not inside(pair[0]["rect"], pair[1])]

    def test_work_with_a_player(self):
        self.cloud.database("PUT", PLAYERS, three_players())
        for project in ("Menu Board", "Shop"):
            self.cloud.put(f"NUVEX/users/a.b@example.org/ShareFolder/{project}/dirmap", b"main.qml 1\n")
        program = self.open()
        program.click("lobby")
        program.wait_text("Menu Board")
        program.type("menu")
        program.key("Return")
        program.wait_text("success")
        self.assertEqual(self.cloud.database("GET", PLAYERS + "/lobby_10/project").body, "Menu Board")
        program.key("Left", "Delete")
        program.wait_text("Delete Player 60417 of hall?")
        program.key("Return")
        wait_for(lambda: not program.find("Delete Player 60417 of hall?"), "the question to go")
        self.assertEqual(len(self.cloud.database("GET", PLAYERS).body), 4)  # and this one
        program.key("Delete")
        program.click("Delete")
        wait_for(lambda: not program.find("Player 60417"), "the tile to go")
        self.assertNotIn("hall_1764000360417", self.cloud.database("GET", PLAYERS).body)
        self.cloud.faults({"method": "DELETE", "status": 500})
        program.click("Delete hall")  # which is the only one of that name now
        program.click("Delete")
        program.wait_text("error")
        self.assertIn("hall", program.texts())
        program.click("playerFilter")
        program.type("board lob")
        self.wait_same(lambda: [tile["text"] for tile in self.named(program, "playerTile")], ["lobby"])
        program.wait_text("All 1")

    def test_picture_follows_the_project(self):
        """Assigns the project that this program has to itself: it is asked for a screenshot and sends one."""
        self.cloud.database("PUT", PLAYERS, {"zone_1": {"heartbeat": int(time.time() * 1000), "project": "Board"}})
        self.cloud.put("NUVEX/users/a.b@example.org/ShareFolder/Shop/dirmap", b"main.qml 1\n")
        picture = subprocess.run(PICTURE, capture_output=True, check=True).stdout
        place = "NUVEX/users/a.b@example.org/screenshots/zone_1.jpg"
        self.cloud.put(place, picture)
        program = self.open()
        program.wait_text("zone")
        self.assertFalse(self.named(program, "oldPicture"))
        program.click("zone")
        program.wait_text("Shop")
        program.key("Return")
        wait_for(lambda: self.named(program, "oldPicture"), "the mark")
        wait_for(lambda: not self.named(program, "oldPicture"), "the new picture")
        shot = wait_for(lambda: self.named(program, "screenshot"), "the screenshot")[0]
        self.assertNotEqual(self.cloud.get(place).body, picture)
        wait_for(lambda: not self.is_blue(program, shot), "its colour")
        self.cloud.database("PUT", PLAYERS + "/zone_1/revision", 2)
        program.key("F5")
        wait_for(lambda: self.named(program, "oldPicture"), "the mark of another revision")

    def test_states(self):
        program = self.open()
        program.wait_text("No player yet")
        program.close()
        self.cloud.faults({"method": "GET", "target": "*Players.json*", "status": 503})
        program = self.open()
        program.wait_text("The players could not be read")
        self.cloud.database("PUT", PLAYERS, three_players())
        program.click("Read again")
        program.wait_text("lobby")
        program.close()
        self.profile.write_settings(**{**ACCOUNT, "userEmail": ""})
        program = Program(self.setup, self.screen, self.profile, "--deployment",
                          str(self.cloud.folder / "deployment.json"))
        self.addCleanup(program.close)
        program.wait_page("LoginPage")
        program.key("Escape")
        program.wait_page("MainPage")
        program.click("Dashboard")
        program.wait_text("Nobody is signed in")
        program.click("Sign in")
        program.wait_page("LoginPage")

    def kiosk(self, program):
        """A player in a process of its own, with the same project, that has connected to the program."""
        files = {"main.qml": b"import QtQuick 2.15\nItem {}\n", "text": b"from here"}
        kiosk = self.enterContext(Player("Kiosk_7"))
        for work in (self.profile.work, kiosk.work):
            write_project(work / "Shop", files)
        kiosk.say(f"connect 127.0.0.1 {wait_for(program.local_port, 'the local server')}")
        program.wait_text("Kiosk_7")
        program.wait_text("127.0.0.1")
        return kiosk

    def outcome(self, program, part):
        wait_for(lambda: any(part in item["text"] for item in self.named(program, "exchangeOutcome")),
                 lambda: f"'{part}' in {program.texts()}")

    def test_local_players(self):
        program = self.open()
        kiosk = self.kiosk(program)
        write_project(kiosk.work / "Menu", {"text": b"from there"})
        (kiosk.work / "Shop/dirmap").unlink()
        with Peer.connect(program.local_port(), "Kiosk_7", "127.0.0.2") as second:
            second.ask("none")  # the answer comes after the name was taken
            self.assertEqual(len(self.named(program, "localPlayer")), 1)
        program.click("Send")
        program.wait_text("Send which project")
        program.key("Return")
        self.outcome(program, "2 files sent to Kiosk_7.")
        program.click("Fetch")
        program.wait_text("Fetch which project")
        program.type("Menu")
        program.key("Down", "Return")
        self.outcome(program, "One file fetched from Kiosk_7.")
        self.assertEqual((self.profile.work / "Menu/text").read_bytes(), b"from there")
        kiosk.quit()
        wait_for(lambda: not self.named(program, "localPlayer"), "the player to go")

    def test_connect_by_keyboard_on_a_small_screen(self):
        """Connects to players that do not answer, that do, and that leave."""
        program = self.open(self.small_screen())
        kiosk = self.kiosk(program)
        kiosk.process.send_signal(signal.SIGSTOP)
        program.tab_to("Connect")
        program.key("Return")
        program.wait_text("no answer yet")
        wait_for(lambda: program.find("Cancel")["focus"], "the keyboard to be where one can cancel")
        self.check_geometry(program, SMALL)
        program.key("Return")
        self.outcome(program, ": cancelled.")
        kiosk.process.send_signal(signal.SIGCONT)
        program.tab_to("Connect")
        program.key("Return")
        self.outcome(program, "Kiosk_7 and this player have the same revisions.")
        kiosk.quit()
        with Peer.connect(program.local_port(), "Shut_8") as leaving:
            program.wait_text("Shut_8")
            program.tab_to("Connect")
            program.key("Return")
            while leaving.read()[0] != b"GFILE":
                pass
        self.outcome(program, ": the connection has ended.")

    def small_screen(self):
        screen = Screen("x".join(map(str, SMALL[2:])))
        self.addCleanup(screen.close)
        return screen

    def test_keyboard_reaches_everything_on_a_small_screen(self):
        self.cloud.database("PUT", PLAYERS, three_players())
        program = self.open(self.small_screen())
        program.wait_text("lobby")
        self.kiosk(program)
        for label in ("Send", "Fetch", "Connect", "Back", "Read the players again", "playerFilter", "playerOrder",
                      "tileSize", "playerTile"):
            program.tab_to(label)
            self.wait_same(lambda: self.focused_out_of_sight(program), [])
        program.click("playerFilter")
        program.tab_to("playerTile")
        program.key("Right")
        wait_for(lambda: self.framed(program) == ["Player 60417"], lambda: f"its frame, not {self.framed(program)}")

    def focused_out_of_sight(self, program):
        bottom = self.named(program, "localPlayers")[0]["rect"][1]
        return [item for item in program.items() if item["focus"] and not inside(
            item["rect"], [*SMALL[:3], bottom] if item["name"] == "playerTile" else SMALL)]

    def framed(self, program):
        """The tiles that look unlike most others at their left edges."""
        tiles = self.named(program, "playerTile")
        colors = [self.color_at(program, tile, 0.007) for tile in tiles]
        return [tile["text"] for tile, color in zip(tiles, colors) if color != statistics.mode(colors)]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--localcloud", required=True)
    parser.add_argument("--lanplayer", required=True)
    known, sys.argv[1:] = parser.parse_known_args()
    DashboardTest.local_cloud, Player.program = known.localcloud, known.lanplayer
    ProgramTest.setup, rest = read_setup()
    if not isolate():
        sys.exit("no network of its own")
    link_up()
    ProgramTest.screen = Screen()
    try:
        unittest.main(argv=[sys.argv[0], *rest])
    finally:
        ProgramTest.screen.close()


if __name__ == "__main__":
    main()
