# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The real nuvex-localcloud in a folder of its own, and what it takes to ask it. Assertions are signed by openssl."""
import argparse
import base64
import collections
import hashlib
import http.client
import json
import pathlib
import random
import resource
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.parse

Answer = collections.namedtuple("Answer", "status headers body")
FULL = "https://www.googleapis.com/auth/devstorage.full_control https://www.googleapis.com/auth/firebase.database"
GRANT = "urn:ietf:params:oauth:grant-type:jwt-bearer"


def quote(text):
    return urllib.parse.quote(text, safe="")


def base64url(data):
    return base64.urlsafe_b64encode(data).rstrip(b"=").decode()


def md5(data):
    """As the storage service writes it."""
    return base64.b64encode(hashlib.md5(data).digest()).decode()


def head(method, target, **fields):
    """A request's head as bytes, to be sent by hand; "_" in a field's name is "-"."""
    lines = [f"{method} {target} HTTP/1.1", "Host: x"]
    lines += [f"{name.replace('_', '-')}: {value}" for name, value in fields.items()]
    return "\r\n".join([*lines, "\r\n"]).encode()


def content(size, seed=1):
    return random.Random(seed).randbytes(size)


class Cloud:
    """Starts the server; `limits` are (resource, value) pairs for its process."""

    def __init__(self, program, *options, folder=None, limits=()):
        self.program, self.options, self.limits = program, options, limits
        self.temporary = None if folder else tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(folder or self.temporary.name)
        self.port = 0
        self.start()

    def start(self):
        files = ["--write-deployment", self.folder / "deployment.json", "--write-key", self.folder / "key.json"]
        command = [self.program, "--data", self.folder / "data", "--port", self.port, *files, *self.options]
        self.process = subprocess.Popen([str(word) for word in command], stdout=subprocess.PIPE, text=True,
                                        preexec_fn=self._limit)
        self.base = self.process.stdout.readline().strip()
        assert self.base.startswith("http://127.0.0.1:"), self.base
        self.port = int(self.base.rsplit(":", 1)[1])
        self.deployment = json.loads((self.folder / "deployment.json").read_text())
        self.account = self.deployment["serviceAccount"]
        self.bucket = self.deployment["bucket"]
        self.credential = self.deployment["databaseCredential"]
        (self.folder / "key.pem").write_text(self.account["private_key"])
        self.access_token = None

    def _limit(self):
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        for kind, value in self.limits:
            resource.setrlimit(kind, (value, value))

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()

    def stop(self):
        """Ends it as an operator does; its exit code."""
        self.process.terminate()
        code = self.process.wait(20)
        self.process.stdout.close()
        if self.temporary:
            self.temporary.cleanup()
        return code

    def connect(self):
        return http.client.HTTPConnection("127.0.0.1", self.port, timeout=30)

    def socket(self, data=b""):
        connection = socket.create_connection(("127.0.0.1", self.port), timeout=30)
        connection.sendall(data)
        return connection

    def ask(self, method, target, body=None, headers=None, connection=None, chunked=False):
        """One request as it stands; JSON bodies come back as such."""
        own = connection or self.connect()
        body = body if body is None or isinstance(body, (bytes, str)) or chunked else json.dumps(body)
        try:
            own.request(method, target, body, headers or {}, encode_chunked=chunked)
            response = own.getresponse()
            data = response.read()
        finally:
            if not connection:
                own.close()
        if response.getheader("Content-Type", "").startswith("application/json"):
            data = json.loads(data)
        return Answer(response.status, response.headers, data)

    def sign(self, data, key=None):
        return subprocess.run(["openssl", "dgst", "-sha256", "-sign", key or self.folder / "key.pem"], input=data,
                              stdout=subprocess.PIPE, check=True).stdout

    def assertion(self, **claims):
        now = int(time.time())
        claims = {"iss": self.account["client_email"], "aud": self.account["token_uri"], "scope": FULL, "iat": now,
                  "exp": now + 3600, **claims}
        text = ".".join(base64url(json.dumps(part).encode()) for part in ({"alg": "RS256", "typ": "JWT"}, claims))
        return text + "." + base64url(self.sign(text.encode()))

    def grant(self, **claims):
        form = urllib.parse.urlencode({"grant_type": GRANT, "assertion": self.assertion(**claims)})
        return self.ask("POST", "/token", form, {"Content-Type": "application/x-www-form-urlencoded"})

    def token(self):
        if not self.access_token:
            self.access_token = self.grant().body["access_token"]
        return self.access_token

    def storage(self, method, rest, body=None, headers=None, service="", **more):
        """A request to the bucket with a token; `rest` follows its name."""
        headers = {"Authorization": "Bearer " + self.token(), **(headers or {})}
        return self.ask(method, f"{service}/storage/v1/b/{self.bucket}{rest}", body, headers, **more)

    def put(self, name, data, query="", **headers):
        """A media upload."""
        return self.storage("POST", f"/o?uploadType=media&name={quote(name)}{query}", data, headers, "/upload")

    def get(self, name, query="", **headers):
        return self.storage("GET", f"/o/{quote(name)}?alt=media{query}", headers=headers)

    def database(self, method, place, body=None, query="", headers=None):
        body = None if body is None else json.dumps(body)
        return self.ask(method, f"{place}.json?auth={self.credential}{query}", body, headers)

    def stream(self, place):
        return Stream(self, f"{place}.json?auth={self.credential}")

    def faults(self, *faults):
        return self.ask("PUT", "/_localcloud/faults", list(faults))

    def counters(self):
        return self.ask("GET", "/_localcloud/counters").body

    def memory_mib(self):
        """Resident memory; 0 when a sanitizer blurs it."""
        if b"__asan_init" in pathlib.Path(self.program).read_bytes():
            return 0
        lines = pathlib.Path(f"/proc/{self.process.pid}/status").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith("VmRSS")) / 1024


class Stream:
    """An open event stream."""

    def __init__(self, cloud, target):
        self.socket = cloud.socket(head("GET", target, Accept="text/event-stream"))
        self.file = self.socket.makefile("rb")
        self.status = int(self.file.readline().split()[1])
        while self.file.readline().strip():
            pass

    def event(self):
        """Name and data of the next event; None at the end."""
        lines = [self.file.readline().decode().rstrip("\n") for _ in range(3)]
        if not lines[1]:
            return None
        return lines[0].removeprefix("event: "), json.loads(lines[1].removeprefix("data: "))

    def put(self):
        """Path and data of the next event, which is a put."""
        name, data = self.event()
        assert name == "put", name
        return data["path"], data["data"]

    def close(self):
        self.file.close()
        self.socket.close()


class CloudTest(unittest.TestCase):
    """One server for all tests of a class."""
    options = ()

    @classmethod
    def setUpClass(cls):
        cls.cloud = Cloud(PROGRAM, *cls.options)
        cls.addClassCleanup(cls.end)

    @classmethod
    def end(cls):
        code = cls.cloud.stop()
        assert code == 0, f"the server ended with {code}"

    def tearDown(self):
        self.cloud.faults()
        self.assertIsNone(self.cloud.process.poll(), "the server has ended")


def arguments(*more):
    """The command line: the program, and further options as (name, default)."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    for name, default in more:
        parser.add_argument("--" + name, type=type(default), default=default)
    known, rest = parser.parse_known_args()
    sys.argv[1:] = rest
    return known


def run_tests():
    global PROGRAM
    PROGRAM = arguments().program
    unittest.main(module="__main__")


PROGRAM = None
