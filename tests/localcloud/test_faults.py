# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The faults that tests can ask for, the counters, and requests that no honest client sends."""
import http.client
import random
import socket
import time
import unittest

import cloud
from cloud import CloudTest, content, head


class FaultTest(CloudTest):
    def setUp(self):
        self.data = content(100_000)
        self.cloud.put("f", self.data)
        self.cloud.ask("DELETE", "/_localcloud/counters")

    def assert_whole(self):
        self.assertEqual(self.cloud.get("f").body, self.data)

    def test_answers_instead(self):
        page = "<html>Log in to the hotel's network</html>"
        cases = [({"status": 503}, 503, None, b""),
                 ({"body": page, "headers": {"Content-Type": "text/html"}}, 200, "text/html", page.encode()),
                 ({"redirect": "http://127.0.0.1:1/x"}, 307, None, b""),
                 ({"status": 404, "body": "[1]"}, 404, None, b"[1]"),
                 ({"bodyBase64": "H4sI/w=="}, 200, None, b"\x1f\x8b\x08\xff"),
                 ({"bodyBytes": 3_000_000}, 200, None, b" " * 3_000_000)]
        for fault, status, kind, body in cases:
            self.cloud.faults({"target": "*/o/f?alt=media", **fault})
            answer = self.cloud.get("f")
            self.assertEqual((answer.status, answer.headers["Content-Type"], answer.body == body), (status, kind, True),
                             fault)
            self.assertEqual(answer.headers["Location"], fault.get("redirect"))
            self.assert_whole()

    def test_answers_that_are_damaged(self):
        self.cloud.faults({"corruptAt": 77_777}, {"headers": {"X-Goog-Hash": "crc32c=AAAAAA=="}}, {"lengthError": -1},
                          {"lengthError": 5},
                          {"cutAfter": 99_999}, {"cutAfter": 0})
        corrupt = self.cloud.get("f").body
        self.assertEqual([i for i in range(100_000) if corrupt[i] != self.data[i]], [77_777])
        self.assertEqual(self.cloud.get("f").headers["X-Goog-Hash"], "crc32c=AAAAAA==")
        self.assertEqual(self.cloud.get("f").body, self.data[:-1])
        for _ in range(3):
            with self.assertRaises(http.client.IncompleteRead):
                self.cloud.get("f")
        self.assert_whole()

    def test_time(self):
        self.cloud.faults({"delayMs": 400}, {"bytesPerSecond": 200_000})
        for least in (0.4, 0.4):
            before = time.monotonic()
            self.assert_whole()
            self.assertGreater(time.monotonic() - before, least)
        for fault, arrived in ({"stallAfter": 1234}, 1234), ({"stallAfter": 0}, 0):
            self.cloud.faults(fault)
            target = f"/storage/v1/b/{self.cloud.bucket}/o/f?alt=media&access_token={self.cloud.token()}"
            with self.cloud.socket(head("GET", target)) as stalled:
                stalled.settimeout(0.5)
                read = b""
                with self.assertRaises(TimeoutError):
                    while True:
                        read += stalled.recv(100_000)
                self.assertEqual(read.split(b"\r\n\r\n", 1)[1], self.data[:arrived])

    def test_dropped_requests(self):
        for drop, value in ("before", None), ("after", 1):
            self.cloud.faults({"method": "PUT", "drop": drop})
            with self.assertRaises(http.client.RemoteDisconnected):
                self.cloud.database("PUT", "/drop", 1)
            self.assertEqual(self.cloud.database("GET", "/drop").body, value)

    def test_uploads(self):
        self.cloud.faults({"requestCutAfter": 60_000})
        with self.assertRaises((ConnectionError, http.client.HTTPException)):
            self.cloud.put("cut", content(20_000_000))
        self.assertEqual(self.cloud.get("cut").status, 404)
        self.cloud.faults({"requestStallAfter": 60_000})
        connection = self.cloud.connect()
        connection.timeout = 0.5
        with self.assertRaises(TimeoutError):
            self.cloud.storage("POST", "/o?uploadType=media&name=stalled", content(20_000_000), service="/upload",
                               connection=connection)
        connection.close()

    def test_which_requests(self):
        self.cloud.faults({"method": "DELETE", "status": 500},
                          {"target": "/w*.json*", "skip": 1, "times": 2, "status": 503},
                          {"target": "*", "credentialsExpired": True, "skip": 3})
        self.assertEqual([self.cloud.database("GET", "/w").status for _ in range(5)], [200, 503, 503, 200, 200])
        self.assertEqual([self.cloud.storage("GET", "/o").status for _ in range(2)], [401, 200])
        self.assertEqual(self.cloud.ask("GET", "/_localcloud/faults").body, {"left": 1})
        self.assertEqual(self.cloud.database("DELETE", "/w").status, 500)
        self.assertEqual(self.cloud.ask("GET", "/_localcloud/faults").body, {"left": 0})

    def test_streams(self):
        self.cloud.faults({"target": "/st.json*", "cutAfter": 20}, {"target": "/st.json*", "stallAfter": 1000})
        cut, silent, first, second = (self.cloud.stream("/st") for _ in range(4))
        self.assertEqual(cut.file.read(), b"event: put\ndata: {\"p")
        silent.put(), first.put(), second.put()
        self.cloud.database("PUT", "/st", "x" * 2000)
        self.assertEqual(len(silent.file.read(957)), 957) # of the two events
        silent.socket.settimeout(0.3)
        with self.assertRaises(TimeoutError):
            silent.file.read(1)
        first.put(), second.put()
        self.assertEqual(self.cloud.ask("DELETE", "/_localcloud/streams?how=cancel").status, 204)
        self.assertEqual([first.event(), first.event(), second.event()], [("cancel", None), None, ("cancel", None)])
        mute = self.cloud.stream("/st")
        mute.put()
        self.cloud.ask("DELETE", "/_localcloud/streams?how=silence")
        self.cloud.database("PUT", "/st", 1)
        mute.socket.settimeout(0.3)
        with self.assertRaises(TimeoutError):
            mute.file.read(1)
        for stream in (cut, silent, first, second, mute):
            stream.close()

    def test_counters(self):
        connection = self.cloud.connect()
        for _ in range(3):
            self.cloud.ask("GET", "/x.json", connection=connection)
        connection.close()
        self.cloud.storage("GET", "/o?prefix=a")
        self.cloud.get("f")
        counters = self.cloud.counters()
        self.assertEqual(counters["requests"], {"GET database": 3, "GET list": 1, "GET media": 1})
        self.assertEqual(counters["connections"], 4 if self.cloud.access_token else 5)

    def test_faults_that_are_none(self):
        cases = {"[": "list", "{}": "list", "[1]": "object", '[{"statsu": 1}]': "statsu", '[{"status": "x"}]': "status",
                 '[{"drop": "x"}]': "drop",
                 '[{"headers": {"a": 1}}]': "headers", '[{"bodyBase64": "!"}]': "bodyBase64",
                 '[{"delayMs": -1}]': "delayMs", '[{"bodyBytes": 1e3}]': "bodyBytes"}
        for text, word in cases.items():
            answer = self.cloud.ask("PUT", "/_localcloud/faults", text)
            self.assertEqual(answer.status, 400, text)
            self.assertIn(word, answer.body["error"]["message"])
        self.assertEqual(self.cloud.ask("GET", "/_localcloud/nothing").status, 404)


class HostileTest(CloudTest):
    def upload(self, query):
        place = f"/upload/storage/v1/b/{self.cloud.bucket}/o"
        return f"{place}?uploadType={query}&access_token={self.cloud.token()}"

    def answer_to(self, data, then=b""):
        """All that comes back, until the server closes or the half-closed connection ends."""
        with self.cloud.socket() as connection:
            try:
                connection.sendall(data)
                connection.sendall(then)
                connection.shutdown(socket.SHUT_WR)
                return b"".join(iter(lambda: connection.recv(65536), b""))
            except (ConnectionResetError, BrokenPipeError):
                return b"reset"

    def test_requests_that_are_none(self):
        upload = head("POST", self.upload("media&name=h")).removesuffix(b"\r\n")
        cases = {
            b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03": b" 400 ", b"NONSENSE\r\n\r\n": b" 400 ",
            b"GET / HTTP/9.9\r\n\r\n": b" 400 ",
            b"GET http://elsewhere/ HTTP/1.1\r\n\r\n": b" 400 ", b"GET /%zz HTTP/1.1\r\n\r\n": b" 400 ",
            b"GET / HTTP/1.1\r\nbroken\r\n\r\n": b" 400 ",
            b"GET / HTTP/1.1\r\nX: " + b"y" * 100_000 + b"\r\n\r\n": b" 431 ",
            b"GET /" + b"z" * 100_000 + b" HTTP/1.1\r\n\r\n": b" 431 ",
            b"GET / HTTP/1.1\r\n" + b"A: b\r\n" * 20_000 + b"\r\n": b" 431 ",
            upload + b"Content-Length: 5\r\nContent-Length: 6\r\n\r\nabcdef": b" 400 ",
            upload + b"Content-Length: -5\r\n\r\n": b" 400 ",
            upload + b"Content-Length: 99999999999999999999999\r\n\r\n": b" 400 ",
            upload + b"Transfer-Encoding: chunked\r\n\r\nnonsense\r\n": b"",
            upload + b"Transfer-Encoding: chunked\r\n\r\nffffffffffffffffff\r\n": b"",
            upload + b"Transfer-Encoding: chunked\r\n\r\n5\r\nabcdefgh": b"",
            upload + b"Content-Length: 50\r\n\r\nshort": b"",
            b"GET /..%2f..%2fetc/passwd HTTP/1.0\r\n\r\n": b" 404 ",
            b"GET /../../etc/passwd HTTP/1.0\r\n\r\n": b" 404 ",
        }
        for data, expected in cases.items():
            answer = self.answer_to(data)
            self.assertIn(expected, answer, data[:60])
            self.assertNotIn(b" 200 ", answer, data[:60])
        self.assertEqual(self.cloud.get("h").status, 404)
        two = b"GET /a.json?auth=x HTTP/1.1\r\nHost: x\r\n\r\n"
        self.assertEqual(self.answer_to(two * 50).count(b" 401 "), 50) # sent without waiting

    def test_random_bytes(self):
        random_bytes = random.Random(5)
        database = "/x.json?auth=" + self.cloud.credential
        parts = b'--B\r\n\r\n{"name":"n"}\r\n--B\r\n\r\nxyz\r\n--B--'
        kind = {"Content_Type": "multipart/related; boundary=B", "Content_Length": len(parts)}
        seeds = [head("GET", database, Accept="text/event-stream"),
                 head("PUT", database, Transfer_Encoding="chunked") + b"3\r\n{}\n\r\n0\r\n\r\n",
                 head("POST", self.upload("multipart"), **kind) + parts]
        for _ in range(600):
            data = bytearray(random_bytes.choice(seeds))
            for _ in range(random_bytes.randrange(1, 6)):
                data[random_bytes.randrange(len(data))] = random_bytes.choice(b"\x00\r\n :/%?{}\xff09azAZ")
            with self.cloud.socket(bytes(data)) as connection:
                connection.settimeout(0.02)
                try:
                    connection.recv(1000)
                except (TimeoutError, ConnectionError):
                    pass
        self.assertEqual(self.cloud.database("GET", "/alive").status, 200)

    def test_refused_bodies(self):
        """The answer arrives although much of the body is still on its way; a short body keeps the connection."""
        large = self.cloud.ask("POST", f"/upload/storage/v1/b/{self.cloud.bucket}/o?uploadType=media&name=x",
                               content(30_000_000))
        self.assertEqual(large.status, 401)
        self.cloud.ask("DELETE", "/_localcloud/counters")
        connection = self.cloud.connect()
        for _ in range(3):
            self.assertEqual(self.cloud.ask("PUT", "/x.json", {"a": 1}, connection=connection).status, 401)
        self.assertEqual(self.cloud.counters()["connections"], 2)
        connection.close()
        asks_first = {"Expect": "100-continue", "Content_Length": 1}
        refused = head("POST", "/upload/storage/v1/b/x/o?uploadType=media", **asks_first)
        self.assertIn(b"HTTP/1.1 404", self.answer_to(refused))
        with self.cloud.socket(head("PUT", "/x.json?auth=" + self.cloud.credential, **asks_first)) as wanted:
            self.assertEqual(wanted.recv(100), b"HTTP/1.1 100 Continue\r\n\r\n")
            wanted.sendall(b"7")
            self.assertIn(b" 200 OK", wanted.recv(1000))

    def test_slow_heads(self):
        """Those who never finish their request's head are not waited for, and nobody waits for them."""
        slow = [self.cloud.socket(b"GET /x.json HTTP/1.1\r\n") for _ in range(50)]
        before = time.monotonic()
        while slow:
            time.sleep(0.5)
            self.assertEqual(self.cloud.database("GET", "/x").status, 200)
            self.assertLess(time.monotonic() - before, 20)
            for connection in list(slow):
                try:
                    connection.sendall(b"X: y\r\n")
                except ConnectionError:
                    connection.close()
                    slow.remove(connection)
        self.assertGreater(time.monotonic() - before, 8)


if __name__ == "__main__":
    cloud.run_tests()
