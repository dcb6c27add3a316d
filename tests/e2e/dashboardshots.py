# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The states of the dashboard for docs/screenshots, with a cloud on this machine and players of the local network."""
import subprocess
import time
from contextlib import ExitStack
from pathlib import Path

from cloud import Cloud
from driver import wait_for
from peer import Peer

ROOT = Path(__file__).resolve().parents[2]
PICTURES = ROOT / "docs/screenshots"
ACCOUNT = "NUVEX/users/ada@example.org"
DEMOS = sorted(folder.parent.name for folder in (ROOT / "demos").glob("*/main.qml"))
PLACES = ["Entrance", "Bakery", "Counter", "Window left", "Window right", "Lift", "Parking", "Lounge"]
FETCHED = {f"images/{number}.jpg": bytes(150_000) for number in range(40)}


def players(count):
    """An account's players: the demos on screens of a shop, two of them on one host, every seventh silent."""
    now = int(time.time() * 1000)
    return {f"{PLACES[i % 8]}{' ' + str(i // 8 + 1) if i > 8 else ''}_{1764000000000 + i * 7919}": {
        "heartbeat": now - (86_400_000 if i % 7 == 2 else 1000 * (i % 170)), "project": DEMOS[i % len(DEMOS)]}
            for i in range(count)}


def fill(cloud, count):
    pictures = {}
    for demo in DEMOS:
        shown = PICTURES / f"{demo.lower().replace(' ', '-')}-1280x720.jpg"
        smaller = subprocess.run(["convert", shown, "-resize", "300", "-"], capture_output=True, check=True)
        pictures[demo] = smaller.stdout
        cloud.put(f"{ACCOUNT}/ShareFolder/{demo}/dirmap", b"main.qml 1\n")
    cloud.database("PUT", "/Users/ada@exampleorg/Players", players(count))
    for player, entry in players(count).items():
        cloud.put(f"{ACCOUNT}/screenshots/{player}.jpg", pictures[entry["project"]])


class DashboardShots:
    """Takes pictures of the running program's dashboard by `take(name, suffix, wait)`."""

    def __init__(self, program, take):
        self.program = program
        self.take = take

    def overview(self, count):
        self.program.wait_page("ConnectedPlayers")
        with ExitStack() as stack:
            for i in range(min(count, 2)):
                stack.enter_context(self.peer(i))
            self.take(f"dashboard-{count}", "jpg" if count else "png", 4)
            if count == 60:
                self.states()
            if count == 1000:
                self.silent_and_small()

    def peer(self, number):
        port = wait_for(self.program.local_port, "the local server")
        return Peer.connect(port, f"Player_{1804289383 + number * 36527}", f"127.0.0.{1 + number}")

    def states(self):
        program = self.program
        program.click("Bakery")
        program.wait_text("What is Bakery to show?")
        self.take("dashboard-project", "jpg", 3)
        program.key("Escape")
        program.click("Delete Bakery")
        program.wait_text("Delete Bakery?")
        self.take("dashboard-delete", "jpg")
        program.key("Escape")
        program.click("playerFilter")
        program.type("lobby")
        self.take("dashboard-filter", "jpg", 2)

    def silent_and_small(self):
        """The longest silent ones first, in the smallest tiles."""
        self.program.tab_to("playerOrder")
        self.program.key("Down")
        self.program.tab_to("tileSize")
        self.program.key("Home")
        self.take("dashboard-1000-small", "jpg", 4)
        self.program.key("End")
        self.take("dashboard-1000-large", "jpg", 4)

    def exchange(self):
        """A project is fetched from a player that waits in the middle."""
        self.program.wait_page("ConnectedPlayers")
        with self.peer(0) as peer, self.peer(1):
            self.program.click("Fetch")
            self.program.wait_text("Fetch which project")
            self.take("dashboard-fetch", "jpg")
            self.program.type("Spring Window")
            self.program.key("Return")
            lines = "".join(f"{path} 1\n" for path in FETCHED).encode()
            answers = [lines, *FETCHED.values(), lines]
            for number, content in enumerate(answers):
                while peer.read()[0] != b"GFILE":
                    pass
                if number == 25:
                    self.take("dashboard-exchange", "jpg")
                peer.push("GFILE", content)
            self.program.wait_text("40 files fetched")
            self.take("dashboard-exchanged", "jpg")

    def unread(self):
        self.program.wait_text("could not be read")
        self.take("dashboard-unread", "png", 5)

    def signed_out(self):
        self.program.wait_page("LoginPage")
        self.program.key("Escape")
        self.program.wait_page("MainPage")
        self.program.click("Dashboard")
        self.program.wait_text("Nobody is signed in")
        self.take("dashboard-signed-out", "png")


def take_all(local_cloud, run, take, settings):
    """Runs the program by `run(steps, settings, arguments...)` in every state."""
    def show(state, cloud, **more):
        run(lambda program: state(DashboardShots(program, lambda *picture: take(program, *picture))),
            {**settings, "doOnStart": "dashboard", **more}, "--deployment", str(cloud.folder / "deployment.json"))

    for count in (0, 3, 60, 1000):
        with ExitStack() as stack:
            cloud = Cloud(local_cloud)
            stack.callback(cloud.stop)
            fill(cloud, count)
            show(lambda shots: shots.overview(count), cloud)
            if count == 3:
                show(DashboardShots.exchange, cloud)
                show(DashboardShots.signed_out, cloud, userEmail="")
                cloud.faults({"method": "GET", "target": "*Players.json*", "status": 503})
                show(DashboardShots.unread, cloud)
