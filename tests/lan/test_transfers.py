#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Players exchange projects with each other and with a peer of another make, well-behaved, broken and hostile.

test_transfers.py --program LANPLAYER [--thorough] [TEST...]
"""
import argparse
import os
import random
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from contextlib import suppress
from pathlib import Path

import peer
from peer import Peer
from players import Player, Proxy, contents, isolate, write_project

THOROUGH = False
SIZES = {"empty": 0, "one": 1, "chunk-1": 10239, "chunk": 10240, "chunk+1": 10241, "images/größe 🎬.bin": 300_001}
FILES = {path: random.Random(size).randbytes(size) for path, size in SIZES.items()}
NEW = {path: content + b"new" for path, content in FILES.items()}


def wait_for(condition, what, deadline=30):
    end = time.monotonic() + deadline
    while not condition():
        assert time.monotonic() < end, f"waited in vain for {what}"
        time.sleep(0.02)


class Transfers(unittest.TestCase):
    def start(self, *arguments, **options):
        return self.enterContext(Player(*arguments, **options))

    def pair(self, files=None, proxy=None):
        """Two connected players, the first one with a project."""
        a, b = self.start("A"), self.start("B")
        write_project(a.work / "Shop", files or FILES)
        a.meet(b, proxy(b.port) if proxy else None)
        return a, b

    def assert_same(self, folder, files):
        found = contents(folder)
        found.pop("dirmap", None)
        self.assertEqual({path: len(content) for path, content in found.items()},
                         {path: len(content) for path, content in files.items()})
        self.assertEqual(found, files)

    def assert_nothing_half_received(self, player):
        self.assertEqual(contents(player.work / ".incoming") if (player.work / ".incoming").exists() else {}, {})

    # With a peer of another make

    def test_other_make_asks_and_pushes(self):
        player = self.start("A")
        write_project(player.work / "Shop", FILES)
        with Peer.connect(player.port) as other:
            for path, content in FILES.items():
                self.assertEqual(other.ask("Shop/" + path), content)
            self.assertEqual(other.name, "A")
            self.assertEqual(other.heard[0], ("SNAME", "A"))
            other.ask("Shop/dirmap")
            for path, content in NEW.items():
                other.push("Shop/" + path, content)
            other.send(peer.request("Shop/chunk") * 300)  # more than it keeps waiting
            self.assertEqual({other.answer() for _ in range(300)}, {NEW["chunk"]})
            other.push("in the root", b"1")
            self.assertEqual(other.ask("Shop/one"), NEW["one"])
            self.assertEqual(other.ask("Shop/missing"), b"")
            other.push("Shop/dirmap", b"one 2\n")
            player.wait("received Shop")
            self.assert_same(player.work / "Shop", NEW)
            self.assertEqual((player.work / "Shop/images/größe 🎬.bin").stat().st_mode & 0o777, 0o644)
            self.assertEqual((player.work / "in the root").read_bytes(), b"1")
            self.assertEqual((player.work / "Shop/dirmap").read_bytes(), b"one 2\n")
            self.assert_nothing_half_received(player)
        player.wait("finished Python")

    def test_other_make_is_asked_and_pushed_to(self):
        player, folder = self.start("A"), Path(self.enterContext(tempfile.TemporaryDirectory()))
        write_project(folder / "Shop", FILES)
        other = self.enterContext(Peer.connect(player.port))
        threading.Thread(target=other.serve, args=(folder,), daemon=True).start()
        player.wait("started Python")
        self.assertEqual(player.exchange("fetch", "Python"), (True, "6 files fetched from Python."))
        self.assert_same(player.work / "Shop", FILES)
        asked = ["Shop/dirmap", *("Shop/" + path for path in FILES), "Shop/dirmap"]
        self.assertEqual(other.heard, [("SNAME", "A"), *(("GFILE", path) for path in asked)])
        write_project(player.work / "Shop", NEW | {"more": b""}, {"empty": 2, "images/größe 🎬.bin": -7})
        del other.heard[:]
        self.assertEqual(player.exchange("send", "Python"), (True, "3 files sent to Python."))
        sent = ["Shop/empty", "Shop/images/größe 🎬.bin", "Shop/more", "Shop/dirmap"]
        self.assertEqual(other.heard, [("GFILE", "Shop/dirmap"), *(("SFILE", path) for path in sent),
                                       ("GFILE", "Shop/dirmap")])
        self.assertEqual((folder / "Shop/dirmap").read_text(), (player.work / "Shop/dirmap").read_text())

    # Between players

    def test_only_what_differs_is_moved(self):
        a, b = self.pair()
        self.assertEqual(a.exchange("send", "B"), (True, "6 files sent to B."))
        b.wait("received Shop")
        self.assertIn("127.0.0.1 has sent the project Shop", b.log())
        self.assert_same(b.work / "Shop", FILES)
        for player, other, what in ((a, "B", "send"), (a, "B", "fetch"), (b, "A", "fetch")):
            self.assertEqual(player.exchange(what, other), (True, f"{other} and this player have the same revisions."))
        # B has changed one file, and lists one that is empty there, one that is missing, itself and a way out.
        write_project(b.work / "Shop", {"one": b"changed", "chunk": b"", "dirmap": b"", "../out": b"stolen"},
                      {"one": 2, "chunk": 2})
        with (b.work / "Shop/dirmap").open("a") as lines:
            lines.write("gone 5\n")
        self.assertEqual(a.exchange("fetch", "B"), (False, "Not all came from B: 1 of 3 files could not be kept."))
        self.assertEqual(contents(a.work / "Shop"), FILES | {
            "one": b"changed", "gone": b"", "dirmap": b"one 2\nchunk 1\ndirmap 1\n../out 1\ngone 5\n"})
        self.assertFalse((a.work / "out").exists())
        # A lists a file that it does not have: what B has stays.
        write_project(a.work / "Shop", {"one": b"third"}, {"one": 3})
        (a.work / "Shop/chunk+1").unlink()
        with (a.work / "Shop/dirmap").open("a") as lines:
            lines.write("chunk+1 9\n")
        self.assertEqual(a.exchange("send", "B"), (False, "Not all was sent to B: 1 of 2 files could not be kept."))
        self.assertEqual((b.work / "Shop/one").read_bytes(), b"third")
        self.assertEqual((b.work / "Shop/chunk+1").read_bytes(), FILES["chunk+1"])
        for project, why in (("Bar", "the player has no such project"), ("../Shop", "no name"), ("", "no name")):
            self.assertIn(why, a.exchange("fetch", "B", project)[1])
        self.assertIn("no list of its files", a.exchange("send", "B", "Bar")[1])
        self.assertIn("C is not connected", a.exchange("send", "C")[1])
        self.assert_nothing_half_received(a)

    def test_both_directions_at_once(self):
        big = {f"{i}": random.Random(i).randbytes(700_000 * i) for i in range(1, 8)}
        a, b = self.start("A"), self.start("B")
        for player, other in ((a, b), (b, a)):
            player.say(f"connect 127.0.0.1 {other.port}")
        for player, other in ((a, "B"), (b, "A")):
            player.wait("started " + other)
            player.say("players")
            self.assertEqual(player.wait("players"), "players " + other)  # once, whether there are two connections or one
        write_project(a.work / "Shop", big)
        write_project(b.work / "Bar", NEW | big)
        a.say("send B Shop")
        b.say("send A Bar")
        self.assertTrue(a.ended()[0] and b.ended()[0])
        shutil.rmtree(a.work / "Bar")
        shutil.rmtree(b.work / "Shop")
        a.say("fetch B Bar")
        b.say("fetch A Shop")
        self.assertTrue(a.ended()[0] and b.ended()[0])
        self.assert_same(a.work / "Bar", NEW | big)
        self.assert_same(b.work / "Shop", big)

    def test_slices_and_delays(self):
        a, b = self.pair(proxy=lambda port: self.enterContext(Proxy(port, slice_bytes=97, delay=0.001)).port)
        self.assertTrue(b.exchange("fetch", "A")[0])
        self.assert_same(b.work / "Shop", FILES)

    def test_cut_at_every_byte(self):
        player, old = self.start("A"), {"f": b"old", "dirmap": b"f 1\n"}
        write_project(player.work / "Shop", {"f": b"old"})
        stream = peer.name_frame("P") + peer.request("Shop/dirmap") + peer.sent_file("Shop/f", b"new content")
        stream += peer.sent_file("Shop/dirmap", b"f 2\n")
        for count in range(0, len(stream), 1 if THOROUGH else 5):
            with Peer.connect(player.port, None) as other:
                other.send(stream[:count])
            player.wait("finished")
        last = contents(player.work / "Shop")
        self.assertIn(last["f"], (b"old", b"new content"))
        self.assertEqual(last["dirmap"], old["dirmap"])
        self.assert_nothing_half_received(player)
        with Peer.connect(player.port, None) as other:
            other.send(stream)
            player.wait("received Shop")
        self.assertEqual(contents(player.work / "Shop"), {"f": b"new content", "dirmap": b"f 2\n"})

    # Hostile peers

    def test_paths_lead_nowhere_else(self):
        player, outside = self.start("A"), Path(self.enterContext(tempfile.TemporaryDirectory()))
        (outside / "secret").write_bytes(b"secret")
        (player.work / "out").symlink_to(outside)
        (player.work / "file").symlink_to(outside / "secret")
        hostile = ["", "..", "../x", "a/../../x", "/etc/hostname", "a//b", "./a", "a\\b", "a\nb", "a/", "c:x", "out/secret",
                   "out/new", "p" * 256, "a/" * 64 + "a", ".incoming/x", ".incoming"]
        with Peer.connect(player.port) as other:
            for path in [*hostile, "file"]:
                self.assertEqual(other.ask(path), b"", path)
        with Peer.connect(player.port, source="127.0.0.9") as other:
            other.push("GFILE", b"nobody asked for this")
            for path in hostile:
                other.push(path, b"bad")
            other.push("file", b"good")
            self.assertEqual(other.ask("file"), b"good")
        self.assertEqual(contents(outside), {"secret": b"secret"})
        self.assertEqual({path.name for path in player.work.iterdir()}, {"out", "file", ".incoming"})
        self.assert_nothing_half_received(player)
        for path in ("../x", "out/new", "GFILE"):
            self.assertIn(f'127.0.0.9 sends "{path}"', player.log())

    def test_what_is_there_stays(self):
        """Unasked, emptied and broken files replace nothing, whichever way they come; the next exchange brings them."""
        good = {"main.qml": b"import QtQuick 2.15\nItem {}\n", "f": b"old"}
        better = {"main.qml": good["main.qml"] + b"// new", "f": b"new"}
        bad = {"main.qml": [b"", b"\0\xff{", b"Item {", b"\n", good["main.qml"] + b" " * (4 << 20)], "f": [b""],
               "dirmap": [b"", b"<html> 1\n", b"f 7\n", b"main.qml 7\n" + b"x" * 4097, b"main.qml 1\n" * 200_001]}
        player = self.start("A")
        shop = player.work / "Shop"
        def check(files, revision):
            self.assertEqual(contents(shop), files | {"dirmap": f"main.qml {revision}\nf {revision}\n".encode()})
        write_project(shop, good)
        with Peer.connect(player.port, source="127.0.0.8") as other:
            for asked in (False, True):
                for path, content in [(path, content) for path in bad for content in bad[path]]:
                    if asked:
                        other.ask("Shop/dirmap")
                    other.push("Shop/" + path, content)
            other.push("Shop/dirmap", b"main.qml 1\nf 1\n")  # after a map nothing is sent any more
            for path, content in better.items():
                other.push("Shop/" + path, content)
            other.push("New/f", b"1")
            self.assertEqual(other.ask("New/f"), b"1")
            check(good, 1)
            # A push of which half is refused: the map says so.
            other.ask("Shop/dirmap")
            other.push("Shop/main.qml", b"Item {")
            other.push("Shop/f", b"new")
            other.push("Shop/dirmap", b"main.qml 2\nf 2\n")
            player.wait("received Shop")
            self.assertEqual(contents(shop), good | {"f": b"new", "dirmap": b"main.qml 1\nf 2\n"})
        b = self.start("B")
        write_project(b.work / "Shop", {"main.qml": b"Item {", "f": b""}, {"main.qml": 3, "f": 3})
        player.meet(b)
        self.assertEqual(player.exchange("fetch", "B"), (False, "Not all came from B: 2 of 2 files could not be kept."))
        self.assertEqual(contents(shop), good | {"f": b"new", "dirmap": b"main.qml 1\nf 2\n"})
        write_project(b.work / "Shop", better, {"main.qml": 3, "f": 3})
        self.assertTrue(b.exchange("send", "A")[0])
        check(better, 3)
        self.assert_nothing_half_received(player)

    def test_the_log_stays_short(self):
        player = self.start("A")
        for _ in range(100):
            with Peer.connect(player.port, "Bad", "127.0.0.9") as other:
                other.send(peer.request("../" + "x" * 20_000) * 9 + b"GET / HTTP/1.1\r\n\r\n")
                with self.assertRaises((EOFError, ConnectionError)):
                    while other.read():
                        pass
            player.wait("finished Bad")
        with socket.create_server(("127.0.0.1", 0)) as closed:
            port = closed.getsockname()[1]
        for _ in range(300):
            player.say(f"connect 127.0.0.2 {port}")
            player.wait("finished")
        with Peer.connect(player.port, "Bad", "127.0.0.7") as other:
            self.assertEqual(other.ask("../y"), b"")
        self.assertEqual(player.quit(), 0)
        log = player.log()
        self.assertLess(len(log), 20_000)
        self.assertIn('127.0.0.7 asks for "../y"', log)
        self.assertEqual(log.count("No conected"), 20)
        self.assertIn("127.0.0.2 - 280 lines left out", log)
        self.assertIn("127.0.0.9 - 1180 lines left out", log)

    def test_what_is_no_protocol_ends_that_connection_only(self):
        player = self.start("A")
        good = self.enterContext(Peer.connect(player.port, "Good"))
        bad = [b"GFILE" + (-13).to_bytes(8, "little", signed=True) + b"x" * 20, b"GET / HTTP/1.1\r\n\r\n",
               b"GFILE" + (2**63 - 6).to_bytes(8, "little"), peer.frame(b"GFILE", b"\0\0\0\2\xd8\x3c"),
               peer.file_frame("a", -1), peer.file_frame("a", 2**62), peer.file_frame("a", 1 << 39)]
        for number, data in enumerate(bad):
            with Peer.connect(player.port, "Bad", f"127.0.2.{1 + number}") as other:
                other.send(data)
                with self.assertRaises((EOFError, ConnectionError)):
                    while other.read():
                        pass
        good.send(peer.frame(b"HELLO", b"abc") * 3)
        good.push("f", b"1")
        self.assertEqual(good.ask("f"), b"1")
        self.assertEqual(player.log().count("UNKNOW PROTOCOL"), 3)

    def test_a_peer_that_does_not_read_costs_little(self):
        player = self.start("A")
        (player.work / "big").write_bytes(bytes(50_000_000))
        def memory():
            return int(Path(f"/proc/{player.process.pid}/statm").read_text().split()[1]) * 4
        with Peer.connect(player.port) as other:
            other.ask("none")
            before = memory()
            other.connection.setblocking(False)
            sent = 0
            end = time.monotonic() + 3
            while time.monotonic() < end:
                try:
                    sent += other.connection.send(peer.request("big") * 100)
                except BlockingIOError:
                    time.sleep(0.01)
            self.assertLess(memory() - before, 1024 * (8 if "asan" in Player.program else 1))

    def test_numbers_are_bounded(self):
        player = self.start("A", before=["prlimit", "--nofile=1024"])
        peers = []
        for i in range(200):
            peers.append(self.enterContext(Peer.connect(player.port, f"P{i}", f"127.0.3.{1 + i}")))
            player.wait(f"started P{i}")
        with Peer.connect(player.port, "late", "127.0.4.1") as other, self.assertRaises((EOFError, ConnectionError)):
            other.read()
        peers[7].connection.close()
        player.wait("finished P7")
        with Peer.connect(player.port, "later", "127.0.4.2") as other:
            self.assertEqual(other.read()[1], "A")
        self.assertEqual(peers[8].ask("none"), b"")

    def test_no_descriptors(self):
        player = self.start("A", before=["prlimit", "--nofile=80"])
        peers = [self.enterContext(Peer.connect(player.port, f"P{i}", f"127.0.5.{1 + i}")) for i in range(60)]
        time.sleep(3)
        ticks = [int(field) for field in Path(f"/proc/{player.process.pid}/stat").read_text().split()[13:15]]
        self.assertLess(sum(ticks) / os.sysconf("SC_CLK_TCK"), 1.5)
        for other in peers:
            other.connection.close()
        wait_for(lambda: player.count("task") <= 3, "the ends")
        with Peer.connect(player.port, "after", "127.0.6.1") as other:
            self.assertEqual(other.ask("none"), b"")

    def test_silence(self):
        """Without a name a connection ends after 10 s, and one in mid-frame or mid-content after 20; others live on."""
        player = self.start("A")
        silent = self.enterContext(Peer.connect(player.port, None, "127.0.7.1"))
        with Peer.connect(player.port, None, "127.0.7.1") as second, self.assertRaises((EOFError, ConnectionError)):
            second.read()  # one without a name is enough for an address
        stuck = [self.enterContext(Peer.connect(player.port, f"P{i}", f"127.0.7.{2 + i}")) for i in range(3)]
        resting = self.enterContext(Peer.connect(player.port, "R", "127.0.7.9"))
        player.wait("started R")
        stuck[0].send(peer.file_frame("f", 10) + b"123")
        stuck[1].send(b"SFI")
        player.say("fetch P2 Shop")
        began = time.monotonic()
        self.assertEqual(silent.read()[0], b"SNAME")
        with self.assertRaises((EOFError, ConnectionError)):
            silent.read()
        self.assertTrue(9 < time.monotonic() - began < 15)
        for _ in range(2):
            player.wait("finished P")
        self.assertTrue(19 < time.monotonic() - began < 30)
        stuck[2].push("GFILE", b"")  # an answer may take longer
        self.assertEqual(player.ended()[1], "Not all came from P2: the player has no such project.")
        self.assertEqual(resting.ask("none"), b"")
        self.assertFalse((player.work / "f").exists())

    # Ends and disks

    def test_ends_in_the_middle(self):
        files = {str(i): bytes(100_000) for i in range(40)}
        for end in ("cancel", "quit", "kill the peer", "stop"):
            with self.subTest(end), Player("A") as a, Player("B") as b:
                write_project(b.work / "Shop", files)
                a.meet(b, self.enterContext(Proxy(b.port, slice_bytes=4096, delay=0.005)).port)
                a.say("fetch B Shop")
                wait_for(lambda: int(a.wait("progress").split()[1]) > 1, "some files")
                began = time.monotonic()
                if end == "cancel":
                    a.say("cancel")
                    self.assertEqual(a.ended(), (False, "Not all came from B: cancelled."))
                    self.assertTrue(a.exchange("fetch", "B")[0], "after a cancelled one")
                elif end == "quit":
                    self.assertEqual(a.quit(2), 0)
                elif end == "kill the peer":
                    b.process.kill()
                    self.assertIn("the connection has ended", a.ended()[1])
                    a.wait("finished B")
                    self.assertEqual(a.exchange("fetch", "B")[1], "B is not connected.")
                else:
                    a.process.send_signal(signal.SIGTERM)
                    a.process.wait()
                    a.process.returncode = 0
                self.assertLess(time.monotonic() - began, 20)
                found = contents(a.work / "Shop")
                found.pop("dirmap", None)
                self.assertEqual(found, {path: files[path] for path in found})

    @unittest.skipUnless(os.geteuid() == 0, "mounting a disk to fill needs root")
    def test_full_and_unwritable_disks(self):
        work = Path(self.enterContext(tempfile.TemporaryDirectory()))
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=80m", "tmpfs", work], check=True)
        self.addCleanup(subprocess.run, ["umount", "-l", work])
        player = self.start("A", work)
        write_project(work / "Shop", {"f": b"old", "folder/f": b"old"})
        with Peer.connect(player.port) as other:
            other.ask("Shop/dirmap")
            other.send(peer.file_frame("Shop/f", 10_000_000) + bytes(1_000_000))
            wait_for(lambda: shutil.disk_usage(work).used > 900_000, "its beginning")
            self.fill(work)
            other.send(bytes(9_000_000))
            self.assertEqual(other.ask("Shop/f"), b"old")
            (work / "filling").unlink()
            other.push("Shop/folder", b"a file in the place of a folder")
            other.push("Shop/new", b"new")
            other.push("Shop/dirmap", b"f 2\nfolder 2\nnew 2\n")
            player.wait("received Shop")
        self.assertEqual(contents(work / "Shop"), {"f": b"old", "folder/f": b"old", "new": b"new",
                                                   "dirmap": b"f 1\nnew 2\n"})
        with Peer.connect(player.port) as other, self.assertRaises((EOFError, ConnectionError)):
            other.send(peer.file_frame("Shop/huge", 70_000_000))
            while other.read():
                pass
        b, before = self.start("B"), contents(work)
        write_project(b.work / "Shop", {"f": b"newer"}, {"f": 9})
        self.fill(work)
        player.meet(b)
        self.assertIn("the disk here has no room", player.exchange("fetch", "B")[1])
        (work / "filling").unlink()
        player.meet(b)
        subprocess.run(["mount", "-o", "remount,ro", work], check=True)
        self.assertIn("nothing can be written", player.exchange("fetch", "B")[1])
        self.assertIn("1 of 1 files could not be kept", b.exchange("send", "A")[1])
        self.assertEqual(contents(work), before)
        subprocess.run(["mount", "-o", "remount,rw", work], check=True)
        self.assertTrue(b.exchange("send", "A")[0])
        self.assert_nothing_half_received(player)

    @staticmethod
    def fill(disk):
        with suppress(OSError), (disk / "filling").open("wb") as filling:
            while True:
                filling.write(bytes(1 << 16))
                filling.flush()

    def test_killed_at_any_moment(self):
        """Kills a player that is sent or fetches a project at every call that changes files (in short, at some): each
        file is old or new, and the map new only if all are."""
        if not THOROUGH:
            for fetches, call, when in ((False, "openat", 3), (False, "write", 4), (False, "linkat", 5), (True, "linkat", 6),
                                        (False, "renameat", 2), (True, "syncfs", 1), (False, "renameat", 7)):
                self.assertTrue(self.kill_at(fetches, call, when), f"not killed at {call} {when}")
            return
        for fetches in (False, True):
            rows = 0
            for call in ("openat", "openat2", "mkdirat", "write", "linkat", "renameat", "unlink", "syncfs"):
                when = 1
                while self.kill_at(fetches, call, when):
                    when += 1
                rows += when - 1
            print(rows, "rows killed,", "fetching" if fetches else "being sent")

    def kill_at(self, fetches, call, when):
        """Whether the player was killed at that call while a project came."""
        work, source = [Path(self.enterContext(tempfile.TemporaryDirectory())) for _ in range(2)]
        new = NEW | {"folder/new": b"new"}
        write_project(work / "Shop", FILES)
        write_project(source / "Shop", new, dict.fromkeys(new, 2))
        maps = [(folder / "Shop/dirmap").read_bytes() for folder in (work, source)]
        with Player("A", work) as player:
            tracer = subprocess.Popen(["strace", "-f", "-o/dev/null", f"-p{player.process.pid}", f"-etrace={call}",
                                       f"-einject={call}:signal=KILL:when={when}"], stderr=subprocess.PIPE)
            tracer.stderr.readline()  # attached
            with Peer.connect(player.port) as other:
                try:
                    if fetches:
                        player.wait("started")
                        player.say("fetch Python Shop")
                        other.serve(source, len(new) + 3)  # and the name and both maps
                        player.ended()
                    else:
                        other.ask("Shop/dirmap")
                        for path, content in new.items():
                            other.push("Shop/" + path, content)
                        other.push("Shop/dirmap", maps[1])
                        other.ask("Shop/dirmap")
                except (AssertionError, EOFError, OSError):
                    pass  # it was killed
            killed = player.quit() == -signal.SIGKILL
            tracer.communicate()
        found = contents(work / "Shop")
        if found["dirmap"] != maps[0]:
            self.assertEqual(found, new | {"dirmap": maps[1]}, f"{call} {when}")
        self.assertEqual(found.keys() - {"folder/new"}, FILES.keys() | {"dirmap"})
        for path in found.keys() - {"dirmap"}:
            self.assertIn(found[path], (FILES.get(path), new[path]), f"{path} after {call} {when}")
        return killed


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--nuvex")
    parser.add_argument("--thorough", action="store_true")
    options, rest = parser.parse_known_args()
    Player.program, THOROUGH = options.program, options.thorough
    isolate()
    unittest.main(argv=[sys.argv[0], *rest], warnings="ignore")
