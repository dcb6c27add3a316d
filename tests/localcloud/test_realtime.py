# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Database, event streams, sign-in and tokens over real connections."""
import email.utils
import pathlib
import resource
import subprocess
import time
import unittest

import cloud
from cloud import CloudTest, Stream


class DatabaseTest(CloudTest):
    def test_reads_and_writes(self):
        call = self.cloud.database
        self.assertEqual(call("GET", "/rest/x").body, None)
        value = {"a": {"b": 1}, "list": [1, None, 3]}
        self.assertEqual(call("PUT", "/rest", value).body, value)
        self.assertEqual(call("PATCH", "/rest", {"c": 2, "a/d": True}).body, {"c": 2, "a/d": True})
        self.assertEqual(call("GET", "/rest").body, {"a": {"b": 1, "d": True}, "c": 2, "list": [1, None, 3]})
        self.assertEqual(call("GET", "/rest", query="&shallow=true").body, {"a": True, "c": True, "list": True})
        self.assertEqual(call("GET", "/rest/a/b").body, 1)
        self.assertEqual(call("GET", "/rest/list/2").body, 3)
        self.assertEqual(call("DELETE", "/rest/a/b").body, None)
        self.assertEqual(call("PUT", "/rest/c", None and 0).status, 400) # no body is no JSON
        self.assertEqual(call("PUT", "/rest/c/below", "x").status, 200) # the leaf gives way
        self.assertEqual(call("GET", "/rest/c").body, {"below": "x"})
        names = [call("POST", "/queue", i).body["name"] for i in range(3)]
        self.assertEqual(call("GET", "/queue").body, dict(zip(names, range(3))))
        self.assertEqual(names, sorted(names))

    def test_time_of_the_server(self):
        before = time.time() * 1000
        told = self.cloud.database("PATCH", "/beat", {"heartbeat": {".sv": "timestamp"}}).body["heartbeat"]
        self.assertEqual(self.cloud.database("GET", "/beat/heartbeat").body, told)
        self.assertAlmostEqual(told, before, delta=60_000)

    def test_methods_and_printing(self):
        call = self.cloud.database
        call("PUT", "/m", {"a": 1})
        for headers, query in ({"X-HTTP-Method-Override": "PATCH"}, ""), ({}, "&x-http-method-override=PATCH"):
            self.assertEqual(call("POST", "/m", {"b": 2}, query, headers).body, {"b": 2})
        self.assertEqual(call("POST", "/m/b", headers={"X-HTTP-Method-Override": "DELETE"}).status, 200)
        self.assertEqual(call("GET", "/m").body, {"a": 1})
        silent = call("PUT", "/m/c", 3, "&print=silent")
        self.assertEqual((silent.status, silent.body), (204, b""))
        raw = self.cloud.connect()
        raw.request("GET", f"/m.json?print=pretty&auth={self.cloud.credential}")
        self.assertEqual(raw.getresponse().read(), b'{\n  "a": 1,\n  "c": 3\n}')
        raw.close()

    def test_refusals(self):
        call, ask = self.cloud.database, self.cloud.ask
        auth = "?auth=" + self.cloud.credential
        deep = {"x": 1}
        for _ in range(32):
            deep = {"d": deep}
        cases = [(call("GET", "/a$b"), 400, "path"),
                 (call("GET", "/a", query="&orderBy=%22x%22"), 400, "orderBy"),
                 (call("PUT", "/a", {"b.c": 1}), 400, "key names"),
                 (call("PATCH", "/a", 7), 400, "object"),
                 (call("PATCH", "/a", {"b": 1, "b/c": 2}), 400, "ancestor"),
                 (call("PUT", "/a", deep), 400, "depth"),
                 (ask("PUT", "/a.json" + auth, "{nonsense"), 400, "parse"),
                 (ask("PUT", "/a.json" + auth, "[" * 200_000), 400, "parse"),
                 (ask("PUT", "/a.json" + auth, b'"\xff"'), 400, "parse"),
                 (ask("GET", "/a.json"), 401, "Permission denied"),
                 (ask("GET", "/a.json?auth=wrong"), 401, "Could not parse"),
                 (ask("OPTIONS", "/a.json" + auth), 405, "method"),
                 (ask("GET", "/a" * 33 + ".json" + auth), 400, "depth")]
        for answer, status, words in cases:
            self.assertEqual(answer.status, status, words)
            self.assertIn(words, answer.body["error"])
        self.assertIsNone(call("GET", "/a").body)

    def test_large_writes(self):
        most = 10 * 1024 * 1024
        call = self.cloud.database
        self.assertEqual(call("PUT", "/large", "x" * (most - 2)).status, 200)
        self.assertEqual(len(call("GET", "/large").body), most - 2)
        answer = call("PUT", "/larger", "x" * (most - 1))
        self.assertEqual((answer.status, "maximum size" in answer.body["error"]), (413, True))
        many = {f"k{i}": i for i in range(100_000)}
        self.assertEqual(call("PUT", "/large", many).status, 200)
        self.assertEqual(call("GET", "/large").body, many)
        self.assertEqual(call("DELETE", "/large").status, 200)

    def test_what_a_stream_tells(self):
        call = self.cloud.database
        call("PUT", "/s", {"p": {"command": "", "project": "One"}})
        streams = {place: self.cloud.stream(place) for place in ("/s", "/s/p", "/s/p/project")}
        whole, player, project = streams.values()
        self.assertEqual(whole.put(), ("/", {"p": {"command": "", "project": "One"}}))
        self.assertEqual(player.put(), ("/", {"command": "", "project": "One"}))
        self.assertEqual(project.put(), ("/", "One"))
        call("PATCH", "/s/p", {"project": "Two"})
        self.assertEqual(whole.event(), ("patch", {"path": "/p", "data": {"project": "Two"}}))
        self.assertEqual(player.event(), ("patch", {"path": "/", "data": {"project": "Two"}}))
        self.assertEqual(project.put(), ("/", "Two"))
        call("PUT", "/elsewhere", 1)
        call("DELETE", "/s/p")
        self.assertEqual([whole.put(), player.put(), project.put()], [("/p", None), ("/", None), ("/", None)])
        self.assertEqual(self.cloud.counters()["openStreams"], 3)
        for stream in streams.values():
            stream.close()
        while self.cloud.counters()["openStreams"]:
            pass

    def test_curl_reads_a_stream(self):
        url = f"{self.cloud.base}/c.json?auth={self.cloud.credential}"
        with subprocess.Popen(["curl", "-sN", "-D", "-", "-H", "Accept: text/event-stream", url],
                              stdout=subprocess.PIPE) as curl:
            head = b"".join(iter(curl.stdout.readline, b"\r\n"))
            self.assertIn(b"Content-Type: text/event-stream", head)
            first = b"".join(curl.stdout.readline() for _ in range(3))
            self.assertEqual(first, b'event: put\ndata: {"path":"/","data":null}\n\n')
            self.cloud.database("PUT", "/c", {"x": "ü"})
            second = b"".join(curl.stdout.readline() for _ in range(2))
            self.assertEqual(second, 'event: put\ndata: {"path":"/","data":{"x":"ü"}}\n'.encode())
            curl.kill()

    def test_a_reader_that_lags_is_cut_off(self):
        lazy, good = self.cloud.stream("/lag"), self.cloud.stream("/lag")
        good.put()
        for i in range(30):
            self.cloud.database("PUT", "/lag", str(i) * 500_000)
            good.put()
        while self.cloud.counters()["openStreams"] > 1:
            pass
        self.assertLess(self.cloud.memory_mib(), 150)
        lazy.close()
        good.close()

    def test_rights_that_end(self):
        call = self.cloud.ask
        key = self.cloud.deployment["webApiKey"]
        person = {"email": "r@x.org", "password": "secret"}
        person = call("POST", f"/v1/accounts:signUp?key={key}", person).body["idToken"]
        tokens = {"auth": person, "access_token": self.cloud.token()}
        streams = [Stream(self.cloud, f"/e.json?{name}={token}") for name, token in tokens.items()]
        lasting = self.cloud.stream("/e")
        for stream in [*streams, lasting]:
            self.assertEqual(stream.put(), ("/", None))
        self.assertEqual(call("GET", f"/e.json?auth={person[:-9]}AAAAAAAAA").status, 401)
        storage = self.cloud.grant(scope="https://www.googleapis.com/auth/devstorage.read_only").body["access_token"]
        self.assertEqual(call("GET", f"/e.json?access_token={storage}").status, 401)
        self.assertEqual(call("DELETE", "/_localcloud/tokens").status, 204)
        for stream in streams:
            self.assertEqual(stream.event(), ("auth_revoked", "credential is no longer valid"))
            self.assertIsNone(stream.event())
        self.assertEqual(call("GET", f"/e.json?access_token={self.cloud.token()}").status, 401)
        self.assertEqual(self.cloud.storage("GET", "/o").status, 401)
        self.cloud.access_token = None
        self.assertEqual(self.cloud.storage("GET", "/o").status, 200)
        self.cloud.database("PUT", "/e", 5)
        self.assertEqual(lasting.put(), ("/", 5))
        for stream in [*streams, lasting]:
            stream.close()

    def test_streams_after_a_restart(self):
        self.cloud.database("PUT", "/again", {"revision": 7})
        streams = [self.cloud.stream("/again/revision") for _ in range(500)]
        self.assertEqual({stream.put() for stream in streams}, {("/", 7)})
        self.cloud.kill()
        for stream in streams:
            self.assertIsNone(stream.event())
            stream.close()
        self.cloud.start()
        streams = [self.cloud.stream("/again/revision") for _ in range(500)]
        self.cloud.database("PATCH", "/again", {"revision": 8})
        for stream in streams:
            self.assertEqual([stream.put(), stream.put()], [("/", 7), ("/", 8)])
            stream.close()


class TokenTest(CloudTest):
    options = ("--token-life", "1")

    def test_grants(self):
        answer = self.cloud.grant()
        self.assertEqual((answer.status, answer.body["token_type"], answer.body["expires_in"]), (200, "Bearer", 1))
        now = int(time.time())
        self.assertEqual(self.cloud.grant(aud="https://www.googleapis.com/oauth2/v4/token", iat=str(now),
                                          exp=str(now + 3600)).status, 200)
        wrong = {"iss": "x", "exp": now - 10, "iat": now + 3600, "aud": "x", "scope": "x"}
        for claim, value in wrong.items():
            answer = self.cloud.grant(**{claim: value})
            error = "invalid_scope" if claim == "scope" else "invalid_grant"
            self.assertEqual((answer.status, answer.body["error"]), (400, error), claim)
            # by which a client whose clock is wrong can set it
            self.assertLess(abs(email.utils.parsedate_to_datetime(answer.headers["Date"]).timestamp() - time.time()), 5)
        forms = {"": "invalid_request", "grant_type=password": "unsupported_grant_type",
                 "grant_type=" + cloud.GRANT: "invalid_request",
                 "grant_type=" + cloud.GRANT + "&assertion=%GG": "invalid_request", "x" * 70_000: "invalid_request"}
        for form, error in forms.items():
            self.assertEqual(self.cloud.ask("POST", "/oauth2/v4/token", form).body["error"], error)

    def test_tokens_expire(self):
        headers = {"Authorization": "Bearer " + self.cloud.token()}
        target = f"/storage/v1/b/{self.cloud.bucket}"
        self.assertEqual(self.cloud.ask("GET", target, headers=headers).status, 200)
        while self.cloud.ask("GET", target, headers=headers).status == 200:
            time.sleep(0.1)
        self.assertEqual(self.cloud.ask("GET", target, headers=headers).status, 401)


class IdentityTest(CloudTest):
    def call(self, name, body, key=None):
        key = self.cloud.deployment["webApiKey"] if key is None else key
        return self.cloud.ask("POST", name + key, body, {"Content-Type": "application/json"})

    def test_sign_up_and_in(self):
        up, into = (f"/identitytoolkit/v3/relyingparty/{name}?key=" for name in ("signupNewUser", "verifyPassword"))
        ann = {"email": "Ann.B@Example.org", "password": "pässw", "returnSecureToken": True}
        for change, error in {"WEAK_PASSWORD : Password should be at least 6 characters": {},
                              "MISSING_PASSWORD": {"password": ""},
                              "MISSING_EMAIL": {"email": None}, "INVALID_EMAIL": {"email": "ann"}}.items():
            answer = self.call(up, {**ann, **error})
            self.assertEqual((answer.status, answer.body["error"]["message"]), (400, change))
        for email in "@x.org", "a@b", "a@x.", "a b@x.org", "a@b@x.org", "a@.x", "ü@x.org", "a" * 300 + "@x.org":
            self.assertEqual(self.call(up, {**ann, "email": email}).body["error"]["message"], "INVALID_EMAIL", email)
        ann["password"] = "pässwö"
        self.assertEqual(self.call(into, ann).body["error"]["message"], "EMAIL_NOT_FOUND")
        made = self.call(up, ann)
        self.assertEqual((made.status, made.body["email"], len(made.body["localId"])), (200, "ann.b@example.org", 28))
        self.assertEqual(self.call("/v1/accounts:signUp?key=", ann).body["error"]["message"], "EMAIL_EXISTS")
        self.cloud.kill()
        self.cloud.start()
        entered = self.call("/v1/accounts:signInWithPassword?key=", ann).body
        self.assertEqual((entered["localId"], entered["registered"]), (made.body["localId"], True))
        self.assertEqual(self.call(into, {**ann, "password": "pässwö "}).body["error"]["message"], "INVALID_PASSWORD")
        self.assertEqual(self.call(into, "[1]").status, 400)
        self.assertEqual(self.call(into, ann, "wrong").status, 400)
        self.assertEqual(self.cloud.ask("POST", into.removesuffix("?key="), ann).status, 403)
        stored = b"".join(path.read_bytes() for path in (self.cloud.folder / "data").glob("localcloud.sqlite*"))
        self.assertNotIn("pässwö".encode(), stored)


class OperatorTest(unittest.TestCase):
    def test_start_and_end(self):
        first = cloud.Cloud(cloud.PROGRAM)
        account = first.account
        private = [path for path in first.folder.rglob("*") if path.suffix in (".sqlite", ".json") or path.is_dir()]
        self.assertEqual({path.stat().st_mode & 0o77 for path in private}, {0})
        busy = subprocess.run([cloud.PROGRAM, "--data", first.folder / "data", "--port", "0"], capture_output=True,
                              text=True)
        self.assertEqual((busy.returncode, "locked" in busy.stderr), (1, True))
        taken = subprocess.run([cloud.PROGRAM, "--data", first.folder / "other", "--port", str(first.port)],
                               capture_output=True, text=True)
        self.assertEqual((taken.returncode, "in use" in taken.stderr), (1, True))
        first.kill()
        first.start()
        self.assertEqual(first.account, account)
        stream = first.stream("/x")
        self.assertEqual(first.stop(), 0)
        stream.close()
        for wrong in (["--port", "70000"], ["--data"], [], ["--data", "x", "more"], ["--nonsense"]):
            self.assertEqual(subprocess.run([cloud.PROGRAM, *wrong], capture_output=True).returncode, 2, wrong)

    def test_out_of_descriptors(self):
        few = cloud.Cloud(cloud.PROGRAM, limits=[(resource.RLIMIT_NOFILE, 40)])
        self.addCleanup(few.stop)
        waiting = [few.socket() for _ in range(60)]
        before = processor_seconds(few)
        time.sleep(1)
        self.assertLess(processor_seconds(few) - before, 0.3)
        for connection in waiting:
            connection.close()
        self.assertEqual(few.database("PUT", "/x", 1).status, 200)


def processor_seconds(server):
    fields = pathlib.Path(f"/proc/{server.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / 100


if __name__ == "__main__":
    cloud.run_tests()
