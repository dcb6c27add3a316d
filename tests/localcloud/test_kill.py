# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""kill -9 in the middle of uploads and writes: nothing that was acknowledged is lost, nothing half is seen.

test_kill.py --program PROGRAM [--kills N] [--seed N] [--table N]

Each round several clients upload, copy, delete, append to a resumable upload and count in the database; then what they
were told is compared with what is there. Prints a line for each kill. --table kills by strace at the first N calls of
each kind that changes a file, and prints a line for each kind.
"""
import http.client
import json
import random
import shutil
import signal
import subprocess
import tempfile
import threading
import time

import cloud
from cloud import content, md5, quote

CHUNK = 256 * 1024
CALLS = ["fdatasync", "fsync", "link", "unlink", "pwrite64", "write", "openat"]
CUT = (OSError, http.client.HTTPException, json.JSONDecodeError, KeyError)


class Client(threading.Thread):
    """Repeats one kind of work until the server is gone; `sure` is what it was told, `maybe` what it asked for last."""

    def __init__(self, server, number, seed):
        super().__init__()
        self.server, self.number, self.random = server, number, random.Random(seed * 100 + number)
        self.sure, self.maybe = None, None
        self.done = 0

    def run(self):
        try:
            while True:
                self.step()
                self.done += 1
        except CUT:
            pass


class Uploads(Client):
    """Puts an object again and again, in one request or several."""

    session = None

    def step(self):
        data = content(self.random.choice([10, 70_000, 600_000]), self.random.random())
        self.maybe = data
        name = f"object {self.number}"
        if self.random.random() < 0.5:
            answer = self.server.put(name, data)
        else:
            begun = self.server.storage("POST", f"/o?uploadType=resumable&name={quote(name)}", "{}", service="/upload")
            self.session = begun.headers["Location"].removeprefix(self.server.base)
            for start in range(0, len(data), CHUNK):
                piece = data[start:start + CHUNK]
                span = f"bytes {start}-{start + len(piece) - 1}/{len(data)}"
                answer = self.server.ask("PUT", self.session, piece, {"Content-Range": span})
        if answer.status == 200:
            self.sure = data

    def check(self, server):
        if self.session: # finished, or it can go on
            told = server.ask("PUT", self.session, b"", {"Content-Range": "bytes */*"}).status
            assert told in (200, 308), f"the upload is gone: {told}"
        answer = server.get(f"object {self.number}")
        possible = [data for data in (self.sure, self.maybe) if data is not None]
        assert answer.status == 200 if self.sure is not None else answer.status in (200, 404), answer.status
        if answer.status == 200:
            assert answer.body in possible, f"{len(answer.body)} bytes that nobody sent"
            told = server.storage("GET", "/o/" + quote(f"object {self.number}")).body["md5Hash"]
            assert told == md5(answer.body), "hash"


class Appends(Client):
    """One resumable upload that grows and is never finished."""

    def step(self):
        if self.maybe is None:
            begun = self.server.storage("POST", f"/o?uploadType=resumable&name=growing{self.number}", "{}",
                                        service="/upload")
            self.session = begun.headers["Location"].removeprefix(self.server.base)
            self.maybe = 0
        start = self.maybe
        self.maybe += CHUNK
        span = f"bytes {start}-{start + CHUNK - 1}/*"
        if self.server.ask("PUT", self.session, content(CHUNK, start), {"Content-Range": span}).status == 308:
            self.sure = start + CHUNK

    def check(self, server):
        if not self.sure:
            return
        told = server.ask("PUT", self.session, b"", {"Content-Range": "bytes */*"}).headers["Range"]
        arrived = int(told.rsplit("-", 1)[1]) + 1
        assert self.sure <= arrived <= self.maybe, (self.sure, arrived, self.maybe)
        last = b"end"
        span = f"bytes {arrived}-{arrived + 2}/{arrived + 3}"
        answer = server.ask("PUT", self.session, last, {"Content-Range": span})
        whole = b"".join(content(CHUNK, start) for start in range(0, self.maybe, CHUNK))[:arrived] + last
        assert answer.body["md5Hash"] == md5(whole), "content of the grown object"


class Counts(Client):
    """Writes pairs into the database that belong together."""

    def step(self):
        self.maybe = (self.sure or 0) + 1
        place = f"/count/{self.number}"
        if self.server.database("PATCH", place, {"a": self.maybe, "b/c": self.maybe}).status == 200:
            self.sure = self.maybe

    def check(self, server):
        found = server.database("GET", f"/count/{self.number}").body or {"a": None, "b": {"c": None}}
        assert found["a"] == found["b"]["c"], found
        assert found["a"] in (self.sure, self.maybe), (found, self.sure, self.maybe)


class Moves(Client):
    """An object that is copied to another name, then deleted under the old one: it is always somewhere."""

    def step(self):
        names = [f"moving {self.number} {side}" for side in "ab"]
        if self.sure is None:
            self.server.put(names[0], b"moving")
            self.sure = 0
        old, new = names[self.sure], names[1 - self.sure]
        self.server.storage("POST", f"/o/{quote(old)}/copyTo/b/{self.server.bucket}/o/{quote(new)}", "")
        if self.server.storage("DELETE", f"/o/{quote(old)}").status == 204:
            self.sure = 1 - self.sure

    def check(self, server):
        found = [server.get(f"moving {self.number} {side}") for side in "ab"]
        bodies = [answer.body for answer in found if answer.status == 200]
        assert self.sure is None or bodies, "lost while moving"
        assert set(bodies) <= {b"moving"}, bodies


def check_all(server, clients):
    for client in clients:
        client.check(server)
    files = {path.name for path in (server.folder / "data/objects").iterdir()}
    items = server.storage("GET", "/o").body.get("items", [])
    assert {item["generation"] for item in items} == files, "files and rows differ"
    return items


def kill_once(server, seed):
    """One round; the number of operations that were acknowledged."""
    kinds = [Uploads, Uploads, Uploads, Appends, Counts, Counts, Moves]
    clients = [kind(server, number, seed) for number, kind in enumerate(kinds)]
    server.token()
    for client in clients:
        client.start()
    while sum(client.done for client in clients) < 10:
        time.sleep(0.01)
    time.sleep(random.Random(seed).uniform(0, 0.5))
    server.process.kill()
    for client in clients:
        client.join()
    server.kill()
    server.start()
    for item in check_all(server, clients):
        server.storage("DELETE", "/o/" + quote(item["name"]))
    server.database("DELETE", "/count")
    return sum(client.done for client in clients)


def kill_at(program, template, call, number):
    """Whether a server was killed at its `number`th `call` while five clients worked in turns; checks what is left."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(template, folder, dirs_exist_ok=True)
        server = cloud.Cloud(program, folder=folder)
        server.token()
        inject = f"inject={call}:signal=KILL:when={number}"
        strace = subprocess.Popen(["strace", "-o", "/dev/null", "-p", str(server.process.pid), "-e", "trace=" + call,
                                   "-e", inject], stderr=subprocess.PIPE)
        strace.stderr.readline() # says that it is attached
        clients = [kind(server, i, 1) for i, kind in enumerate([Uploads, Uploads, Appends, Counts, Moves])]
        clients[0].sure = clients[1].sure = b"old"
        try:
            return is_killed_at_work(server, strace, clients)
        finally:
            server.kill()


def is_killed_at_work(server, strace, clients):
    try:
        for _ in range(3):
            for client in clients:
                client.step()
        killed = False
    except CUT:
        killed = server.process.wait(10) == -signal.SIGKILL
        assert killed, "the server ended by itself"
    strace.terminate()
    strace.communicate()
    server.kill()
    server.start()
    check_all(server, clients)
    return killed


def table(program, most):
    with tempfile.TemporaryDirectory() as template:
        server = cloud.Cloud(program, folder=template)
        for number in range(2):
            server.put(f"object {number}", b"old")
        server.kill()
        for call in CALLS:
            kills = 0
            while kills < most and kill_at(program, template, call, kills + 1):
                kills += 1
            print(f"{call}: killed at {kills} places, all old or new", flush=True)
            assert kills, "none was killed"


def main():
    known = cloud.arguments(("kills", 4), ("seed", 1), ("table", 0))
    if known.table:
        return table(known.program, known.table)
    server = cloud.Cloud(known.program)
    try:
        for seed in range(known.seed, known.seed + known.kills):
            print(f"kill {seed}: {kill_once(server, seed)} operations acknowledged, all there")
    finally:
        server.kill()


if __name__ == "__main__":
    main()
