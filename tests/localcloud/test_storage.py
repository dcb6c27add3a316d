# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""The storage service as clients see it: what each header and status is, and uploads that do not go smoothly."""
import base64
import hashlib
import resource
import time
import unittest

import cloud
from cloud import CloudTest, content, head, md5, quote

CHUNK = 256 * 1024


class StorageTest(CloudTest):
    def begin(self, name, query="", **headers):
        answer = self.cloud.storage("POST", f"/o?uploadType=resumable&name={quote(name)}{query}", "{}", headers,
                                    "/upload")
        self.assertEqual(answer.status, 200, answer.body)
        return answer.headers["Location"].removeprefix(self.cloud.base)

    def chunk(self, session, span, data=b"", method="PUT", **headers):
        return self.cloud.ask(method, session, data, {"Content-Range": "bytes " + span, **headers})

    def assert_content(self, name, data):
        answer = self.cloud.get(name)
        self.assertEqual((answer.status, len(answer.body)), (200, len(data)))
        self.assertEqual(answer.body, data)

    def test_metadata(self):
        name, data = "a/50% ?#+&=ü 北京.bin", content(1000)
        before = time.time()
        answer = self.cloud.put(name, data, **{"Content-Type": "image/png"})
        found = self.cloud.storage("GET", f"/o/{quote(name)}").body
        self.assertEqual(answer.body, found)
        self.assertEqual((found["name"], found["bucket"], found["size"]), (name, self.cloud.bucket, "1000"))
        self.assertEqual(found["md5Hash"], md5(data))
        self.assertAlmostEqual(int(found["generation"]) / 1e6, before, delta=60)
        self.assertEqual((found["metageneration"], found["contentType"]), ("1", "image/png"))
        self.assertRegex(found["updated"], r"^20\d\d-\d\d-\d\dT\d\d:\d\d:\d\d\.\d\d\dZ$")
        link = found["mediaLink"].removeprefix(self.cloud.base)
        self.assertIn("/o/a%2F50%25%20%3F%23%2B%26%3D%C3%BC%20%E5%8C%97%E4%BA%AC.bin?", link)
        self.assertEqual(self.cloud.ask("GET", link, headers={"Authorization": "Bearer " + self.cloud.token()}).body,
                         data)
        self.cloud.storage("PATCH", f"/o/{quote(name)}", {"metadata": {"a": "1", "b": "2"}, "size": "7"})
        changed = self.cloud.storage("PATCH", f"/o/{quote(name)}", {"metadata": {"a": None}}).body
        self.assertEqual((changed["metadata"], changed["size"], changed["metageneration"]), ({"b": "2"}, "1000", "3"))

    def test_downloads(self):
        data = content(200_000)
        generation = self.cloud.put("d", data).body["generation"]
        cases = {
            "": (200, data, None), "bytes=0-0": (206, data[:1], "bytes 0-0/200000"),
            "bytes=100000-": (206, data[100000:], "bytes 100000-199999/200000"),
            "bytes=-5": (206, data[-5:], "bytes 199995-199999/200000"),
            "bytes=199999-300000": (206, data[-1:], "bytes 199999-199999/200000"),
        }
        for span, (status, part, told) in cases.items():
            for prefix in ("", "/download"):
                answer = self.cloud.storage("GET", "/o/d?alt=media", headers={"Range": span}, service=prefix)
                self.assertEqual((answer.status, answer.body, answer.headers["Content-Range"]), (status, part, told),
                                 span)
                self.assertEqual(answer.headers["X-Goog-Generation"], generation)
                self.assertIn("md5=" + md5(data),
                              answer.headers["X-Goog-Hash"])
        behind = self.cloud.get("d", Range="bytes=200000-")
        self.assertEqual((behind.status, behind.headers["Content-Range"]), (416, "bytes */200000"))
        head = self.cloud.storage("HEAD", "/o/d?alt=media")
        self.assertEqual((head.status, head.headers["Content-Length"], head.body), (200, "200000", b""))

    def test_conditions_of_downloads(self):
        found = self.cloud.put("c", b"1").body
        now, other = found["generation"], "1"
        cases = {f"ifGenerationMatch={now}": 200, f"ifGenerationMatch={other}": 412, f"ifGenerationNotMatch={now}": 304,
                 f"ifGenerationNotMatch={other}": 200, "ifMetagenerationMatch=1": 200, "ifMetagenerationMatch=2": 412,
                 "ifMetagenerationNotMatch=1": 304, f"generation={now}": 200, f"generation={other}": 404,
                 "ifGenerationMatch=x": 400}
        for query, status in cases.items():
            answer = self.cloud.get("c", "&" + query)
            self.assertEqual(answer.status, status, query)
            if status == 412:
                self.assertEqual(answer.body["error"]["errors"][0]["reason"], "conditionNotMet")
        self.assertEqual(self.cloud.storage("DELETE", "/o/c?ifGenerationMatch=1").status, 412)
        self.assertEqual(self.cloud.storage("DELETE", f"/o/c?ifGenerationMatch={now}").status, 204)

    def test_a_download_keeps_its_generation(self):
        old = content(80_000_000)
        self.cloud.put("big", old)
        connection = self.cloud.connect()
        connection.request("GET", f"/storage/v1/b/{self.cloud.bucket}/o/big?alt=media",
                           headers={"Authorization": "Bearer " + self.cloud.token()})
        response = connection.getresponse()
        first = response.read(1000)
        self.assertEqual(self.cloud.put("big", b"new").status, 200)
        self.assertEqual(self.cloud.storage("DELETE", "/o/big").status, 204)
        self.assertEqual(hashlib.md5(first + response.read()).digest(), hashlib.md5(old).digest())
        connection.close()
        self.assertLess(self.cloud.memory_mib(), 60)

    def test_uploads_in_one_request(self):
        cloud, data = self.cloud, content(300_000)
        body = (b'--B\r\nContent-Type: application/json\r\n\r\n'
                b'{"name":"in the part","contentType":"a/b","md5Hash":"' + md5(data).encode()
                + b'"}\r\n--B\r\nContent-Type: c/d\r\n\r\n' + data + b"\r\n--B--")
        pieces = (body[i:i + 7919] for i in range(0, len(body), 7919))
        kind = {"Content-Type": "multipart/related; boundary=B", "Transfer-Encoding": "chunked"}
        answer = cloud.storage("POST", "/o?uploadType=multipart", pieces, kind, "/upload", chunked=True)
        self.assertEqual((answer.body["name"], answer.body["contentType"]), ("in the part", "a/b"))
        self.assert_content("in the part", data)
        hashes = {"X-Goog-Hash": "crc32c=AAAAAA=="}
        self.assertEqual(cloud.put("hash", b"x", **hashes).status, 400)
        self.assertEqual(cloud.get("hash").status, 404)
        self.assertEqual(cloud.put("hash", b"", **hashes).status, 200) # the sum of nothing
        wrongs = {"uploadType=multipart": "multipart/related; boundary=C", "uploadType=other": "x"}
        for query, wrong in wrongs.items():
            answer = cloud.storage("POST", "/o?name=n&" + query, body, {"Content-Type": wrong}, "/upload")
            self.assertEqual(answer.status, 400)

    def test_resumable_answers(self):
        data = content(2 * CHUNK + 10)
        for told, status, override in ({}, 308, None), ({"X-Guploader-No-308": "yes"}, 200, "308"):
            session = self.begin("r", **{"X-Upload-Content-Type": "x/y"})
            self.assertIsNone(self.chunk(session, "*/*", **told).headers["Range"])
            answer = self.chunk(session, f"0-{2 * CHUNK - 1}/*", data[:2 * CHUNK], "POST" if told else "PUT", **told)
            self.assertEqual((answer.status, answer.headers["Range"], answer.headers["X-Http-Status-Code-Override"]),
                             (status, f"bytes=0-{2 * CHUNK - 1}", override))
            last = self.chunk(session, f"{2 * CHUNK}-{len(data) - 1}/{len(data)}", data[2 * CHUNK:], **told)
            self.assertEqual((last.status, last.body["contentType"]), (200, "x/y"))
            self.assertEqual(self.chunk(session, f"*/{len(data)}", **told).body["generation"], last.body["generation"])
            self.assert_content("r", data)

    def test_resumable_chunks_that_do_not_fit(self):
        data = content(4 * CHUNK)
        session = self.begin("r2", **{"X-Upload-Content-Length": str(len(data))})
        cases = [("nonsense", b"", 400, 0), (f"{CHUNK}-{2 * CHUNK - 1}/*", data[CHUNK:2 * CHUNK], 503, 0),
                 ("0-99/*", data[:100], 400, 0), (f"0-{CHUNK + 99}/*", data[:CHUNK + 100], 308, CHUNK),
                 # whole multiples count
                 (f"0-{2 * CHUNK - 1}/*", data[:2 * CHUNK], 308, 2 * CHUNK), # a part of it came before
                 (f"0-{CHUNK - 1}/*", content(CHUNK, 9), 308, 2 * CHUNK)]
        for span, piece, status, arrived in cases:
            self.assertEqual(self.chunk(session, span, piece).status, status, span)
            told = self.chunk(session, f"*/{len(data)}").headers["Range"]
            self.assertEqual(told, f"bytes=0-{arrived - 1}" if arrived else None, span)
        self.assertEqual(self.chunk(session, f"{2 * CHUNK}-*/*", data[2 * CHUNK:]).status, 200)
        self.assert_content("r2", data)
        cancelled = self.begin("r3")
        self.assertEqual(self.cloud.ask("DELETE", cancelled).status, 499)
        self.assertEqual(self.chunk(cancelled, "0-*/*", b"x").status, 404)
        once = self.begin("r4", "&ifGenerationMatch=0")
        self.cloud.put("r4", b"another")
        self.assertEqual(self.chunk(once, "0-*/*", b"late").status, 412)
        self.assert_content("r4", b"another")

    def test_resumable_after_a_cut(self):
        data = content(3 * CHUNK + 5)
        session = self.begin("cut")
        size = len(data)
        upload = head("PUT", session, Content_Length=size, Content_Range=f"bytes 0-{size - 1}/{size}")
        stuck = self.cloud.socket(upload + data[:1000]) # neither ends nor goes on
        while self.chunk(session, "*/*").headers["Range"] != "bytes=0-999":
            pass
        with self.cloud.socket(upload + data[:2 * CHUNK + 3]):
            pass
        while self.cloud.counters()["openConnections"] > 2:
            pass
        self.assertEqual(self.chunk(session, f"*/{len(data)}").headers["Range"], f"bytes=0-{2 * CHUNK + 2}")
        rest = data[2 * CHUNK + 3:]
        self.cloud.kill()
        self.cloud.start()
        answer = self.chunk(session, f"{2 * CHUNK + 3}-{len(data) - 1}/{len(data)}", rest)
        self.assertEqual(answer.body["md5Hash"], md5(data))
        self.assert_content("cut", data)
        stuck.close()

    def test_the_later_request_goes_on_with_an_upload(self):
        data = content(2 * CHUNK)
        session = self.begin("two")
        upload = head("PUT", session, Content_Length=len(data), Content_Range="bytes 0-*/*")
        earlier = self.cloud.socket(upload + data[:100])
        while not self.chunk(session, "*/*").headers["Range"]:
            pass
        self.assertEqual(self.chunk(session, "100-*/*", data[100:]).status, 200)
        earlier.sendall(content(len(data) - 100, 2))
        self.assertIn(b" 503 ", earlier.recv(100))
        self.assert_content("two", data)
        earlier.close()

    def test_rights(self):
        cloud = self.cloud
        cloud.put("private", b"p")
        cloud.put("public", b"q", "&predefinedAcl=publicRead")
        reader = cloud.grant(scope="https://www.googleapis.com/auth/devstorage.read_only").body["access_token"]
        database = cloud.grant(scope="https://www.googleapis.com/auth/firebase.database").body["access_token"]
        objects = f"/storage/v1/b/{cloud.bucket}/o"
        upload = f"/upload{objects}?uploadType=media&name=n"
        cases = [("GET", objects, "", 401, "required"),
                 ("GET", objects, "nonsense", 401, "authError"),
                 ("GET", objects, reader[:-2] + "AA", 401, "authError"),
                 ("GET", objects, database, 403, "insufficientPermissions"),
                 ("POST", upload, reader, 403, "insufficientPermissions"),
                 ("DELETE", objects + "/private", reader, 403, "insufficientPermissions"),
                 ("GET", objects + "/private", "", 401, "required"),
                 ("GET", "/storage/v1/b/other/o", reader, 404, "notFound"),
                 ("GET", objects + "/none", reader, 404, "notFound"),
                 ("POST", objects, reader, 405, "methodNotAllowed")]
        for method, target, token, status, reason in cases:
            answer = cloud.ask(method, target, headers={"Authorization": "Bearer " + token} if token else {})
            error = answer.body["error"]
            self.assertEqual((answer.status, error["code"], error["errors"][0]["reason"]), (status, status, reason),
                             target)
        self.assertEqual(cloud.ask("GET", objects + "/public?alt=media").body, b"q")
        self.assertEqual(cloud.ask("GET", f"/{cloud.bucket}/public").body, b"q")
        self.assertEqual(cloud.ask("GET", f"/{cloud.bucket}/private").status, 403)

    def test_signed_addresses(self):
        cloud, later = self.cloud, int(time.time()) + 3600
        name = "NUVEX/users/a@x/50% +ü.json"
        path = "/" + cloud.bucket + "/" + "/".join(quote(part) for part in name.split("/"))
        cloud.put(name, b"signed")

        def signed(path=path, method="GET", expires=later, account=quote(cloud.account["client_email"]), key=None):
            text = f"{method}\n\n\n{expires}\n{path}".encode()
            signature = quote(base64.b64encode(cloud.sign(text, key)))
            return f"{path}?GoogleAccessId={account}&Expires={expires}&Signature={signature}"
        self.assertEqual(cloud.ask("GET", signed()).body, b"signed")
        self.assertEqual(cloud.ask("GET", signed(account=cloud.account["client_email"])).body, b"signed")
        self.assertEqual(cloud.ask("GET", signed(), headers={"Range": "bytes=1-2"}).body, b"ig")
        self.assertEqual(cloud.ask("HEAD", signed(method="HEAD")).headers["Content-Length"], "6")
        refused = {"SignatureDoesNotMatch": signed(method="PUT"), "ExpiredToken": signed(expires=int(time.time()) - 1),
                   "AccessDenied": signed(account="x%40y"), "InvalidArgument": signed(expires="soon"),
                   "NoSuchKey": signed(path=path + "x"),
                   "NoSuchBucket": signed(path="/other/x")}
        for code, url in refused.items():
            self.assertIn(f"<Code>{code}</Code>".encode(), cloud.ask("GET", url).body)
        self.assertIn(b"SignatureDoesNotMatch", cloud.ask("GET", signed().replace(str(later), str(later + 9))).body)

    def test_copies(self):
        place = f"/b/{self.cloud.bucket}/o/"
        data = content(70_000)
        self.cloud.put("from", data, **{"Content-Type": "a/b"})
        self.cloud.storage("PATCH", "/o/from", {"metadata": {"k": "v"}})
        done = self.cloud.storage("POST", f"/o/from/rewriteTo{place}to", "").body
        self.assertEqual((done["done"], done["totalBytesRewritten"], done["objectSize"]), (True, "70000", "70000"))
        self.assertEqual((done["resource"]["contentType"], done["resource"]["metadata"]), ("a/b", {"k": "v"}))
        changed = self.cloud.storage("POST", f"/o/to/copyTo{place}to", {"metadata": {"k": "w"}}).body # onto itself
        self.assertEqual((changed["contentType"], changed["metadata"]), ("a/b", {"k": "w"}))
        self.cloud.storage("DELETE", "/o/from")
        self.assert_content("to", data)
        self.assertEqual(self.cloud.storage("POST", f"/o/to/copyTo{place}x?ifSourceGenerationMatch=1", "").status, 412)
        self.assertEqual(self.cloud.storage("POST", f"/o/none/copyTo{place}x", "").status, 404)


class FullDiskTest(unittest.TestCase):
    def test_nothing_half_stays(self):
        full = cloud.Cloud(cloud.PROGRAM, limits=[(resource.RLIMIT_FSIZE, 3_000_000)])
        self.addCleanup(full.stop)
        self.assertEqual(full.put("small", b"x").status, 200)
        answer = full.put("large", content(5_000_000))
        self.assertEqual((answer.status, answer.body["error"]["errors"][0]["reason"]), (503, "backendError"))
        self.assertEqual(full.put("small 2", b"y").status, 200)
        names = [item["name"] for item in full.storage("GET", "/o").body["items"]]
        self.assertEqual(names, ["small", "small 2"])
        self.assertEqual(len(list((full.folder / "data/uploads").iterdir())), 0)


if __name__ == "__main__":
    cloud.run_tests()
