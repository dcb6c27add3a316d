#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Clients that nobody here wrote against the real local cloud: rclone, Google's Node client, curl, openssl.

acceptance.py --program PROGRAM [--short 1]

Prints a line for each step. The Node client is installed by npm into a temporary folder; --short 1 leaves it out and
takes small numbers.
"""
import base64
import hashlib
import json
import os
import pathlib
import subprocess
import tempfile
import time

import cloud

NODE_CLIENT = "@google-cloud/storage@7.19.0"
HERE = pathlib.Path(__file__).resolve().parent
ODD_NAMES = ["50% off?.png", "a+b #1 & c=d.bin", " blanks  inside .txt", "Müsli 北京 🎬.mp4", "тест/вложенный/файл.qml",
             "it's; \"quoted\"",
             "%2F%20", "a/b/c/d/e/f.txt", "-dash", ".hidden"]


def run(*command, **more):
    words = [str(word) for word in command]
    done = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False, **more)
    assert done.returncode == 0, f"{' '.join(words)}: {done.returncode}\n{done.stdout[-2000:]}\n{done.stderr[-2000:]}"
    return done.stdout


class Acceptance:
    def __init__(self, server, folder, short):
        self.server, self.folder, self.short = server, folder, short
        self.remote = f"cloud:{server.bucket}"
        self.environment = dict(os.environ, RCLONE_CONFIG="/dev/null", RCLONE_CONFIG_CLOUD_TYPE="google cloud storage",
                                RCLONE_CONFIG_CLOUD_SERVICE_ACCOUNT_FILE=str(server.folder / "key.json"),
                                RCLONE_CONFIG_CLOUD_ENDPOINT=server.base + "/storage/v1/", RCLONE_RETRIES="1",
                                RCLONE_LOW_LEVEL_RETRIES="1")

    def rclone(self, *command):
        return run("rclone", *command, env=self.environment).decode()

    def curl(self, *command):
        return run("curl", "-sS", *command)

    def files(self, name, count, size):
        folder = self.folder / name
        folder.mkdir()
        for i in range(count):
            (folder / f"{i:05}.bin").write_bytes(os.urandom(size))
        return folder

    def rclone_copies_and_lists(self):
        many, listed = (40, 120) if self.short else (1000, 5000)
        source = self.files("many", many, 10_000)
        self.rclone("copy", source, self.remote + "/many")
        self.rclone("check", "--download", source, self.remote + "/many")
        self.rclone("copy", self.remote + "/many", self.folder / "many back")
        self.rclone("check", source, self.folder / "many back")
        self.rclone("copy", self.files("list", listed, 3), self.remote + "/list", "--transfers", "16")
        names = self.rclone("lsf", self.remote + "/list").split()
        assert names == [f"{i:05}.bin" for i in range(listed)], len(names)
        self.rclone("purge", self.remote + "/list")
        assert self.rclone("lsf", self.remote) == "many/\n"
        return f"{many} files there and back, {listed} listed"

    def rclone_names(self):
        source = self.folder / "names"
        for name in ODD_NAMES:
            (source / name).parent.mkdir(parents=True, exist_ok=True)
            (source / name).write_bytes(name.encode() * 100)
        self.rclone("sync", source, self.remote + "/names")
        assert sorted(self.rclone("lsf", "-R", "--files-only",
                                  self.remote + "/names").splitlines()) == sorted(ODD_NAMES)
        self.rclone("check", "--download", source, self.remote + "/names")
        (source / ODD_NAMES[0]).write_bytes(b"changed")
        (source / ODD_NAMES[1]).unlink()
        os.utime(source / ODD_NAMES[2], (1, 1))
        self.rclone("sync", source, self.remote + "/names")
        self.rclone("check", "--download", source, self.remote + "/names")
        self.rclone("move", self.remote + "/names", self.remote + "/moved")
        self.rclone("check", source, self.remote + "/moved")
        return f"{len(ODD_NAMES)} odd names copied, changed, moved"

    def rclone_parts(self):
        size = (20 if self.short else 300) * 1_000_000
        large = self.folder / "large.bin"
        large.write_bytes(os.urandom(size))
        self.rclone("copy", large, self.remote + "/parts")
        self.rclone("copy", self.remote + "/parts/large.bin", self.folder / "back", "--multi-thread-cutoff", "1M")
        assert (self.folder / "back/large.bin").read_bytes() == large.read_bytes()
        return f"{size // 1_000_000} MB in parts, both ways"

    def curl_conditions_and_ranges(self):
        bearer = ["-H", "Authorization: Bearer " + self.server.token()]
        place = f"{self.server.base}/storage/v1/b/{self.server.bucket}/o"
        upload = place.replace("/storage/", "/upload/storage/") + "?uploadType=media&name=curl&ifGenerationMatch=0"
        status = ["-o", "/dev/null", "-w", "%{http_code}"]
        assert self.curl(*bearer, *status, "--data-binary", "0123456789", upload) == b"200"
        assert self.curl(*bearer, *status, "--data-binary", "x", upload) == b"412"
        assert self.curl(*bearer, "-r", "2-4", place + "/curl?alt=media") == b"234"
        assert self.curl(*bearer, *status, "-r", "10-", place + "/curl?alt=media") == b"416"
        generation = json.loads(self.curl(*bearer, place + "/curl"))["generation"]
        assert self.curl(*bearer, *status, f"{place}/curl?ifGenerationNotMatch={generation}") == b"304"
        assert self.curl(*bearer, *status, "-X", "DELETE", place + "/curl") == b"204"
        return "upload once, 412, range, 416, 304, delete"

    def curl_gigabyte(self):
        size = (64 if self.short else 1024) * 1024 * 1024
        large = self.folder / "gigabyte"
        with large.open("wb") as file:
            block = os.urandom(1 << 20)
            for i in range(size >> 20):
                file.write(i.to_bytes(8, "big") + block[8:])
        upload = f"{self.server.base}/upload/storage/v1/b/{self.server.bucket}/o?uploadType=media&name=gigabyte"
        bearer = ["-H", "Authorization: Bearer " + self.server.token()]
        before = self.server.memory_mib()
        began = time.monotonic()
        self.curl(*bearer, "-X", "POST", "-T", large, upload)
        middle = time.monotonic()
        media = f"{self.server.base}/storage/v1/b/{self.server.bucket}/o/gigabyte?alt=media"
        self.curl(*bearer, "-o", self.folder / "down", media)
        end = time.monotonic()
        with large.open("rb") as up, (self.folder / "down").open("rb") as down:
            assert hashlib.file_digest(up, "md5").digest() == hashlib.file_digest(down, "md5").digest()
        memory = self.server.memory_mib()
        assert memory < before + 8, (before, memory)
        times = f"up {middle - began:.1f} s, down {end - middle:.1f} s"
        return f"{size >> 20} MiB {times}, memory {before:.0f} to {memory:.0f} MiB"

    def curl_database(self):
        auth = "?auth=" + self.server.deployment["databaseCredential"]
        place = f"{self.server.base}/Users/ann@xorg/Players/hall_1.json{auth}"
        events = subprocess.Popen(["curl", "-sSN", "-H", "Accept: text/event-stream", place], stdout=subprocess.PIPE)
        assert events.stdout.readline() + events.stdout.readline() == b'event: put\ndata: {"path":"/","data":null}\n'
        beat = json.loads(self.curl("-X", "POST", "-H", "X-HTTP-Method-Override: PATCH", "-d",
                                    '{"heartbeat":{".sv":"timestamp"}}', place))
        line = [events.stdout.readline() for _ in range(3)]
        assert line[1] == b"event: patch\n" and json.loads(line[2][6:]) == {"path": "/", "data": beat}, line
        assert json.loads(self.curl(f"{self.server.base}/Users/ann@xorg.json{auth}&shallow=true")) == {"Players": True}
        assert self.curl("-X", "DELETE", place) == b"null"
        assert json.loads([events.stdout.readline() for _ in range(3)][2][6:]) == {"path": "/", "data": None}
        events.kill()
        events.wait()
        events.stdout.close()
        return "stream, heartbeat, shallow read, delete"

    def openssl_checks_signatures(self):
        server = self.server
        run("openssl", "pkey", "-in", server.folder / "key.pem", "-pubout", "-out", server.folder / "public.pem")
        body = {"email": "ann@example.org", "password": "secret"}
        token = server.ask("POST", "/v1/accounts:signUp?key=" + server.deployment["webApiKey"], body).body["idToken"]
        text, signature = token.rsplit(".", 1)

        (server.folder / "signature").write_bytes(base64.urlsafe_b64decode(signature + "=="))
        run("openssl", "dgst", "-sha256", "-verify", server.folder / "public.pem", "-signature",
            server.folder / "signature", input=text.encode())
        granted = server.grant()
        assert granted.status == 200, granted
        return "an ID token's signature, a token by hand"

    def node_client(self):
        folder = self.folder / "node"
        folder.mkdir()
        run("npm", "install", "--no-audit", "--no-fund", "--prefix", folder, NODE_CLIENT)
        environment = dict(os.environ, CLOUD=self.server.base, DEPLOYMENT=str(self.server.folder / "deployment.json"),
                           TOKEN=self.server.token(), NODE_PATH=str(folder / "node_modules"))
        return run("node", HERE / "nodeclient.js", env=environment).decode().strip().replace("\n", ", ")


def main():
    known = cloud.arguments(("short", 0))
    server = cloud.Cloud(pathlib.Path(known.program).resolve())
    with tempfile.TemporaryDirectory() as folder:
        acceptance = Acceptance(server, pathlib.Path(folder), known.short)
        steps = [acceptance.rclone_copies_and_lists, acceptance.rclone_names, acceptance.rclone_parts,
                 acceptance.curl_conditions_and_ranges, acceptance.curl_gigabyte, acceptance.curl_database,
                 acceptance.openssl_checks_signatures]
        if not known.short:
            steps.append(acceptance.node_client)
        try:
            for step in steps:
                began = time.monotonic()
                print(f"{step.__name__}: {step()} ({time.monotonic() - began:.1f} s)", flush=True)
        finally:
            server.stop()


if __name__ == "__main__":
    main()
