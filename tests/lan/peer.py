# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""A peer of the local network protocol, written from docs/lan-protocol.md alone."""

import socket
import struct
from pathlib import Path


def text(value):
    encoded = value.encode("utf-16-be", "surrogatepass")
    return struct.pack(">I", len(encoded)) + encoded


def frame(tag, payload):
    return tag + struct.pack("<q", len(payload)) + payload


def name_frame(name):
    return frame(b"SNAME", text(name))


def request(path):
    return frame(b"GFILE", text(path))


def file_frame(path, size):
    return frame(b"SFILE", text(path) + struct.pack(">q", size))


def sent_file(path, content):
    return file_frame(path, len(content)) + content


def announcement(name, port):
    return f"{name}@{port}".encode()


class Peer:
    """One connection. Says its name at once and keeps what it hears: the other's name and every frame, in order."""

    def __init__(self, connection, name="Python"):
        self.connection = connection
        self.connection.settimeout(20)
        self.name = None
        self.heard = []
        if name is not None:
            self.send(name_frame(name))

    @classmethod
    def connect(cls, port, name="Python", source="127.0.0.1", address="127.0.0.1"):
        return cls(socket.create_connection((address, port), timeout=20, source_address=(source, 0)), name)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.connection.close()

    def send(self, data):
        self.connection.sendall(data)

    def _read(self, count):
        data = bytearray()
        while len(data) < count:
            part = self.connection.recv(min(count - len(data), 1 << 20))
            if not part:
                raise EOFError(f"{len(data)} of {count} bytes")
            data += part
        return bytes(data)

    def read(self):
        """The next frame as (tag, text, content); content is None without one."""
        tag, length = struct.unpack("<5sq", self._read(13))
        payload = self._read(length)
        count = struct.unpack(">I", payload[:4])[0]
        value = payload[4:4 + count].decode("utf-16-be")
        content = None
        if tag == b"SFILE":
            content = self._read(struct.unpack(">q", payload[4 + count:])[0])
        elif tag == b"SNAME":
            self.name = value
        self.heard.append((tag.decode(), value))
        return tag, value, content

    def ask(self, path):
        """The content of a file of the other player."""
        self.send(request(path))
        return self.answer()

    def answer(self):
        while True:
            tag, value, content = self.read()
            if tag == b"SFILE" and value == "GFILE":
                return content

    def push(self, path, content):
        self.send(sent_file(path, content))

    def serve(self, folder, frames=-1):
        """Answers requests from `folder` and keeps files that come, until the end or for so many frames."""
        while frames != 0:
            frames -= 1
            try:
                tag, path, content = self.read()
            except (EOFError, OSError):
                return
            place = Path(folder) / path
            if tag == b"GFILE":
                self.push("GFILE", place.read_bytes() if place.is_file() else b"")
            elif tag == b"SFILE":
                place.parent.mkdir(parents=True, exist_ok=True)
                place.write_bytes(content)
