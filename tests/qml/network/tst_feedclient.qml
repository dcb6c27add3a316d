// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/feed"
import "qrc:/Nuvex/Components/private/feed/answers.js" as Answers
import "qrc:/Nuvex/Components/private/feed/limits.js" as Limits

// The client of all network items, against a server that behaves and one that does not.
NetworkCase {
    id: test
    name: "FeedClient"

    Component {
        id: clients

        FeedClient {
            active: true
            period: 100000
            read: function(text) {
                try {
                    return JSON.parse(text);
                } catch (notJson) {
                    return null;
                }
            }
        }
    }

    // A client of `name` on the server, active at once.
    function ask(name, properties) {
        const all = Object.assign({ address: server.url(path(name)) }, properties);
        return createTemporaryObject(clients, test, all);
    }

    function answer(text) {
        return JSON.stringify({ entries: [text] });
    }

    function shown(client) {
        return client.answer ? client.answer.entries[0] : "";
    }

    // Each failure leaves no answer, one warning and a new attempt; when the server is well again, the answer comes.
    function test_failureAndRecovery_data() {
        const huge = answer("too large");
        return [
            { tag: "status 404", fail: name => server.serveStatus(name, 404) },
            { tag: "status 500", fail: name => server.serveStatus(name, 500) },
            { tag: "nothing at all", fail: name => server.serve(name, "") },
            { tag: "no content", fail: name => server.serveStatus(name, 204) },
            { tag: "malformed", fail: name => server.serve(name, "{\"entries\": [") },
            { tag: "cut short", fail: name => server.serveCut(name, answer("half")) },
            { tag: "silent", fail: name => server.serveSilence(name) },
            { tag: "endless", fail: name => server.serveSlowly(name, answer("x".repeat(10000)), 1000, 20) },
            { tag: "huge", fail: name => server.serveHuge(name, huge, 2 * Limits.answerBytes, true) },
            { tag: "huge, unannounced", fail: name => server.serveHuge(name, huge, 2 * Limits.answerBytes, false) },
            { tag: "away to a file", fail: name => server.serveStatus(name, 302, "Location: file:///etc/hostname\r\n") },
            { tag: "round in circles",
              fail: name => server.serveStatus(name, 302, "Location: " + server.url(name) + "\r\n") }
        ];
    }
    function test_failureAndRecovery(data) {
        data.fail(path("feed"));
        const client = ask("feed");
        tryVerify(() => client.failures >= 2, 10000);
        compare(client.answer, null);
        expectWarnings(1, /no news from .*feed/);
        server.serve(path("feed"), answer("well again"));
        tryCompare(client, "failures", 0, 5000);
        compare(shown(client), "well again");
    }

    // A server that never answers holds no connection for ever: after any number of attempts there is one to be had.
    function test_connectionsAreFreed() {
        const time = Limits.answerTime;
        Limits.answerTime = 60;
        server.serveSilence(path("feed"));
        const client = ask("feed");
        tryVerify(() => client.failures >= 9, 15000);
        expectWarnings(1, /no answer in time/);
        Limits.answerTime = time;
        server.serve(path("feed"), answer("well again"));
        tryVerify(() => shown(client) === "well again");
    }

    // The last good answer stays through failures, through an answer without entries, and for clients that come later.
    function test_lastGoodAnswerStays() {
        server.serve(path("feed"), answer("first"));
        const client = ask("feed", { period: 100 });
        tryVerify(() => shown(client) === "first");
        server.serveStatus(path("feed"), 503);
        tryVerify(() => client.failures > 0);
        compare(shown(client), "first");
        expectWarnings(1, /status 503/);
        server.serve(path("feed"), JSON.stringify({ entries: [] }));
        tryCompare(client, "failures", 0);
        compare(shown(client), "first");
        client.destroy();

        server.serveSilence(path("feed"));
        compare(shown(ask("feed", { active: false })), "first");
        server.serve(path("feed"), answer("second"));
        const later = ask("feed", { period: 100 });
        tryVerify(() => shown(later) === "second");
    }

    // What is kept is looked at like anything else that comes from outside.
    function test_keptAnswers_data() {
        const now = Date.now();
        return [
            { tag: "good", kept: JSON.stringify({ version: Answers.version, time: now, answer: { entries: ["kept"] } }),
              shown: "kept" },
            { tag: "cut", kept: "{\"version\": 1, \"ti", shown: "" },
            { tag: "empty", kept: "", shown: "" },
            { tag: "null", kept: "null", shown: "" },
            { tag: "of another version", kept: JSON.stringify({ version: 0, time: now, answer: { entries: ["old"] } }),
              shown: "" },
            { tag: "of another address", other: true,
              kept: JSON.stringify({ version: Answers.version, time: now, answer: { entries: ["other"] } }), shown: "" }
        ];
    }
    function test_keptAnswers(data) {
        const address = server.url(path("feed"));
        const text = data.kept.replace("{", "{\"address\": \"" + (data.other ? "http://x.example/" : address) + "\",");
        CAPI.writeToFile(text, Answers._file(address));
        const client = ask("feed", { active: false });
        compare(shown(client), data.shown);
    }

    function test_keptAnswersAreBounded() {
        const files = {};
        for (let i = 0; i < 5000; ++i)
            files[Answers._file("https://feed.example/" + i)] = true;
        compare(Object.keys(files).length, Limits.keptAnswers);
    }

    // A fresh kept answer is not asked for again before its time; one from the future, or an old one, is.
    function test_freshness_data() {
        return [
            { tag: "fresh", age: 1000, asks: false },
            { tag: "old", age: 200000, asks: true },
            { tag: "from the future", age: -3600000, asks: true }
        ];
    }
    function test_freshness(data) {
        server.serve(path("feed"), answer("new"));
        Answers.keep(server.url(path("feed")), { entries: ["kept"] }, Date.now() - data.age);
        const client = ask("feed");
        compare(shown(client), "kept");
        if (data.asks)
            tryVerify(() => shown(client) === "new");
        wait(data.asks ? 0 : 200);
        compare(server.count(path("feed")), data.asks ? 1 : 0);
    }

    // Nobody sees it: nothing is asked. Hidden while asking: the request ends, and starts anew when it is seen again.
    function test_onlyWhileActive() {
        server.serve(path("feed"), answer("seen"));
        const client = ask("feed", { active: false });
        wait(200);
        compare(server.count(path("feed")), 0);
        client.active = true;
        tryVerify(() => shown(client) === "seen");

        server.serveSilence(path("slow"));
        client.address = server.url(path("slow"));
        compare(client.answer, null);
        tryVerify(() => server.count(path("slow")) === 1);
        client.active = false;
        server.serve(path("slow"), answer("late"));
        wait(Limits.answerTime + 200);
        compare(client.failures, 0);
        client.active = true;
        tryVerify(() => shown(client) === "late");
    }

    function test_refreshesPeriodically() {
        server.serve(path("feed"), answer("1"));
        const client = ask("feed", { period: 1 });
        tryVerify(() => server.count(path("feed")) >= 4);
        server.serve(path("feed"), answer("2"));
        tryVerify(() => shown(client) === "2");
    }

    // Never sooner than the limit, whatever the document says; pauses grow, and a wish of the service is respected.
    function test_pauses_data() {
        return [
            { tag: "absurd period", period: -5, status: 200, headers: "", most: 8 },
            { tag: "failures", period: 1, status: 500, headers: "", most: 7 },
            { tag: "asked to wait", period: 1, status: 429, headers: "Retry-After: 60\r\n", most: 1 }
        ];
    }
    function test_pauses(data) {
        if (data.status === 200)
            server.serve(path("feed"), answer("x"));
        else
            server.serveStatus(path("feed"), data.status, data.headers);
        const client = ask("feed", { period: data.period });
        tryVerify(() => server.count(path("feed")) === 1);
        wait(1000);
        verify(server.count(path("feed")) <= data.most, server.count(path("feed")));
        verify(data.status !== 200 || client.answer !== null);
        expectWarnings(data.status === 200 ? 0 : 1, /no news from/);
    }

    // Typing an address asks for the last one only; the answer to an abandoned one is never shown.
    function test_addressChanges() {
        ["a", "ab", "abc"].forEach(name => server.serve(path(name), answer(name)));
        Limits.settleTime = 100;
        const client = ask("a");
        client.address = server.url(path("ab"));
        client.address = server.url(path("abc"));
        tryVerify(() => shown(client) === "abc");
        Limits.settleTime = 10;
        compare([server.count(path("a")), server.count(path("ab")), server.count(path("abc"))], [0, 0, 1]);
        client.address = "";
        compare(client.answer, null);
    }

    function test_destroyedWhileAsking() {
        server.serveSilence(path("feed"));
        const client = ask("feed");
        tryVerify(() => server.count(path("feed")) === 1);
        client.destroy();
        wait(Limits.answerTime + 100);
    }

    // Items that show the same ask once.
    function test_sharedAnswer() {
        server.serve(path("feed"), answer("shared"));
        const first = ask("feed");
        tryVerify(() => shown(first) === "shared");
        const second = ask("feed");
        tryVerify(() => shown(second) === "shared");
        wait(100);
        compare(server.count(path("feed")), 1);
    }

    function test_projectFile() {
        CAPI.writeToFile(answer("from the project"), "feeds/today.json");
        const client = createTemporaryObject(clients, test, { address: "feeds/today.json", period: 100 });
        tryVerify(() => shown(client) === "from the project");
        CAPI.writeToFile(answer("changed"), "feeds/today.json");
        tryVerify(() => shown(client) === "changed");
        CAPI.removeFile("feeds/today.json");
        tryVerify(() => client.failures > 0);
        compare(shown(client), "changed");
        expectWarnings(1, /no news from feeds.today.json/);
    }

    function test_encodings_data() {
        const word = "{\"entries\": [\"Жар, žluť, ü\"]}";
        const latin = "{\"entries\": [\"Zürich\"]}";
        return [
            { tag: "UTF-8 by default", text: word, type: "application/json", charset: "UTF-8" },
            { tag: "UTF-8 without type", text: word, type: "", charset: "UTF-8" },
            { tag: "UTF-16", text: word, type: "application/json", charset: "UTF-16" },
            { tag: "windows-1251", text: "{\"entries\": [\"Жар\"]}", type: "text/plain; charset=windows-1251",
              charset: "windows-1251" },
            { tag: "declared in the document", text: "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + latin,
              type: "application/rss+xml", charset: "ISO-8859-1" },
            { tag: "Latin-1 in the header", text: latin, type: "text/xml; charset=ISO-8859-1", charset: "ISO-8859-1" }
        ];
    }
    function test_encodings(data) {
        server.serve(path("feed"), data.text, data.type, data.charset);
        const client = ask("feed", { read: text => ({ entries: [text] }) });
        tryVerify(() => client.answer !== null);
        compare(shown(client).replace("\ufeff", ""), data.text);
    }
}
