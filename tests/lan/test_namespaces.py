#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Players find each other: in network namespaces at one bridge, where cables are pulled, and by floods of announcements.

test_namespaces.py --program LANPLAYER --nuvex NUVEX [--verbose] [TEST...]
"""
import argparse
import json
import os
import random
import socket
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import peer
from peer import Peer
from players import Player, contents, isolate, write_project

ANNOUNCEMENTS = 45000
ISOLATED = False
HERE = Path(__file__).resolve().parent
options = None


def note(text):
    """For the transcript."""
    if options.verbose:
        print(f"{time.strftime('%H:%M:%S')} {text}", flush=True)


def ip(*arguments):
    subprocess.run(["ip", *map(str, arguments)], check=True)


class Bridge:
    """Namespaces, each with an interface at one bridge: 10.77.0.1, 10.77.0.2 and so on."""

    def __init__(self, count):
        self.names = [f"nuvex{os.getpid()}-{number}" for number in range(1, count + 1)]

    def __enter__(self):
        ip("link", "add", "br0", "type", "bridge")
        ip("link", "set", "br0", "up")
        for number, name in enumerate(self.names, 1):
            ip("netns", "add", name)
            ip("link", "add", f"cable{number}", "type", "veth", "peer", "name", "eth0", "netns", name)
            ip("link", "set", f"cable{number}", "master", "br0", "up")
            ip("-n", name, "address", "add", f"10.77.0.{number}/24", "broadcast", "10.77.0.255", "dev", "eth0")
            for interface in ("lo", "eth0"):
                ip("-n", name, "link", "set", interface, "up")
        return self

    def __exit__(self, *_):
        for name in self.names:
            ip("netns", "del", name)
        ip("link", "del", "br0")

    def player(self, number, name, work=None):
        return Player(name, work, ["10.77.0.255"], ["ip", "netns", "exec", self.names[number - 1]])


@unittest.skipUnless(os.geteuid() == 0, "making network namespaces needs root")
class AtOneBridge(unittest.TestCase):
    def test_players_meet_exchange_and_lose_their_cable(self):
        with Bridge(3) as bridge, bridge.player(1, "A") as a, bridge.player(2, "B") as b, bridge.player(3, "C") as c:
            everyone = {player.name: player for player in (a, b, c)}
            for player in everyone.values():
                for other in set(everyone) - {player.name}:
                    player.wait("started " + other)
                    note(f"{player.name} has met {other}")
            time.sleep(5)  # further announcements, also the own ones, change nothing
            for player in everyone.values():
                player.say("players")
                self.assertEqual(set(player.wait("players").split()[1:]), set(everyone) - {player.name})
                self.assertFalse([line for line in player.lines if line.startswith("finished")])
            small = {f"{i}": random.Random(i).randbytes(i * 7) for i in range(200)}
            write_project(a.work / "Shop", small)
            for player, what, other in ((a, "send", "B"), (c, "fetch", "B")):
                began = time.monotonic()
                self.assertTrue(player.exchange(what, other)[0])
                note(f"{player.name} {what} {other}: 200 files below 1400 bytes in {time.monotonic() - began:.3f} s")
            self.assertEqual({**contents(c.work / "Shop")}, contents(a.work / "Shop"))
            write_project(a.work / "Big", {"f": b""})
            os.truncate(a.work / "Big/f", 8 << 30)
            for what, asker, other in (("send", a, "B"), ("fetch", b, "A"))[:2 if options.verbose else 1]:
                asker.say(f"{what} {other} Big")
                time.sleep(0.7)
                ip("link", "set", "cable2", "down")
                began = time.monotonic()
                note("the cable of B is pulled")
                self.assertRegex(asker.ended(30)[1], ": (it does not answer|the connection has ended)")
                a.wait("finished B", 30)
                note(f"A has noticed after {time.monotonic() - began:.1f} s")
                b.wait("finished A", 30)
                note(f"B has noticed after {time.monotonic() - began:.1f} s")
                c.wait("finished B", max(0.1, began + 30 - time.monotonic()))
                note("C, at rest, has noticed as well")
                self.assertLess(time.monotonic() - began, 30)
                self.assertFalse((b.work / "Big/f").exists())
                a.lines, b.lines = [], []
                ip("link", "set", "cable2", "up")
                a.wait("started B", 60)
                b.wait("started A", 60)
                note("the cable is back: A and B have met again")
            tries = (a.exchange("send", "B") for _ in range(3))  # a second connection may still have to be given up
            self.assertIn((True, "B and this player have the same revisions."), tries)


class Announcements(unittest.TestCase):
    def setUp(self):
        if not ISOLATED:
            self.skipTest("announcements need a network of their own, which needs root or user namespaces")

    @staticmethod
    def announce(datagram, source="127.0.0.1"):
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:
            sender.bind((source, 0))
            sender.sendto(datagram, ("127.0.0.1", ANNOUNCEMENTS))

    def test_flood(self):
        """A thousand datagrams a second, of any size, from many addresses: a real announcement is still heard."""
        with Player("A") as player, socket.create_server(("0.0.0.0", 0), backlog=500) as dead, \
                socket.create_server(("0.0.0.0", 0)) as living:
            generator, most = random.Random(1), 0
            for i in range(3000):
                size = generator.choice([0, 1, 1500, 1501, 65507, generator.randrange(65508)])
                kind = i % 3
                data = [b"@" * size, generator.randbytes(size), peer.announcement("P", dead.getsockname()[1])][kind]
                self.announce(data, f"127.1.{i // 250}.{1 + i % 250}")
                most = max(most, player.count("task"))
                time.sleep(0.0005)
            self.assertLess(most, 15 + 8)
            for text in (b"P@1@2", b"P", b"P@0", b"P@x"):
                self.announce(text)
            living.settimeout(0.5)
            connection = None
            for _ in range(60):  # those that do not say their names give way after 10 s
                self.announce(peer.announcement("Player_7", living.getsockname()[1]), "127.0.0.5")
                try:
                    connection = connection or living.accept()[0]
                except TimeoutError:
                    continue
                break
            with Peer(connection, "Player_7") as other:
                self.assertEqual(other.ask("none"), b"")
                self.announce(peer.announcement("Player_8", 1), "127.0.0.5")  # has a connection
                self.assertEqual(other.ask("none"), b"")

    def test_the_program_announces_itself(self):
        with tempfile.TemporaryDirectory() as folder, Player("A") as player:
            deployment = Path(folder) / "deployment.json"
            deployment.write_text(json.dumps({"lan": {"broadcastAddresses": ["127.255.255.255"]}}))
            program = subprocess.Popen([HERE.parent / "support/on-virtual-screen", options.nuvex, "--profile", folder,
                                        "--deployment", deployment], stderr=subprocess.DEVNULL)
            try:
                self.assertRegex(player.wait("started"), r"started Player_\d+$")
            finally:
                program.terminate()
                program.wait()
            player.wait("finished Player_")


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--nuvex")
    parser.add_argument("--verbose", action="store_true")
    options, rest = parser.parse_known_args()
    Player.program = options.program
    ISOLATED = isolate()
    unittest.main(argv=[sys.argv[0], *rest], warnings="ignore")
