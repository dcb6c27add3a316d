#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Measures the local cloud: subscribed players, streams after a restart, large files beside other programs.

measure.py NUVEX-LOCALCLOUD [--players N] [--writes PER-SECOND] [--seconds S] [--long] [--rounds N] [--mebibytes N]

--long lets the players run for 30 minutes, in memory alone, and prints the server's memory a minute. Prints markdown
tables.
"""
import argparse
import json
import os
import pathlib
import random
import selectors
import signal
import socket
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/localcloud"))
import cloud  # noqa: E402

SETTLING = 2  # seconds that belong to the start


def options():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    for name, default in {"players": 500, "writes": 100, "seconds": 20, "rounds": 4, "mebibytes": 1024}.items():
        parser.add_argument("--" + name, type=int, default=default)
    parser.add_argument("--long", action="store_true")
    known = parser.parse_args()
    known.seconds = 1800 if known.long else known.seconds
    return known


def target(server, player):
    return f"/Users/annexampleorg/Players/p{player}.json?auth={server.credential}"


class Players:
    """Event streams, all read by this one thread."""

    def __init__(self, server, count):
        self.server, self.selector = server, selectors.DefaultSelector()
        began = time.perf_counter()
        for player in range(count):
            connection = socket.socket()
            connection.setblocking(False)
            connection.connect_ex(("127.0.0.1", server.port))
            connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            self.selector.register(connection, selectors.EVENT_WRITE, player)
        self._ask_and_wait(count)
        self.opened = time.perf_counter() - began

    def _ask_and_wait(self, count):
        """Sends each request when its connection is there; returns when all have had their first event."""
        waiting = count
        while waiting:
            for key, event in self.selector.select():
                if event == selectors.EVENT_WRITE:
                    key.fileobj.sendall(cloud.head("GET", target(self.server, key.data), Accept="text/event-stream"))
                    self.selector.modify(key.fileobj, selectors.EVENT_READ, key.data)
                elif b"event: put" in key.fileobj.recv(65536):
                    waiting -= 1

    def wait_for_event(self, player):
        """Returns when this player's stream has brought something; others may bring their signs of life."""
        while True:
            for key, _ in self.selector.select(1):
                data = key.fileobj.recv(65536)
                assert data, "a stream has ended"
                if key.data == player and b"event: p" in data:
                    return

    def close(self):
        for key in list(self.selector.get_map().values()):
            key.fileobj.close()
        self.selector.close()


def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def beat(server, players, connection, count, choice):
    """One heartbeat; seconds from its sending to the event on its player's stream."""
    player = choice.randrange(count)
    began = time.perf_counter()
    connection.request("POST", target(server, player), '{"heartbeat":{".sv":"timestamp"}}',
                       {"X-HTTP-Method-Override": "PATCH"})
    players.wait_for_event(player)
    arrived = time.perf_counter() - began
    connection.getresponse().read()
    return arrived


def percentile(values, percent):
    return sorted(values)[min(len(values) * percent // 100, len(values) - 1)] * 1000


class BareServer:
    """The least that a write costs on this machine, now: a process that stores a page and sends a byte back."""

    def __init__(self, folder):
        self.socket, other = socket.socketpair()
        self.child = os.fork()
        if self.child == 0:
            with (folder / "bare").open("wb", buffering=0) as file:
                while other.recv(1):
                    file.write(bytes(4096))
                    os.fdatasync(file.fileno())
                    other.send(b"x")
                os._exit(0)
        other.close()

    def write(self):
        began = time.perf_counter()
        self.socket.send(b"x")
        self.socket.recv(1)
        return time.perf_counter() - began

    def stop(self):
        os.kill(self.child, signal.SIGKILL)
        os.waitpid(self.child, 0)
        self.socket.close()


def measure_players(known, place):
    """One row: the players on a server that keeps its data in the folder `place`."""
    with tempfile.TemporaryDirectory(dir=place) as name:
        server = cloud.Cloud(known.program, folder=name)
        players, bare = Players(server, known.players), BareServer(pathlib.Path(name))
        connection, choice = server.connect(), random.Random(1)
        times, least, memories = [], [], []
        began = time.monotonic()
        for number in range((known.seconds + SETTLING) * known.writes):
            if number == SETTLING * known.writes:
                used, started = processor_seconds(server.process), time.monotonic()
                times, least = [], []
            if number % (60 * known.writes) == SETTLING * known.writes:
                memories.append(server.memory_mib())
            time.sleep(max(0.0, began + number / known.writes - time.monotonic()))
            times.append(beat(server, players, connection, known.players, choice))
            least.append(bare.write())
        share = 100 * (processor_seconds(server.process) - used) / (time.monotonic() - started)
        figures = [percentile(values, percent) for values in (times, least) for percent in (50, 99)]
        print(f"| {place} | {share:.1f} | " + " | ".join(f"{figure:.2f}" for figure in figures)
              + f" | {memories[0]:.1f} | {server.memory_mib():.1f} |", flush=True)
        if known.long:
            print("\nMemory a minute, MiB: " + " ".join(f"{memory:.1f}" for memory in memories), flush=True)
        players.close()
        connection.close()
        bare.stop()
        server.stop()


def measure_restart(known):
    times = []
    server = cloud.Cloud(known.program)
    for player in range(known.players):
        record = {"project": "Demo", "command": "", "heartbeat": player}
        server.database("PUT", f"/Users/annexampleorg/Players/p{player}", record)
    for _ in range(known.rounds):
        server.kill()
        began = time.perf_counter()
        server.start()
        up = time.perf_counter() - began
        players = Players(server, known.players)
        times.append((up, players.opened))
        players.close()
    server.stop()
    print(f"\n| {known.players} streams after kill -9 | median, ms | most |\n|---|---|---|")
    for name, values in zip(("start until it listens", "streams opened, first event on each"), zip(*times)):
        print(f"| {name} | {statistics.median(values) * 1000:.0f} | {max(values) * 1000:.0f} |")


class Peer:
    """rclone serving the same folder: an independent server to compare with."""

    def __init__(self, kind, folder):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        self.base = f"http://127.0.0.1:{port}"
        self.process = subprocess.Popen(["rclone", "serve", kind, "--addr", f"127.0.0.1:{port}", str(folder)],
                                        stderr=subprocess.DEVNULL,
                                        env=dict(os.environ, RCLONE_CONFIG="/dev/null"))
        while subprocess.run(["curl", "-s", "-o", "/dev/null", self.base], check=False).returncode:
            time.sleep(0.05)

    def stop(self):
        self.process.terminate()
        self.process.wait()


def curl(*words):
    began = time.perf_counter()
    subprocess.run(["curl", "-sSf", *map(str, words)], check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - began


def measure_files(known):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        server = cloud.Cloud(known.program, folder=folder)
        source = folder / "source"
        with source.open("wb") as file:
            for _ in range(known.mebibytes):
                file.write(os.urandom(1 << 20))
        bearer = ["-H", "Authorization: Bearer " + server.token()]
        place = f"{server.base}/upload/storage/v1/b/{server.bucket}/o?uploadType=media&name=large"
        media = f"{server.base}/storage/v1/b/{server.bucket}/o/large?alt=media"
        pages, store = Peer("http", folder), Peer("webdav", folder)
        ways = {"up": [*bearer, "-X", "POST", "-T", source, place],
                "up, rclone serve webdav": ["-T", source, store.base + "/peer"],
                "down": [*bearer, "-o", "/dev/null", media],
                "down, rclone serve http": ["-o", "/dev/null", pages.base + "/source"]}
        times = {way: [] for way in ways}
        memory = server.memory_mib()
        for number in range(known.rounds): # to and fro, so that none always follows the same other
            for way in list(ways)[::-1 if number % 2 else 1]:
                times[way].append(curl(*ways[way]))
        print(f"\n| {known.mebibytes} MiB by curl | seconds, median | least | most |\n|---|---|---|---|")
        for way, values in times.items():
            print(f"| {way} | {statistics.median(values[1:]):.2f} | {min(values[1:]):.2f} | {max(values[1:]):.2f} |")
        print(f"\nMemory of the local cloud: {memory:.1f} MiB before, {server.memory_mib():.1f} after.")
        pages.stop()
        store.stop()
        server.stop()


def main():
    known = options()
    known.program = str(pathlib.Path(known.program).resolve())
    print(f"{known.players} players, {known.writes} heartbeats a second, {known.seconds} s\n")
    print("| data in | CPU, % of a core | write to stream, ms: p50 | p99 | bare server, ms: p50 | p99 "
          "| memory, MiB: begin | end |")
    print("|---|---|---|---|---|---|---|---|")
    for place in ("/dev/shm",) if known.long else ("/var/tmp", "/dev/shm"):
        measure_players(known, place)
    measure_restart(known)
    measure_files(known)


if __name__ == "__main__":
    main()
