// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import QtTest 1.15
import Nuvex.Components 1.0
import "qrc:/Nuvex/Components/private/limits.js" as Limits

// Media that are missing, damaged, changing or enormous, in every component that shows some.
ComponentCase {
    id: test
    name: "BadInput"

    function initTestCase() {
        Limits.firstRetry = Limits.longestRetry = 100;
        fixture.makeClip("moving.gif", "#00ff00", 0.3);
        // While one shows it, no other has to decode it.
        fixture.makeEnormousPicture("enormous.png");
        keeper.source = fixture.url("enormous.png");
        tryCompare(keeper, "status", Image.Ready, 30000);
        compare([keeper.width, keeper.height], [8192, 4608]);
    }

    function cleanupTestCase() {
        Limits.firstRetry = 1000;
        Limits.longestRetry = 60000;
        keeper.source = "";
    }

    BasicImage {
        id: keeper
        visible: false
    }

    // A document with the picture `name` in a component, and the colour in the middle.
    function show(data, name) {
        var address = "'" + fixture.url(name) + "'";
        var value = data.isModel ? data.property + ": [{ image: " + address + " }]" : data.property + ": " + address;
        return make("Rectangle { width: 300; height: 300; color: 'black'; property Item item: children[0]; property real across: " + (data.across || 0.5) + "; " + data.tag
                    + " { anchors.fill: parent; " + value + " } }");
    }

    // Whether the colour is drawn somewhere on the upright through the middle.
    function has(ground, color) {
        var frame = grabImage(ground);
        for (var y = 5; y < ground.height; y += 5) {
            if (isNear(String(frame.pixel(ground.width * (ground.across || 0.5), y)), color))
                return true;
        }
        return false;
    }

    function pictures() {
        return [
            { tag: "BasicImage", property: "source" },
            { tag: "KImage", property: "source" },
            { tag: "LiveImage", property: "source" },
            { tag: "MenuItem1", property: "image" },
            { tag: "MenuItem2", property: "image", across: 0.2 },
            { tag: "MenuItem3", property: "image" },
            { tag: "MenuItem4", property: "image", across: 0.17 },
            { tag: "Carousel", property: "model", isModel: true },
            { tag: "GridOrganizer", property: "model", isModel: true, across: 0.15 },
            { tag: "MenuSlideshow", property: "model", isModel: true, across: 0.75 },
            { tag: "Particles", property: "source", isDust: true },
            { tag: "Fireworks", property: "source", isDust: true }
        ];
    }

    // One warning while the file is missing, damaged or cut; with a good file the picture is there without help.
    function test_pictures_data() {
        return pictures();
    }
    function test_pictures(data) {
        ["missing", "damaged", "cut"].forEach(function(fault) {
            var name = data.tag + fault + ".png";
            if (fault === "damaged")
                fixture.makeGarbage(name);
            else if (fault === "cut")
                fixture.makeCutPicture(name);
            wait(2 * Limits.fileClockTick);
            var ground = show(data, name);
            tryVerify(function() { return fixture.warningCount() > 0; });
            // A missing file comes at once, before anyone could look what was in its place.
            if (fault !== "missing")
                waitForRendering(ground, 100);
            fixture.makePicture(name, "#00ff00", 90, 90);
            tryVerify(function() { return data.isDust ? tints(ground) : has(ground, "#00ff00"); }, 8000, fault);
            expectWarnings(1, new RegExp(name));
            ground.destroy();
        });
    }

    // Particles: the picture itself is in use.
    function tints(ground) {
        return Array.prototype.some.call(ground.item.children, function(child) { return child.isUsable === true; });
    }

    // 144 megapixels, and pictures that move, of which the first is shown.
    function test_largeAndMoving_data() {
        return pictures();
    }
    function test_largeAndMoving(data) {
        ["enormous.png", "moving.gif"].forEach(function(name) {
            var ground = show(data, name);
            tryVerify(function() { return data.isDust ? ground.item.settled !== false : has(ground, "#00ff00"); }, 20000, name);
            ground.destroy();
        });
    }

    function test_videoIn4k_data() {
        return [{ tag: "BasicVideo" }, { tag: "ChromaVideo" }];
    }
    function test_videoIn4k(data) {
        fixture.makeClip("4k.mp4", "red", 1, "3840x2160");
        var ground = make("Rectangle { width: 320; height: 180; color: 'blue'; property Item item: children[0]; " + data.tag
                          + " { anchors.fill: parent; muted: true; source: '" + fixture.url("4k.mp4") + "' } }");
        tryVerify(function() { return has(ground, "red"); }, 15000);
        var last = ground.item.position, turns = 0;
        tryVerify(function() {
            turns += ground.item.position < last;
            last = ground.item.position;
            return turns > 0;
        }, 15000, "plays to its end and on");
        verify(has(ground, "red"));
    }
}
