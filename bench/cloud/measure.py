#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Measures the cloud's client on the local cloud, beside curl, rclone and bare LibTomCrypt, each a process.

measure.py BENCH_CLOUD NUVEX-LOCALCLOUD [--mebibytes N] [--files N] [--unchanged N] [--rounds N]

Plain HTTP and TLS; HAProxy ends that, with a certificate made for the run. Prints markdown tables.
"""
import argparse
import json
import os
import pathlib
import shutil
import socket
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/localcloud"))
import cloud  # noqa: E402

PROJECT = "NUVEX/users/a@b.c/ShareFolder/Bench/"
SMALL = 4000  # bytes of a small file


def options():
    parser = argparse.ArgumentParser()
    parser.add_argument("bench")
    parser.add_argument("program")
    for name, default in {"mebibytes": 1024, "files": 2000, "unchanged": 10_000, "revisions": 200, "rounds": 3}.items():
        parser.add_argument("--" + name, type=int, default=default)
    known = parser.parse_args()
    known.bench, known.program = (str(pathlib.Path(path).resolve()) for path in (known.bench, known.program))
    return known


class Terminator:
    """HAProxy in front of the server, and the deployment that leads there; tokens, whose assertions name the address
    that they are sent to, are fetched without it."""

    def __init__(self, server):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        self.base = f"https://localhost:{port}"
        self.certificate = server.folder / "tls.pem"
        # Behind the certificate's name plus ".key", HAProxy looks for the key.
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                        "/CN=localhost", "-addext", "subjectAltName=DNS:localhost", "-keyout",
                        f"{self.certificate}.key", "-out", self.certificate], check=True, stderr=subprocess.DEVNULL)
        settings = server.folder / "haproxy.conf"
        settings.write_text(f"""defaults
    mode http
    timeout connect 10s
    timeout client 2m
    timeout server 2m
listen cloud
    bind 127.0.0.1:{port} ssl crt {self.certificate}
    http-request set-header X-Forwarded-Proto https
    server local 127.0.0.1:{server.port}
""")
        self.process = subprocess.Popen(["haproxy", "-db", "-f", str(settings)], stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        while subprocess.run(["curl", "-s", "-o", "/dev/null", "--cacert", self.certificate, self.base],
                             check=False).returncode:
            time.sleep(0.05)
        self.deployment = server.folder / "tls-deployment.json"
        deployment = json.loads((server.folder / "deployment.json").read_text())
        deployment["hosts"]["storage"] = self.base
        self.deployment.write_text(json.dumps(deployment))

    def stop(self):
        self.process.terminate()
        self.process.wait()


class Way:
    """How the programs reach the server: its address, and what they need for that."""

    def __init__(self, known, server, name, base, deployment, certificate=None):
        self.known, self.server, self.name, self.base, self.deployment = known, server, name, base, deployment
        self.trust = ["--cacert", str(certificate)] if certificate else []
        self.environment = dict(os.environ, RCLONE_CONFIG="/dev/null", NUVEX_BENCH_CA=str(certificate or ""),
                                RCLONE_CONFIG_CLOUD_TYPE="google cloud storage",
                                RCLONE_CONFIG_CLOUD_SERVICE_ACCOUNT_FILE=str(server.folder / "key.json"),
                                RCLONE_CONFIG_CLOUD_ENDPOINT=base + "/storage/v1/")
        if certificate:
            self.environment["RCLONE_CA_CERT"] = str(certificate)

    def time(self, *words):
        """Seconds of a process, with its start."""
        began = time.perf_counter()
        subprocess.run([str(word) for word in words], check=True, env=self.environment, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        return time.perf_counter() - began

    def bench(self, *words):
        return self.time(self.known.bench, self.deployment, *words)

    def rclone(self, path, folder):
        return self.time("rclone", "copy", f"cloud:{self.server.bucket}/{path}", folder)

    def curl(self, name, file):
        return self.time("curl", "-sSf", *self.trust, "-o", file, "-H", "Authorization: Bearer " + self.server.token(),
                         f"{self.base}/storage/v1/b/{self.server.bucket}/o/{cloud.quote(name)}?alt=media")


def put_large(server, mebibytes):
    file = server.folder / "large"
    with file.open("wb") as out:
        for _ in range(mebibytes):
            out.write(os.urandom(1 << 20))
    subprocess.run(["curl", "-sSf", "-X", "POST", "-T", file, "-H", "Authorization: Bearer " + server.token(),
                    f"{server.base}/upload/storage/v1/b/{server.bucket}/o?uploadType=media&name=large"],
                   check=True, stdout=subprocess.DEVNULL)
    file.unlink()


def put_project(server, files):
    connection = server.connect()
    for number in range(files):
        place = f"/o?uploadType=media&name={cloud.quote(PROJECT + str(number))}"
        server.storage("POST", place, cloud.content(SMALL, number), service="/upload", connection=connection)
    server.put(PROJECT + "dirmap", "".join(f"{number} 1\n" for number in range(files)))


def in_turns(rounds, ways):
    """The seconds of each of several functions of a new folder, in turns, back and forth."""
    times = {name: [] for name in ways}
    for number in range(rounds):
        for name in list(ways)[::-1 if number % 2 else 1]:
            with tempfile.TemporaryDirectory() as folder:
                times[name].append(ways[name](folder))
    return times


def print_rows(title, way, times, peer):
    for name, values in times.items():
        middle, least = statistics.median(values), statistics.median(times[peer])
        print(f"| {title} | {way.name} | {name} | {middle:.2f} | {min(values):.2f} | {middle / least:.2f} |", flush=True)


def measure_transfers(known, ways):
    print("| what | over | by | seconds, median | least | to the peer |\n|---|---|---|---|---|---|")
    for way in ways:
        times = in_turns(known.rounds, {
            "Nuvex, hash checked": lambda folder: way.bench("get", "large", folder + "/large"),
            "curl": lambda folder: way.curl("large", folder + "/large")})
        print_rows(f"{known.mebibytes} MiB in one file", way, times, "curl")
        token = way.server.token()
        small = {"Nuvex, a pull": lambda folder: way.bench("pull", folder, "1"),
                 "Nuvex, the transfers alone": lambda folder: way.bench("carry", PROJECT, known.files, folder),
                 "a connection a file": lambda folder: way.bench("singly", token, PROJECT, known.files, folder),
                 "rclone copy": lambda folder: way.rclone(PROJECT, folder)}
        print_rows(f"{known.files} files of {SMALL} bytes", way, in_turns(known.rounds, small), "rclone copy")


def measure_unchanged(known, server):
    """A project whose map says that nothing has changed: its files need not be in the cloud for that."""
    with tempfile.TemporaryDirectory() as root:
        project = pathlib.Path(root, "Work/Bench")
        project.mkdir(parents=True)
        lines = "".join(f"{number:05} 1\n" for number in range(known.unchanged))
        for number in range(known.unchanged):
            (project / f"{number:05}").write_bytes(b"x")
        (project / "dirmap").write_text(lines)
        server.put(PROJECT + "dirmap", lines)
        rounds = 21
        ended = subprocess.run([known.bench, server.folder / "deployment.json", "pull", root, "1", str(rounds)],
                               check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        first, *others = map(float, ended.stdout.split())
        print(f"\nAn unchanged project of {known.unchanged} files: {first:.1f} ms the first time, with a token to get and a "
              f"record to make; then {statistics.median(others):.1f} ms (most {max(others):.1f}).")


def measure_revisions(known, server):
    """From the write of a revision to the begin of its pull, in a window with one animated item."""
    screen = pathlib.Path(__file__).resolve().parents[2] / "tests/support/on-virtual-screen"
    with tempfile.TemporaryDirectory() as root:
        server.put(PROJECT + "0", b"x")
        server.put(PROJECT + "dirmap", "0 1\n")
        ended = subprocess.run([screen, known.bench, server.folder / "deployment.json", "revisions", root,
                                str(known.revisions)],
                               check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    times = sorted(map(float, ended.stdout.split()))
    late = times[len(times) * 99 // 100]
    print(f"\nFrom a revision's write to startUpdating, {len(times)} events: median {statistics.median(times):.2f} ms, "
          f"99th percentile {late:.2f} ms, most {times[-1]:.2f} ms.")


def measure_signatures(known, server):
    ended = subprocess.run([known.bench, server.folder / "deployment.json", "sign", "2"], check=True,
                           stdout=subprocess.PIPE, text=True)
    rounds = [tuple(map(float, line.split())) for line in ended.stdout.splitlines()]
    ours, least = (statistics.median(values) for values in zip(*rounds))
    ratio = statistics.median(a / b for a, b in rounds)
    print(f"\nSignatures a second: {ours:.0f}; bare LibTomCrypt: {least:.0f}; ratio {ratio:.2f}.")


def main():
    known = options()
    folder = tempfile.mkdtemp(prefix="nuvex-bench-")
    server = cloud.Cloud(known.program, folder=folder)
    terminator = Terminator(server)
    try:
        put_large(server, known.mebibytes)
        put_project(server, known.files)
        measure_transfers(known, [
            Way(known, server, "HTTP", server.base, server.folder / "deployment.json"),
            Way(known, server, "TLS", terminator.base, terminator.deployment, terminator.certificate)])
        measure_unchanged(known, server)
        measure_revisions(known, server)
        measure_signatures(known, server)
    finally:
        terminator.stop()
        server.kill()
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
