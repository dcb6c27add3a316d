// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.Components 1.0
import "qrc:/Nuvex/Components/private/limits.js" as ComponentLimits
import "qrc:/Nuvex/Components/private/feed/limits.js" as Limits

// Weather, WeatherForecast, Rss, Flickr and Twitter on a screen: with an answer, without one, and with bad ones.
NetworkCase {
    id: test
    name: "NetworkItems"
    width: 800
    height: 600

    // The item named `kind`, its service at "feed" on the server.
    function makeItem(kind, properties) {
        const address = (kind === "Rss" ? "currentFeed" : "service") + ": '" + server.url(path("feed")) + "'; ";
        return make(kind + " { " + address + (properties || "") + " }");
    }

    function goodAnswer(kind) {
        const files = { Weather: "openmeteo.json", WeatherForecast: "openmeteo.json", Rss: "rss2.xml",
                        Flickr: "flickr.json", Twitter: "mastodon.json" };
        ["m", "b"].forEach(size => server.servePicture(path("picture_" + size + ".jpg"), "green"));
        return server.data(files[kind]).replace(/2026-11-2(\d)/g, (all, digit) => dateIn(digit - 3))
            .replace(/(https?:)?\/\/[\w.]+\/[^"'\s<]*\.(jpg|png|webp)/g, server.url(path("picture_m.jpg")));
    }

    function dateIn(days) {
        return new Date(Date.now() + 3600000 + days * 86400000).toISOString().slice(0, 10);
    }

    // Everything below `item` for which `wanted` holds.
    function all(item, wanted) {
        return Array.prototype.reduce.call(item.children, (found, child) =>
            found.concat(wanted(child) ? [child] : [], all(child, wanted)), []);
    }

    function texts(item) {
        return all(item, child => child.textFormat !== undefined && child.visible && child.text !== "");
    }

    function words(item) {
        return texts(item).map(text => text.text).join("|");
    }

    function isFlat(image) {
        for (let x = 4; x < image.width; x += 4) {
            for (let y = 4; y < image.height; y += 4) {
                if (!Qt.colorEqual(image.pixel(x, y), image.pixel(image.width / 2, 2)))
                    return false;
            }
        }
        return true;
    }

    function kinds() {
        return [{ tag: "Weather", word: "Light snow" }, { tag: "WeatherForecast", word: "−3°" },
                { tag: "Rss", word: "Bridge opens" }, { tag: "Flickr", word: "" },
                { tag: "Twitter", word: "Light over the #harbour & sea" }];
    }

    // Without network a fresh item shows something calm, and no word of what is wrong.
    function test_fresh_data() {
        return kinds();
    }
    function test_fresh(data) {
        const item = makeItem(data.tag);
        tryVerify(() => server.count(path("feed")) >= 2);
        expectWarnings(1, /status 404/);
        verify(!isFlat(grabImage(item)));
        verify(words(item) !== "");
        verify(!/404|status|error|fail|undefined|null|NaN|Invalid/i.test(words(item)), words(item));
    }

    // In the editor an item without an answer shows how it will look.
    function test_sample_data() {
        return [{ tag: "Weather", word: "21°" }, { tag: "WeatherForecast", word: "24°" },
                { tag: "Rss", word: "headline" }, { tag: "Twitter", word: "@ada" }];
    }
    function test_sample(data) {
        const item = makeItem(data.tag, "element: 3");
        verify(words(item).indexOf(data.word) >= 0, words(item));
        fixture.takeWarnings();
    }

    // An answer is shown; it stays while the server fails, and when the item is made anew.
    function test_goodAnswer_data() {
        return kinds();
    }
    function test_goodAnswer(data) {
        server.serve(path("feed"), goodAnswer(data.tag));
        const item = makeItem(data.tag);
        tryVerify(() => words(item).indexOf(data.word) >= 0 && server.count(path("feed")) > 0);
        verify(!isFlat(grabImage(item)));
        server.serveStatus(path("feed"), 500);
        const again = makeItem(data.tag);
        tryVerify(() => words(again).indexOf(data.word) >= 0);
        fixture.takeWarnings();
    }

    // Everything from outside is shown as it is written: nothing of it is taken for markup.
    function test_hostileText_data() {
        const evil = "<img src='x'><b onclick='y'>bold</b> &lt;i&gt; {{z}} %1 \\u0000 " + "W".repeat(5000);
        return [
            { tag: "Rss", answer: "<rss><channel><title><![CDATA[" + evil + "]]></title><item><title><![CDATA[" + evil
                                  + "]]></title><description><![CDATA[" + evil + "]]></description></item></channel></rss>" },
            { tag: "Twitter", answer: JSON.stringify([{ content: evil, account: { acct: evil, display_name: evil } }]) },
            { tag: "Flickr", answer: JSON.stringify({ items: [{ title: evil, author: evil,
                                                                media: { m: "http://127.0.0.1:1/x.jpg" } }] }) }
        ];
    }
    function test_hostileText(data) {
        server.serve(path("feed"), data.answer);
        const item = makeItem(data.tag);
        tryVerify(() => data.tag === "Flickr" || words(item).indexOf("bold <i> {{z}} %1") >= 0);
        texts(item).forEach(text => {
            verify(text.textFormat === Text.PlainText || !/[<&]/.test(text.text), text.text);
            verify(!/onclick/.test(text.text));
            verify(text.text.length <= Limits.textLength);
            const right = text.mapToItem(item, text.width, 0).x;
            verify(right <= item.width + 1, text.text.slice(0, 20) + " ends at " + right);
        });
        grabImage(item);
        fixture.takeWarnings();
    }

    function test_badValues_data() {
        const rows = [];
        const absurd = {
            Weather: "lat: 1e9; lon: -1e9; place: '<b>'; localeName: 'xx_YY'",
            WeatherForecast: "days: -3; textPixelSize: -1; localeName: '?'",
            Rss: "imgSize: -5; pixelSize: 0; showTime: -1",
            Flickr: "tags: ''; quality: ''; showTime: -1",
            Twitter: "phrase: ''; limit: -1; pixelSize: -7; avatarSize: -9; showTime: 0"
        };
        Object.keys(absurd).forEach(kind => {
            rows.push({ tag: kind + " with absurd values", kind: kind, properties: absurd[kind] });
            rows.push({ tag: kind + " without size", kind: kind, properties: "width: 0; height: 0" });
            rows.push({ tag: kind + " of negative size", kind: kind, properties: "width: -10; height: -10" });
            rows.push({ tag: kind + " like a thread", kind: kind, properties: "width: 3; height: 500" });
            rows.push({ tag: kind + " like a wall", kind: kind, properties: "width: 7680; height: 4320" });
        });
        rows.push({ tag: "WeatherForecast of a thousand days", kind: "WeatherForecast", properties: "days: 1000" });
        rows.push({ tag: "Rss with huge letters", kind: "Rss", properties: "pixelSize: 100000; imgSize: 100000" });
        rows.push({ tag: "Twitter with huge letters", kind: "Twitter", properties: "pixelSize: 100000; avatarSize: 100000" });
        return rows;
    }
    function test_badValues(data) {
        server.serve(path("feed"), goodAnswer(data.kind));
        const item = makeItem(data.kind, data.properties);
        tryVerify(() => server.count(path("feed")) > 0);
        wait(50);
        waitForRendering(item, 100);
        expectWarnings(0, /./);
    }

    function test_manyEntries() {
        server.serve(path("feed"), "<rss><channel>" + "<item><title>Entry</title></item>".repeat(10000));
        const item = makeItem("Rss", "height: 600; imgSize: 0; pixelSize: 10");
        tryVerify(() => words(item).indexOf("Entry") >= 0);
        verify(all(item, child => child.entry !== undefined).length < 60);
    }

    // A page shows whole rows only, and after the last page comes the first.
    function test_pages() {
        const titles = ["One", "Two", "Three", "Four", "Five"];
        server.serve(path("feed"), "<rss><channel>" + titles.map(title => "<item><title>" + title + "</title></item>").join(""));
        const item = makeItem("Rss", "height: 320; imgSize: 0; pixelSize: 20; showTime: 1000");
        const shownTitles = () => titles.filter(title => words(item).split("|").indexOf(title) >= 0).join(" ");
        tryCompare({ get seen() { return shownTitles(); } }, "seen", "One Two", 2000);
        tryVerify(() => shownTitles() === "Three Four", 3000);
        tryVerify(() => shownTitles() === "Four Five", 3000);
        tryVerify(() => shownTitles() === "One Two", 3000);
    }

    // In a slide that has no turn nothing is asked.
    function test_absentSlide() {
        server.serve(path("feed"), goodAnswer("Weather"));
        const show = make("Slideshow { running: false; transTime: 0; width: 400; height: 300; Slide { } Slide { Weather { service: '"
                          + server.url(path("feed")) + "' } } }");
        wait(200);
        compare(server.count(path("feed")), 0);
        show.next();
        tryVerify(() => server.count(path("feed")) === 1);
    }

    // The address says where and what; signs in it are written as addresses need them.
    function test_addresses_data() {
        return [
            { tag: "Weather", properties: "lat: -33.8688; lon: 151.2093", query: "?lat={lat}&lon={lon}",
              path: "?lat=-33.8688&lon=151.2093" },
            { tag: "Flickr", properties: "tags: 'blue sky,sea&sand'", query: "?tags={tags}", path: "?tags=blue%20sky%2Csea%26sand" },
            { tag: "Twitter", properties: "phrase: '#big event?'; limit: 7", query: "/{tag}?q={phrase}&n={limit}",
              path: "/bigevent?q=%23big%20event%3F&n=7" }
        ];
    }
    function test_addresses(data) {
        makeItem(data.tag, "objectName: 'x'; " + data.properties + "; Component.onCompleted: service += '" + data.query + "'");
        tryVerify(() => server.lastPath(path("feed")) === path("feed") + data.path);
        fixture.takeWarnings();
    }

    // Photos fade in one after the other; one that is missing or broken is passed over.
    function test_photos() {
        server.servePicture(path("red_b.jpg"), "red");
        server.serve(path("broken_b.jpg"), "no picture", "image/jpeg");
        server.servePicture(path("blue_b.jpg"), "blue");
        const photo = name => ({ title: name, author: "", media: { m: server.url(path(name + "_m.jpg")) } });
        server.serve(path("feed"), JSON.stringify({ items: ["missing", "red", "broken", "blue"].map(photo) }));
        const item = makeItem("Flickr", "showTime: 2000; width: 200; height: 200");
        tryVerify(() => isNear(colorAt(item, 100, 50), "red"), 5000);
        tryVerify(() => words(item) === "red");
        tryVerify(() => isNear(colorAt(item, 100, 50), "blue"), 8000);
        tryVerify(() => words(item) === "blue");
        // With the network gone some photo stays, whole or fading into another.
        ["feed", "red_b.jpg", "blue_b.jpg"].forEach(name => server.serveStatus(path(name), 404));
        for (let i = 0; i < 12; ++i) {
            wait(300);
            const color = Qt.darker(colorAt(item, 100, 50), 1);
            verify(color.r + color.b > 0.8 && color.g < 0.1, color);
        }
        fixture.takeWarnings();
    }

    // Fahrenheit, descriptions and drawings follow their switches.
    function test_weatherSwitches() {
        server.serve(path("feed"), goodAnswer("Weather"));
        const item = makeItem("Weather");
        tryVerify(() => words(item).indexOf("0°|Light snow|Berlin") >= 0);
        item.fahrenheit = true;
        item.showDescription = false;
        item.place = "";
        compare(words(item), "31°");
        const drawings = () => all(item, child => child.paintedWidth !== undefined && child.source !== undefined && child.visible);
        compare(drawings().length, 1);
        verify(/weatherSnow/.test(drawings()[0].source));
        item.showIcon = false;
        compare(drawings().length, 0);
    }

    // Days that have passed go, days beyond the answer show their names alone.
    // Of what is not known nothing is drawn; the names of days stand on one line with those that are.
    function test_unknownWeather_data() {
        const known = goodAnswer("Weather");
        return [
            { tag: "Weather, no answer", answer: "", drawings: 0 },
            { tag: "Weather, strange code", answer: known.replace("\"weather_code\":71", "\"weather_code\":42"), drawings: 0 },
            { tag: "WeatherForecast, no answer", answer: "", drawings: 0 },
            { tag: "WeatherForecast, two of five days", answer: known, drawings: 2 }
        ];
    }
    function test_unknownWeather(data) {
        if (data.answer !== "")
            server.serve(path("feed"), data.answer);
        const item = makeItem(data.tag.split(",")[0], "color: 'black'");
        tryVerify(() => data.answer === "" || words(item).indexOf("°") > 0);
        waitForRendering(item);
        const drawings = all(item, child => child.sourceSize !== undefined && child.visible && child.status === Image.Ready);
        compare(drawings.length, data.drawings);
        const names = texts(item).filter(text => /^(Mon|Tue|Wed|Thu|Fri|Sat|Sun)/.test(text.text) && data.tag.startsWith("WeatherF"));
        names.forEach(name => compare(name.mapToItem(item, 0, 0).y, names[0].mapToItem(item, 0, 0).y));
        fixture.takeWarnings();
    }

    function test_forecastDays() {
        server.serve(path("feed"), goodAnswer("WeatherForecast").split(dateIn(0)).join(dateIn(-1)));
        const item = makeItem("WeatherForecast", "days: 3; localeName: 'de_DE'");
        tryVerify(() => words(item).indexOf("4°") >= 0);
        verify(words(item).indexOf("−3°") < 0, words(item));
        const name = new Date(Date.now() + 2 * 86400000).toLocaleDateString(Qt.locale("de_DE"), "dddd");
        item.isVertical = true;
        verify(words(item).indexOf(name) >= 0, words(item) + " has " + name);
    }

    // No more than six connections go to one server: looks that are never answered must not keep theirs.
    function test_pictureComesBackAfterSilence() {
        const usual = ComponentLimits.firstRetry;
        ComponentLimits.firstRetry = ComponentLimits.longestRetry = 50;
        server.serveStatus(path("a.jpg"), 404);
        const item = make("BasicImage { width: 100; height: 100; source: '" + server.url(path("a.jpg")) + "' }");
        tryCompare(item, "status", Image.Error);
        server.serveSilence(path("a.jpg"));
        const asked = server.count(path("a.jpg"));
        tryVerify(() => server.count(path("a.jpg")) >= asked + 9);
        server.servePicture(path("a.jpg"), "green");
        tryCompare(item, "status", Image.Ready);
        ComponentLimits.firstRetry = usual;
        ComponentLimits.longestRetry = 60000;
        expectWarnings(1, /a\.jpg/);
    }

    // What is no video is tried again once, and then when something else is there.
    function test_brokenVideoIsTriedWhenItChanges() {
        ComponentLimits.firstRetry = 30;
        server.serve(path("broken.mp4"), "no video", "video/mp4");
        const item = make("BasicVideo { width: 64; height: 36; source: '" + server.url(path("broken.mp4")) + "' }");
        const retry = findRetry(item);
        const attempts = createTemporaryQmlObject("import QtTest 1.15; SignalSpy { signalName: 'worthTrying' }", test);
        attempts.target = retry;
        tryVerify(() => retry.pause >= 480, 10000);
        compare(attempts.count, 1);
        server.serve(path("broken.mp4"), "still no video", "video/mp4");
        tryCompare(attempts, "count", 2);
        ComponentLimits.firstRetry = 1000;
        tryVerify(() => fixture.warningCount() === 3);
        expectWarnings(3, /cannot play/);
    }
}
