#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Compares the exchange of projects between two processes on loopback with an rsync daemon and a plain TCP copy.

measure.py LANPLAYER [--folder DIR] [--rounds N] [--large MB] [--small FILES]

All take turns; the first round is dropped. CPU time is that of both ends. Then a round trip of 2 ms, memory a connection,
and an exchange of what has not changed. Prints markdown tables of medians with minimum and maximum. The folder should be
on tmpfs.
"""
import argparse
import os
import pathlib
import re
import shutil
import socket
import statistics
import struct
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/lan"))

from peer import Peer  # noqa: E402
from players import Player, Proxy, isolate, write_project  # noqa: E402

TRIPS = 1000  # small files that are moved through a delay


class TcpCopy:
    """Sends a folder's files through a socket, each after a header, and writes them: nothing is compared."""

    def __init__(self, source, target):
        self.source, self.target = source, target

    def run(self):
        here, there = self._connected()
        receiver = os.fork()
        if receiver == 0:
            here.close()
            self._receive(there.makefile("rb", 1 << 18))
            there.sendall(b"x")
            os._exit(0)
        there.close()
        for entry in os.scandir(self.source):
            self._send(here, entry)
        here.shutdown(socket.SHUT_WR)
        here.recv(1)
        here.close()
        os.waitpid(receiver, 0)

    @staticmethod
    def _connected():
        with socket.create_server(("127.0.0.1", 0)) as listener:
            here = socket.create_connection(listener.getsockname())
            here.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            return here, listener.accept()[0]

    @staticmethod
    def _send(connection, entry):
        name = entry.name.encode()
        with open(entry.path, "rb", 0) as file:
            connection.sendall(struct.pack(">IQ", len(name), entry.stat().st_size) + name)
            connection.sendfile(file)

    def _receive(self, stream):
        self.target.mkdir()
        while header := stream.read(12):
            length, size = struct.unpack(">IQ", header)
            with open(self.target / stream.read(length).decode(), "wb", 0) as file:
                while size:
                    size -= file.write(stream.read(min(size, 1 << 18)))


class Rsync:
    """An rsync daemon on `folder`."""

    def __init__(self, folder):
        with socket.create_server(("127.0.0.1", 0)) as probe:
            self.port = probe.getsockname()[1]
        config = folder / "rsyncd.conf"
        config.write_text(f"use chroot = no\nuid = {os.getuid()}\ngid = {os.getgid()}\n"
                          f"[all]\npath = {folder}\nread only = no\n")
        self.process = subprocess.Popen(["rsync", "--daemon", "--no-detach", "--address=127.0.0.1",
                                         f"--port={self.port}", f"--config={config}"])
        while self._is_deaf():
            time.sleep(0.05)

    def _is_deaf(self):
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", self.port)) != 0

    def copy(self, source, target):
        subprocess.run(["rsync", "-rt", "--whole-file", source, target], check=True)

    def url(self, path):
        return f"rsync://127.0.0.1:{self.port}/all/{path}/"


def spread(values, digits=0):
    return f"{statistics.median(values):.{digits}f} ({min(values):.{digits}f} to {max(values):.{digits}f})"


def milliseconds(action):
    began = time.perf_counter()
    action()
    return (time.perf_counter() - began) * 1000


def cpu_milliseconds(processes):
    """Of processes and of their children that have ended."""
    fields = [pathlib.Path(f"/proc/{process}/stat").read_text().split()[13:17] for process in processes]
    return sum(int(field) for process in fields for field in process) * 1000 / os.sysconf("SC_CLK_TCK")


def costs(action, processes):
    """Milliseconds that pass, and those of a core."""
    before = cpu_milliseconds(processes)
    passed = milliseconds(action)
    time.sleep(0.1)  # until the last child has ended
    return passed, cpu_milliseconds(processes) - before


def status_kib(player, field):
    text = pathlib.Path(f"/proc/{player.process.pid}/status").read_text()
    return int(re.search(rf"^{field}:\s+(\d+)", text, re.M)[1])


def exchange(player, what, other, project):
    succeeded, outcome = player.exchange(what, other, project)
    assert succeeded, outcome


def assert_same(source, target):
    for path in source.iterdir():
        assert path.stat().st_size == (target / path.name).stat().st_size, path


def compare(folder, project, rounds):
    """A, which has the project, and B: costs by what was done, milliseconds of an exchange that moves nothing, and KiB of
    memory that each of the two took more than before at most."""
    source, target = folder / "A" / project, folder / "B" / project
    rsync = Rsync(folder)
    with Player("A", folder / "A") as a, Player("B", folder / "B") as b:
        a.meet(b)
        actions = {
            "plain TCP copy": TcpCopy(source, target).run,
            "rsync, pushed": lambda: rsync.copy(f"{source}/", rsync.url(f"B/{project}")),
            "Nuvex, sent": lambda: exchange(a, "send", "B", project),
            "rsync, pulled": lambda: rsync.copy(rsync.url(f"A/{project}"), f"{target}/"),
            "Nuvex, fetched": lambda: exchange(b, "fetch", "A", project),
        }
        processes = [os.getpid(), *(part.process.pid for part in (a, b, rsync))]
        results = {name: [] for name in actions}
        before = [status_kib(player, "RssAnon") for player in (a, b)]
        for _ in range(rounds):
            for name, action in actions.items():
                shutil.rmtree(target, ignore_errors=True)
                results[name].append(costs(action, processes))
                assert_same(source, target)
        unchanged = [milliseconds(lambda: exchange(a, "send", "B", project)) for _ in range(rounds)]
        grown = [status_kib(player, "VmHWM") - status_kib(player, "RssFile") - first
                 for player, first in zip((a, b), before)]
    rsync.process.terminate()
    rsync.process.wait()
    return {name: list(zip(*values[1:])) for name, values in results.items()}, unchanged[1:], grown


def print_comparison(title, aims, results, unchanged, grown):
    """`aims` are the times to rsync's, sent and fetched."""
    print(f"\n{title}, ms; aims {aims[0]} and {aims[1]} of rsync's time\n\n| | time | to rsync | CPU | to rsync |"
          "\n|---|---|---|---|---|")
    for name, columns in results.items():
        rsync = results["rsync, pushed" if name == "Nuvex, sent" else "rsync, pulled"]
        ratios = [f"{statistics.median(own) / statistics.median(other):.2f}" for own, other in zip(columns, rsync)]
        shown = ratios if name.startswith("Nuvex") else ["", ""]
        print(f"| {name} |", " | ".join(f"{spread(own)} | {ratio}" for own, ratio in zip(columns, shown)), "|")
    print(f"| Nuvex, sent again unchanged | {spread(unchanged)} | | | |")
    print(f"\nMemory grew by at most {grown[0]} KiB where the files are, {grown[1]} KiB at the other end")


def print_trips(folder, rounds):
    """Small files through a proxy that holds every byte back for a millisecond, and through one that does not."""
    write_project(folder / "A" / "Trips", {str(i): os.urandom(1000) for i in range(TRIPS)})
    results = {}
    for delay in (0.001, 0.0):
        with Player("A", folder / "A") as a, Player("B", folder / "B") as b:
            with Proxy(a.port, delay=delay) as proxy:
                with Peer.connect(proxy.port) as probe:
                    trips = [milliseconds(lambda: probe.ask("none")) for _ in range(200)]
                b.meet(a, proxy.port)
                times = {"send": [], "fetch": []}
                for _ in range(rounds):
                    for what, player, other in (("send", a, "B"), ("fetch", b, "A")):
                        shutil.rmtree(folder / "B" / "Trips", ignore_errors=True)
                        times[what].append(milliseconds(lambda: exchange(player, what, other, "Trips")))
                results[delay] = statistics.median(trips), times["send"][1:], times["fetch"][1:]
    print(f"\n{TRIPS} files of 1 KB through a proxy, ms\n\n| round trip | sent | fetched | fetched, a file and round trip |"
          "\n|---|---|---|---|")
    for trip, sent, fetched in results.values():
        share = statistics.median(fetched) / TRIPS / trip
        print(f"| {trip:.2f} | {spread(sent)} | {spread(fetched)} | {share:.2f} |")


def private_kib(player):
    text = pathlib.Path(f"/proc/{player.process.pid}/smaps_rollup").read_text()
    return sum(int(size) for size in re.findall(r"^Private_\w+: +(\d+)", text, re.M))


def print_connections(folder):
    with Player("A", folder / "A", before=["prlimit", "--nofile=1024"]) as player:
        before, peers = private_kib(player), []
        for i in range(200):
            peers.append(Peer.connect(player.port, f"P{i}", f"127.0.3.{1 + i}"))
            player.wait(f"started P{i}")
        print(f"\n200 connected players: {(private_kib(player) - before) / 200:.0f} KiB of private memory each, "
              f"{player.count('task')} threads")
        for other in peers:
            other.connection.close()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--folder", default="/dev/shm")
    parser.add_argument("--rounds", type=int, default=6)
    parser.add_argument("--large", type=int, default=1024)
    parser.add_argument("--small", type=int, default=10_000)
    options = parser.parse_args()
    Player.program = options.program
    isolate()
    version = subprocess.run(["rsync", "--version"], capture_output=True, check=True, text=True).stdout.split()[2]
    print(f"rsync {version}, {options.rounds - 1} rounds, on {options.folder}")
    with tempfile.TemporaryDirectory(dir=options.folder) as name:
        folder = pathlib.Path(name)
        chunk = os.urandom(1 << 20)
        write_project(folder / "A/Large", {"film": chunk * options.large})
        print_comparison(f"One file of {options.large} MiB", (1.25, 1.25), *compare(folder, "Large", options.rounds))
        write_project(folder / "A/Small", {f"{i}": chunk[i:i + 10_000] for i in range(options.small)})
        print_comparison(f"{options.small} files of 10 KB", (1.0, 1.6), *compare(folder, "Small", options.rounds))
        print_trips(folder, options.rounds)
        print_connections(folder)


if __name__ == "__main__":
    main()
