// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Editor/panel/files.js" as Files

ComponentCase {
    id: test
    name: "Picture"

    function initTestCase() {
        fixture.makePicture("red.png", "red", 200, 100);
        fixture.makePicture("blue.png", "blue", 100, 100);
    }

    function makeImage(extra) {
        return make("BasicImage { width: 200; height: 200; " + extra + " }");
    }

    function load(item, name) {
        item.source = fixture.url(name);
        tryCompare(item, "status", Image.Ready);
    }

    // Which parts of a square a red 2:1 picture covers.
    function test_fillModes_data() {
        return [
            { tag: "fit", mode: Image.PreserveAspectFit, middle: true, top: false },
            { tag: "crop", mode: Image.PreserveAspectCrop, middle: true, top: true },
            { tag: "stretch", mode: Image.Stretch, middle: true, top: true },
            { tag: "absurd", mode: -77, middle: true, top: true }
        ];
    }
    function test_fillModes(data) {
        var ground = make("Rectangle { width: 200; height: 200; color: 'white'; "
                          + "property alias image: image; BasicImage { id: image; anchors.fill: parent } }");
        ground.image.fillMode = data.mode;
        load(ground.image, "red.png");
        compare(colorAt(ground, 100, 100), data.middle ? "#ff0000" : "#ffffff");
        compare(colorAt(ground, 100, 10), data.top ? "#ff0000" : "#ffffff");
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

    function test_naturalSizeUnlessGiven() {
        var item = make("BasicImage {}");
        load(item, "red.png");
        compare([item.width, item.height], [200, 100]);
        item.width = 50;
        compare([item.width, item.height], [50, 100]);
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

    function test_newSourceReplacesOldWithoutGap() {
        var item = makeImage("");
        fixture.makePicture("next.png", "blue", 900, 900);
        load(item, "red.png");
        item.source = fixture.url("next.png");
        compare(item.status, Image.Loading);
        compare(colorAt(item, 100, 100), "#ff0000");
        tryVerify(function() { return colorAt(item, 100, 100) === "#0000ff"; });
    }

    function test_missingOrBroken_data() {
        return [{ tag: "missing" }, { tag: "broken" }];
    }
    function test_missingOrBroken(data) {
        var name = data.tag + ".png";
        if (data.tag === "broken")
            fixture.makeGarbage(name);
        var item = makeImage("");
        ignoreWarning(new RegExp(name));
        item.source = fixture.url(name);
        tryCompare(item, "status", Image.Error);
        var quiet = grabImage(item);
        verify(quiet.pixel(100, 100).a > 0, "a placeholder is drawn");
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
