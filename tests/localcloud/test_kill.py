# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""kill -9 in the middle of uploads and writes: nothing that was acknowledged is lost, nothing half is seen.

test_kill.py --program PROGRAM [--kills N] [--seed N]: prints a line for each kill. Each round several clients upload,
copy, delete, append to a resumable upload and count in the database; then what they were told is compared
with what is there.
"""
import http.client
import json
import random
import threading
import time

import cloud
from cloud import content, md5, quote

CHUNK = 256 * 1024
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

    def step(self):
        data = content(self.random.choice([10, 70_000, 600_000]), self.random.random())
        self.maybe = data
        name = f"object {self.number}"
        if self.random.random() < 0.5:
            answer = self.server.put(name, data)
        else:
            begun = self.server.storage("POST", f"/o?uploadType=resumable&name={quote(name)}", "{}", service="/upload")
            session = begun.headers["Location"].removeprefix(self.server.base)
            for start in range(0, len(data), CHUNK):
                piece = data[start:start + CHUNK]
                span = f"bytes {start}-{start + len(piece) - 1}/{len(data)}"
                answer = self.server.ask("PUT", session, piece, {"Content-Range": span})
        if answer.status == 200:
            self.sure = data

    def check(self, server):
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
    for client in clients:
        client.check(server)
    files = {path.name for path in (server.folder / "data/objects").iterdir()}
    items = server.storage("GET", "/o").body.get("items", [])
    assert {item["generation"] for item in items} == files, "files and rows differ"
    for item in items:
        server.storage("DELETE", "/o/" + quote(item["name"]))
    server.database("DELETE", "/count")
    return sum(client.done for client in clients)


def main():
    known = cloud.arguments(("kills", 4), ("seed", 1))
    server = cloud.Cloud(known.program)
    for seed in range(known.seed, known.seed + known.kills):
        print(f"kill {seed}: {kill_once(server, seed)} operations acknowledged, all there")
    server.stop()


if __name__ == "__main__":
    main()
