// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/feed/days.js" as Days
import "qrc:/Nuvex/Components/private/feed/forecast.js" as Forecast
import "qrc:/Nuvex/Components/private/feed/limits.js" as Limits
import "qrc:/Nuvex/Components/private/feed/photos.js" as Photos
import "qrc:/Nuvex/Components/private/feed/plaintext.js" as PlainText
import "qrc:/Nuvex/Components/private/feed/posts.js" as Posts
import "qrc:/Nuvex/Components/private/feed/rss.js" as Rss
import "qrc:/Nuvex/Components/private/feed/xml.js" as Xml

// Answers of services, well-formed and hostile, turned into what is shown.
TestCase {
    name: "Parsers"

    function test_feeds_data() {
        return [
            { tag: "rss2", title: "City & harbour", entries: [
                { title: "Bridge opens – \"at last\"", summary: "The first trams crossed before sunrise.",
                  picture: "https://news.example/large.jpg", time: Date.UTC(2026, 10, 23, 4, 15) },
                { title: "5 < 6 & other sums", summary: "One two été", picture: "https://news.example/sums.png",
                  time: Date.UTC(2026, 10, 22, 23, 59) },
                { title: "An entry without a title", summary: "", picture: "", time: 0 },
                { title: "Picture inside", summary: "Text", picture: "https://cdn.example/in.webp", time: 0 }] },
            { tag: "atom", title: "Notes", entries: [
                { title: "A marked title", summary: "Short", picture: "https://notes.example/1.jpg",
                  time: Date.UTC(2026, 10, 23, 6, 30) },
                { title: "Video", summary: "In three parts and more", picture: "https://notes.example/2.jpg", time: Date.UTC(2026, 10, 20) }] },
            { tag: "rdf", title: "Old style", entries: [
                { title: "First", summary: "Text", picture: "", time: Date.UTC(2026, 10, 23, 6, 0) },
                { title: "Second", summary: "", picture: "", time: 0 }] }
        ];
    }
    function test_feeds(data) {
        compare(Rss.read(server.data(data.tag + ".xml")), { title: data.title, entries: data.entries });
    }

    function test_feedTimes_data() {
        return [
            { tag: "Wed, 02 Oct 2002 08:00:00 EST", time: Date.UTC(2002, 9, 2, 8) }, // names of zones count as UTC
            { tag: "Wed, 02 Oct 2002 15:00:00 +0530", time: Date.UTC(2002, 9, 2, 9, 30) },
            { tag: "2 October 2002 15:00 -0130", time: Date.UTC(2002, 9, 2, 16, 30) },
            { tag: "2002-10-02T10:00:00-05:00", time: Date.UTC(2002, 9, 2, 15) },
            { tag: "2002-10-02T15:00:00.05Z", time: Date.UTC(2002, 9, 2, 15) + 50 },
            { tag: "2002-13-45", time: 0 },
            { tag: "12 Foo 2002 10:00", time: 0 },
            { tag: "", time: 0 }
        ];
    }
    function test_feedTimes(data) {
        compare(Rss.timeOf(data.tag), data.time);
    }

    function test_noFeed_data() {
        return [
            { tag: "nothing", text: "" },
            { tag: "words", text: "Service unavailable" },
            { tag: "html", text: "<!DOCTYPE html><html><head><title>Sign in</title></head><body><p>Hello</body></html>" },
            { tag: "json", text: "{\"items\": []}" },
            { tag: "only a head", text: "<?xml version='1.0'?>" },
            { tag: "no channel", text: "<rss><item><title>x</title></item></rss>" },
            { tag: "open tag", text: "<rss version=\"2.0" },
            { tag: "only marks", text: "<<<<>>>>" }
        ];
    }
    function test_noFeed(data) {
        compare(Rss.read(data.text), null);
    }

    function test_damagedFeeds_data() {
        const item = "<item><title>Good</title></item>";
        return [
            { tag: "cut in a tag", text: "<rss><channel>" + item + "<item><tit", titles: ["Good"] },
            { tag: "cut in a comment", text: "<rss><channel>" + item + "<!-- <item>", titles: ["Good"] },
            { tag: "cut in character data", text: "<rss><channel>" + item + "<item><title><![CDATA[half", titles: ["Good", "half"] },
            { tag: "crossed tags", text: "<rss><channel><item><title><b>Good</title></b></item>" + item, titles: ["Good", "Good"] },
            { tag: "closing too much", text: "<rss></a></b><channel></item>" + item + "</channel></rss>", titles: ["Good"] },
            { tag: "loose ampersands", text: "<rss><channel><item><title>A & B &nosuch; &#xD800; &#0; &#x110000;</title></item>",
              titles: ["A & B &nosuch; � � �"] },
            { tag: "sign inside a value", text: "<rss><channel><item a='>' b=\"'>'\"><title>Good</title></item>", titles: ["Good"] },
            { tag: "byte order mark and blanks", text: "\ufeff\n <rss><channel>" + item, titles: ["Good"] },
            { tag: "no entries", text: "<rss><channel><title>Quiet</title></channel></rss>", titles: [] }
        ];
    }
    function test_damagedFeeds(data) {
        compare(Rss.read(data.text).entries.map(entry => entry.title), data.titles);
    }

    // An entity is never expanded, so that a text cannot be longer than the document.
    function test_entityBomb() {
        let text = "<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY a0 \"ha\">";
        for (let i = 1; i < 30; ++i)
            text += "<!ENTITY a" + i + " \"&a" + (i - 1) + ";&a" + (i - 1) + ";\">";
        text += "<!ENTITY x SYSTEM \"file:///etc/passwd\">]><rss><channel><item><title>&a29;&x;</title></item></channel></rss>";
        compare(Rss.read(text).entries.map(entry => entry.title), ["&a29;&x;"]);
    }

    function test_manyAndDeep() {
        const many = "<rss><channel>" + "<item><title>x</title></item>".repeat(5000);
        compare(Rss.read(many).entries.length, Limits.entries);
        const deep = Xml.parse("<a>".repeat(50000));
        let depth = 0;
        for (let at = deep; at; at = at.children[0])
            ++depth;
        verify(depth <= Limits.xmlDepth, depth);
        const wide = Xml.parse("<rss " + "a=\"1\" ".repeat(1000) + ">");
        verify(Object.keys(wide.attributes).length <= Limits.xmlAttributes);
    }

    // Text that makes a careless pattern go back and forth: four times the length must not take sixteen times the time.
    function test_linearTime_data() {
        return [
            { tag: "name without end", head: "<rss><channel><item ", part: "a", tail: "" },
            { tag: "values without end", head: "<rss><channel><item ", part: "a= ", tail: ">" },
            { tag: "open tags", head: "<rss><channel><item><title><![CDATA[", part: "<a ", tail: "]]></title></item>" },
            { tag: "open pictures", head: "<rss><channel><item><description><![CDATA[", part: "<img src src ", tail: "]]>" },
            { tag: "open scripts", head: "<rss><channel><item><description><![CDATA[", part: "<script><style>", tail: "]]>" },
            { tag: "open comments", head: "<rss><channel>", part: "<!-", tail: "" },
            { tag: "blanks", head: "<rss><channel><item><title>", part: "  \n", tail: "</title></item>" },
            { tag: "references", head: "<rss><channel><item><title>", part: "&#1", tail: "</title></item>" },
            { tag: "crossed tags", head: "<rss><channel>", part: "<a><b></a>", tail: "" }
        ];
    }
    function test_linearTime(data) {
        function timeFor(size) {
            const text = data.head + data.part.repeat(size / data.part.length) + data.tail;
            const start = Date.now();
            Rss.read(text);
            return Date.now() - start;
        }
        timeFor(65536);
        const small = Math.max(10, timeFor(Limits.answerBytes / 4));
        const large = timeFor(Limits.answerBytes);
        verify(large < 12 * small, small + " ms, then " + large + " ms");
    }

    function test_plainText_data() {
        return [
            { tag: "script", markup: "a<script>alert('<b>')</script>b", text: "ab" },
            { tag: "script in capitals", markup: "a<SCRIPT src=x>b</SCRIPT >c", text: "ac" },
            { tag: "script without end", markup: "a<script>b", text: "a" },
            { tag: "style and comment", markup: "<style>p{}</style>a<!-- <p>b -->c", text: "ac" },
            { tag: "escaped script", markup: "&lt;script&gt;x", text: "<script>x" },
            { tag: "handler", markup: "<img src=x onerror=alert(1)>a", text: "a" },
            { tag: "breaks", markup: "a<br>b<br/>c</p><p>d", text: "a b c d" },
            { tag: "sums", markup: "1 < 2 > 0", text: "1 < 2 > 0" },
            { tag: "controls", markup: "a\u0000\u0007b\u202ec\u2028d\ufeff", text: "a bc d" },
            { tag: "joined signs", markup: "👨‍👩‍👧 می‌خواهم", text: "👨‍👩‍👧 می‌خواهم" },
            { tag: "no text", markup: null, text: "" },
            { tag: "number", markup: 42, text: "42" }
        ];
    }
    function test_plainText(data) {
        compare(PlainText.plain(data.markup, 100), data.text);
    }

    function test_shortened_data() {
        return [
            { tag: "fits", text: "twelve chars", length: 12, shown: "twelve chars" },
            { tag: "at a word", text: "one two three four", length: 15, shown: "one two three…" },
            { tag: "one long word", text: "abcdefghij", length: 6, shown: "abcde…" },
            { tag: "half a sign", text: "abcd😀efgh", length: 6, shown: "abcd…" }
        ];
    }
    function test_shortened(data) {
        compare(PlainText.shortened(data.text, data.length), data.shown);
    }

    function test_webAddress_data() {
        return [
            { tag: "https://a.example/b.png?c=d", address: "https://a.example/b.png?c=d" },
            { tag: " http://a.example/ ", address: "http://a.example/" },
            { tag: "//a.example/b", address: "https://a.example/b" },
            { tag: "file:///etc/passwd", address: "" },
            { tag: "qrc:/Nuvex/x.png", address: "" },
            { tag: "image://provider/x", address: "" },
            { tag: "data:image/png;base64,AAAA", address: "" },
            { tag: "/etc/passwd", address: "" },
            { tag: "http://a.example/\nX: y", address: "" },
            { tag: "https://a.example/" + "x".repeat(4000), address: "" }
        ];
    }
    function test_webAddress(data) {
        compare(PlainText.webAddress(data.tag), data.address);
    }

    function test_photos() {
        const answer = Photos.read(server.data("flickr.json"));
        compare(answer, { title: "Recent Uploads tagged nature", entries: [
            { title: "It's dawn", author: "Jane \"JD\" Doe", picture: "https://live.staticflickr.com/65535/1_abc_m.jpg" },
            { title: "", author: "", picture: "https://live.staticflickr.com/65535/2_def_m.jpg" }] });
        compare(Photos.read("jsonFlickrFeed(" + server.data("flickr.json") + ")").entries.length, 2);
        compare(Photos.inSize(answer.entries[0].picture, "large"), "https://live.staticflickr.com/65535/1_abc_b.jpg");
        compare(Photos.inSize(answer.entries[0].picture, "small"), answer.entries[0].picture);
        compare(Photos.inSize(answer.entries[0].picture, "absurd"), Photos.inSize(answer.entries[0].picture, "large"));
        compare(Photos.inSize("https://other.example/photo.jpg", "large"), "https://other.example/photo.jpg");
    }

    function test_posts_data() {
        return [
            { tag: "mastodon.json", entries: [
                { name: "Ada :sun:", account: "@ada@social.example", text: "Light over the #harbour & sea Second line",
                  avatar: "https://social.example/ada.png", time: Date.UTC(2026, 10, 23, 7) },
                { name: "grace", account: "@grace", text: "No name", avatar: "", time: 0 }] },
            { tag: "twitter1.json", entries: [
                { name: "Grace", account: "@grace", text: "Tea & toast", avatar: "https://img.example/grace.png",
                  time: Date.UTC(2026, 10, 23, 7) }] },
            { tag: "twitter2.json", entries: [
                { name: "Emmy", account: "@emmy", text: "Tea time", avatar: "https://img.example/emmy.png",
                  time: Date.UTC(2026, 10, 23, 7) },
                { name: "", account: "", text: "By someone unknown", avatar: "", time: Date.UTC(2026, 10, 23, 6) }] }
        ];
    }
    function test_posts(data) {
        compare(Posts.read(server.data(data.tag)).entries, data.entries);
    }

    function test_tagOf() {
        compare(Posts.tagOf("#street photography, 2026!"), "streetphotography2026");
        compare(Posts.tagOf("Zürich 東京"), "Zürich東京");
    }

    function test_forecast() {
        const answer = Forecast.read(server.data("openmeteo.json"));
        compare(answer, { current: { temperature: -0.4, code: 71, isDay: true }, offset: 3600, entries: [
            { date: "2026-11-23", code: 71, high: 1.5, low: -2.6 },
            { date: "2026-11-24", code: 3, high: 4.4, low: null }] });
        // 23:30 UTC is the next day in Berlin.
        compare(Forecast.daysFrom(answer, Date.UTC(2026, 10, 23, 23, 30)).map(day => day.date), ["2026-11-24"]);
        const shown = Days.shown(answer, 3, Date.UTC(2026, 10, 23, 12));
        compare(shown.map(day => day.date), ["2026-11-23", "2026-11-24", "2026-11-25"]);
        compare(shown[2].code, undefined);
        compare(Days.shown(null, 14, Date.UTC(2026, 1, 20, 12)).length, 14);
        compare(Days.dateOf(shown[0]).getDate(), 23);
    }

    function test_temperatures_data() {
        return [
            { tag: "below zero", celsius: -2.6, shown: "−3°", fahrenheit: "27°" },
            { tag: "almost zero", celsius: -0.4, shown: "0°", fahrenheit: "31°" },
            { tag: "above", celsius: 21.5, shown: "22°", fahrenheit: "71°" },
            { tag: "unknown", celsius: null, shown: "–", fahrenheit: "–" }
        ];
    }
    function test_temperatures(data) {
        compare(Forecast.temperature(data.celsius, false), data.shown);
        compare(Forecast.temperature(data.celsius, true), data.fahrenheit);
    }

    // Every code that has a name has a drawing that exists; what is unknown has neither.
    function test_weatherCodes() {
        for (let code = -1; code <= 100; ++code) {
            [true, false].forEach(isDay => {
                const icon = Forecast.icon(code, isDay);
                verify(Forecast.description(code) === "" || icon !== "", code);
                verify(icon === "" || CAPI.fileExist(":/Nuvex/Components/icons/" + icon + ".png"), icon);
            });
        }
        [-1, 4, 44, 60, 79, 100, undefined].forEach(code => compare(Forecast.icon(code, true), ""));
        compare(Forecast.description(1000), "");
        compare(Forecast.icon(0, false), "weatherClearNight");
    }

    // What is no answer of the service: each reader says so, and none stumbles.
    function test_noAnswer_data() {
        const texts = ["", "null", "42", "\"words\"", "[]", "{}", "[null, 1, \"x\", []]", "{\"items\": {}}", "{\"statuses\": 1}",
                       "{\"data\": [null, {}], \"includes\": []}", "{\"items\": [null, 1, {\"media\": \"x\"}]}",
                       "{\"error\": true, \"reason\": \"x\"}", "{\"current\": [], \"daily\": {\"time\": [null, 1, \"x\"]}}",
                       "{\"daily\": {\"time\": [\"2026-11-23\"], \"weather_code\": \"x\"}}", "<html>", "{\"a\":",
                       "[".repeat(100000), "{\"__proto__\": {\"items\": []}}",
                       "{\"current\": {\"temperature_2m\": 1e300, \"weather_code\": \"0\"}}"];
        const readers = { Rss: Rss.read, Photos: Photos.read, Posts: Posts.read, Forecast: Forecast.read };
        const rows = [];
        Object.keys(readers).forEach(name => texts.forEach(text => rows.push({ tag: name + " " + text.slice(0, 40),
                                                                              read: readers[name], text: text })));
        return rows;
    }
    function test_noAnswer(data) {
        const answer = data.read(data.text);
        verify(answer === null || answer.entries.length === 0, JSON.stringify(answer));
    }
}
