# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Players without a window as processes, projects for them, and a proxy between them."""

import ctypes
import os
import random
import select
import shutil
import signal
import socket
import struct
import subprocess
import tempfile
import threading
import time
from pathlib import Path

DEADLINE = 60  # seconds until something that should happen counts as not happening
CLONE_NEWUSER, CLONE_NEWNET = 0x10000000, 0x40000000


def isolate():
    """Gives this process, before it has threads, a network of its own; False where that is not allowed."""
    libc = ctypes.CDLL(None, use_errno=True)
    flags = CLONE_NEWNET if os.geteuid() == 0 else CLONE_NEWNET | CLONE_NEWUSER
    return libc.unshare(flags) == 0 and subprocess.run(["ip", "link", "set", "lo", "up"], check=False).returncode == 0


def write_project(folder, files, revisions=None):
    """Writes `files`, contents by path, and their directory map; the revision is 1 if `revisions` has none."""
    for path, content in files.items():
        place = folder / path
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_bytes(content)
    lines = [f"{path} {(revisions or {}).get(path, 1)}\n" for path in files]
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "dirmap").write_text("".join(lines), "utf-8")


def contents(folder):
    """Everything below `folder`: contents by path."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in Path(folder).rglob("*") if path.is_file()}


class Player:
    """A running lanplayer with a work directory of its own."""

    program = None

    def __init__(self, name, work=None, announce=(), before=()):
        self.name = name
        self.is_temporary = work is None
        self.work = Path(work or tempfile.mkdtemp(prefix="nuvex-lan-"))
        self.work.mkdir(exist_ok=True)
        self.lines = []
        self.log_file = tempfile.TemporaryFile()
        self.process = subprocess.Popen([*before, self.program, str(self.work), name, *announce], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=self.log_file)
        self.pending = b""
        self.port = int(self.wait("port ").split()[1])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        """Ends it; a sanitizer's finding is an exit code."""
        code = self.quit()
        if self.is_temporary:
            shutil.rmtree(self.work, ignore_errors=True)
        assert code in (0, -signal.SIGKILL), f"{self.name} ended with {code}:\n{self.log()}"

    def say(self, command):
        self.process.stdin.write(command.encode() + b"\n")
        self.process.stdin.flush()

    def wait(self, start, deadline=DEADLINE):
        """The first line that begins so and was not waited for yet."""
        end = time.monotonic() + deadline
        while True:
            for number, line in enumerate(self.lines):
                if line.startswith(start):
                    return self.lines.pop(number)
            ready = select.select([self.process.stdout], [], [], max(0, end - time.monotonic()))[0]
            part = os.read(self.process.stdout.fileno(), 65536) if ready else b""
            if not part:
                raise AssertionError(f"{self.name}: no '{start}' in {self.lines}; log:\n{self.log()}")
            *lines, self.pending = (self.pending + part).split(b"\n")
            self.lines += [line.decode() for line in lines]

    def meet(self, other, port=None):
        self.say(f"connect 127.0.0.1 {port or other.port}")
        self.wait("started " + other.name)
        other.wait("started " + self.name)

    def exchange(self, what, player, project="Shop"):
        """Sends or fetches; whether that succeeded, and the outcome in words."""
        self.say(f"{what} {player} {project}")
        return self.ended()

    def ended(self, deadline=DEADLINE):
        _, answer, _, words = self.wait("ended ", deadline).split(" ", 3)
        return answer == "yes", words

    def log(self):
        self.log_file.seek(0)
        return self.log_file.read().decode("utf-8", "replace")

    def count(self, folder):
        """Entries of a folder of the process: task, fd."""
        return len(os.listdir(f"/proc/{self.process.pid}/{folder}"))

    def quit(self, deadline=DEADLINE):
        if self.process.poll() is None:
            try:
                self.say("quit")
            except (BrokenPipeError, ValueError):
                pass  # it has just ended
        return self.process.wait(deadline)


class Proxy:
    """Passes connections on to `port`: in slices of `slice_bytes`, each `delay` seconds later than it came. The end of
    one side is a reset for the other."""

    def __init__(self, port, slice_bytes=1 << 16, delay=0.0):
        self.target, self.slice, self.delay = port, slice_bytes, delay
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        threading.Thread(target=self._accept, daemon=True).start()

    def _accept(self):
        while True:
            try:
                ends = [self.listener.accept()[0], socket.create_connection(("127.0.0.1", self.target))]
            except OSError:
                return
            for source, target in (ends, ends[::-1]):
                target.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                queue = []
                arrived = threading.Condition()
                threading.Thread(target=self._take, args=(source, queue, arrived), daemon=True).start()
                threading.Thread(target=self._give, args=(target, ends, queue, arrived), daemon=True).start()

    def _take(self, source, queue, arrived):
        data = b"x"
        while data:
            try:
                data = source.recv(self.slice)
            except OSError:
                data = b""
            with arrived:
                queue.append((time.monotonic() + self.delay, data))
                arrived.notify()

    def _give(self, target, ends, queue, arrived):
        while True:
            with arrived:
                arrived.wait_for(lambda: queue)
                due, data = queue.pop(0)
            time.sleep(max(0.0, due - time.monotonic()))
            if not data:
                return self._reset(ends)
            try:
                target.sendall(data)
            except OSError:
                return self._reset(ends)

    @staticmethod
    def _reset(ends):
        for end in ends:
            try:
                end.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
                end.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.listener.close()
