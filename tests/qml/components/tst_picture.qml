// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Editor/panel/files.js" as Files

ComponentCase {
    id: test
    name: "Picture"

    // Of 40 x 20 pixels, in which no row and no column is like its neighbour.
    function chart() {
        let text = "P3\n40 20\n255\n";
        for (let i = 0; i < 800; ++i)
            text += [i % 40 * 6, Math.floor(i / 40) * 12, (i * 37) % 256].join(" ") + "\n";
        return text;
    }

    function initTestCase() {
        CAPI.writeToFile(chart(), "chart.ppm");
        fixture.makePicture("red.png", "red", 200, 100);
        fixture.makePicture("blue.png", "blue", 100, 100);
    }

    // On a lime ground.
    function makeImage(extra) {
        return make("Rectangle { width: 200; height: 200; color: 'lime'; property Item image: children[0]; "
                    + "BasicImage { anchors.fill: parent; " + extra + " } }").image;
    }

    function colorOn(item) {
        return colorAt(item.parent, 100, 100);
    }

    function load(item, name) {
        item.source = fixture.url(name);
        tryCompare(item, "status", Image.Ready);
    }

    // What documents say of an Image. The first ones are tried with each fill mode.
    readonly property var forEachMode: [
        "width: 120; height: 90", "width: 90; height: 120; mirror: true", "width: 33", "height: 70", "",
        "width: 100; height: 100; horizontalAlignment: Image.AlignLeft; verticalAlignment: Image.AlignTop",
        "width: 100; height: 30; horizontalAlignment: Image.AlignRight; verticalAlignment: Image.AlignBottom",
        "width: 100; height: 100; sourceSize.width: 20", "width: 15; height: 100; sourceSize: Qt.size(60, 60)"
    ]
    readonly property var sayings: [
        "width: 150; height: 150; smooth: false", "width: 150; height: 75; cache: false", "width: 80; height: 80; asynchronous: false",
        "width: 100; height: 50; sourceClipRect: Qt.rect(10, 5, 20, 10)", "sourceSize.height: 10", "scale: 2; rotation: 30; opacity: 0.5",
        "width: sourceSize.width * 2; height: width * sourceSize.height / sourceSize.width",
        "width: 2 * implicitWidth; onStatusChanged: height = status === Image.Ready ? paintedWidth : 10"
    ]

    // A document written for Image looks the same, and reads the same, with BasicImage and KImage.
    function test_isAnImage_data() {
        const modes = ["Stretch", "PreserveAspectFit", "PreserveAspectCrop", "Tile", "TileVertically", "TileHorizontally", "Pad"];
        const documents = sayings.map(text => "fillMode: Image.Stretch; " + text);
        modes.forEach(mode => forEachMode.forEach(text => documents.push("fillMode: Image." + mode + "; " + text)));
        return documents.map(text => ({ tag: text, document: text }));
    }
    function test_isAnImage(data) {
        const grounds = ["Image { ", "BasicImage { ", "KImage { kenburnsEnable: false; "].map(start =>
            make("Rectangle { width: 200; height: 200; color: 'lime'; property Item image: children[0]; " + start
                 + "x: 20; y: 30; source: '" + fixture.url("chart.ppm") + "'; " + data.document + " } }"));
        grounds.forEach(ground => tryCompare(ground.image, "status", Image.Ready));
        const readings = grounds.map(ground => ["width", "height", "implicitWidth", "implicitHeight", "paintedWidth", "paintedHeight",
            "progress", "sourceSize", "fillMode", "mirror", "smooth", "cache", "horizontalAlignment", "asynchronous"]
            .filter(name => name !== "asynchronous" || data.document.indexOf(name) > 0)
            // What a KImage shows has a size of its own: it moves.
            .filter(name => ground !== grounds[2] || !/^(implicit|width$|height$)/.test(name))
            .map(name => name + ": " + ground.image[name]));
        compare(readings[1], readings[0]);
        verify(readings[2].every(reading => readings[0].indexOf(reading) >= 0), readings[2] + " and " + readings[0]);
        if (!/^fillMode[^;]*; ((width|height): \d+)?$/.test(data.document))
            verify(grabImage(grounds[2]).equals(grabImage(grounds[0])), "KImage");
        verify(grabImage(grounds[1]).equals(grabImage(grounds[0])), "BasicImage");
    }

    // Every kind of picture that a panel offers is shown.
    function test_kinds_data() {
        return Files.filters.picture.map(function(pattern) { return { tag: pattern.replace("*.", "") }; });
    }
    function test_kinds(data) {
        var name = "kind." + data.tag;
        if (data.tag === "svg")
            CAPI.writeToFile("<svg xmlns='http://www.w3.org/2000/svg' width='64' height='64'>"
                             + "<rect width='64' height='64' fill='red'/></svg>", name);
        else if (data.tag === "gif")
            fixture.makeClip(name, "red", 0.1, "64x64");
        else
            fixture.makePicture(name, "red");
        var item = makeImage("");
        load(item, name);
        verify(isNear(colorAt(item, 100, 100), "#ff0000"), colorAt(item, 100, 100));
    }

    // A drawing has the size that it says, and sharp edges in a larger place.
    function test_drawing() {
        CAPI.writeToFile("<svg xmlns='http://www.w3.org/2000/svg' width='30' height='10'><rect width='15' height='10' fill='red'/>"
                         + "<rect x='15' width='15' height='10' fill='blue'/></svg>", "split.svg");
        const item = make("BasicImage {}");
        load(item, "split.svg");
        compare([item.width, item.height], [30, 10]);
        item.width = 600;
        item.height = 200;
        tryVerify(() => item.status === Image.Ready && item.sourceSize.width > 600);
        waitForRendering(item, 500);
        const row = grabImage(item);
        for (let x = 2; x < 598; ++x)
            verify(Math.abs(x - 300) < 3 || Qt.colorEqual(row.pixel(x, 100), x < 300 ? "red" : "blue"), x + " " + row.pixel(x, 100));
    }

    // With a plain Image, the aspect modes enlarge a small picture to the decoding limit.
    function test_decodedSizeIsCappedAndNeverEnlarged() {
        fixture.makePicture("wide.png", "red", 9000, 20);
        var item = make("BasicImage {}");
        load(item, "wide.png");
        compare(item.width, 8192);
        load(item, "blue.png");
        compare(item.width, 100);
    }

    function test_newSourceReplacesOldWithoutGap_data() {
        return [{ tag: "cached", cache: true }, { tag: "not cached", cache: false }];
    }
    function test_newSourceReplacesOldWithoutGap(data) {
        const item = makeImage("cache: " + data.cache);
        fixture.makePicture("next.png", "blue", 3000, 3000);
        load(item, "blue.png");
        load(item, "red.png");
        item.source = fixture.url("next.png");
        compare([item.status, item.progress], [Image.Loading, 0]);
        let frames = 0;
        for (let color = ""; color !== "#0000ff" && frames < 500; ++frames) {
            wait(2);
            color = colorOn(item);
            verify(color === "#ff0000" || color === "#0000ff", color + " in frame " + frames);
        }
        verify(frames > 1 && frames < 500, frames + " frames");
        item.source = "";
        compare(colorOn(item), "#00ff00");
    }

    function test_missingOrBroken_data() {
        return [{ tag: "missing" }, { tag: "broken" }, { tag: "missing in the editor", isEdited: true }];
    }
    function test_missingOrBroken(data) {
        var name = data.tag + ".png";
        if (data.tag === "broken")
            fixture.makeGarbage(name);
        wait(30); // what is written while it is tried is tried again
        var item = makeImage(data.isEdited ? "property int element: 3" : "");
        ignoreWarning(new RegExp(name));
        item.source = fixture.url(name);
        tryCompare(item, "status", Image.Error);
        compare(colorOn(item) !== "#00ff00", data.isEdited === true, "a mark is drawn");
        compare(findText(item), "");

        fixture.makePicture(name, "green", 300, 300);
        tryCompare(item, "status", Image.Ready, 5000);
        compare(colorAt(item, 100, 100), "#008000");
        expectWarnings(1, new RegExp(name));
        CAPI.removeFile(name);
    }

    function findText(item) {
        var own = item.text !== undefined ? item.text : "";
        for (var i = 0; i < item.children.length; ++i)
            own += findText(item.children[i]);
        return own;
    }

    function test_failedLooksAreNotLogged() {
        var item = makeImage("");
        ignoreWarning(/never\.png/);
        item.source = fixture.url("never.png");
        tryCompare(item, "status", Image.Error);
        var retry = findRetry(item);
        for (var i = 0; i < 8; ++i)
            retry.look();
        expectWarnings(1, /never\.png/);
        compare(retry.pause, 60000);
    }

    function test_relativePathsAreTheProjects() {
        var item = makeImage("");
        item.evaluate("source = 'red.png'");
        tryCompare(item, "status", Image.Ready);
        compare(colorAt(item, 100, 100), "#ff0000");
    }
}
