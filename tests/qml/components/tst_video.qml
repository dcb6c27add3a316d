// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import QtTest 1.15

ComponentCase {
    id: test
    name: "Video"

    function initTestCase() {
        fixture.makeClip("white.mp4", "white", 0.6);
        fixture.makeClip("red.mp4", "red", 0.6);
    }

    function makeVideo(name, extra) {
        return make("Rectangle { width: 320; height: 180; color: 'black'; property alias video: video; BasicVideo { "
                    + "id: video; anchors.fill: parent; muted: true; source: '" + fixture.url(name) + "'; " + extra + " } }");
    }

    function isShown(ground, color) {
        return isNear(colorAt(ground, 160, 90), color);
    }

    function test_loopsWithoutDarkFrame() {
        var ground = makeVideo("white.mp4", "");
        tryVerify(function() { return isShown(ground, "white"); }, 8000);
        var dark = 0, frames = 0, rounds = 0, lastPosition = 0;
        while (rounds < 4 && frames < 2000) {
            wait(10);
            if (ground.video.position < lastPosition)
                ++rounds;
            lastPosition = ground.video.position;
            ++frames;
            if (!isShown(ground, "white"))
                ++dark;
        }
        compare(rounds, 4);
        compare(dark, 0, dark + " of " + frames + " frames");
    }

    function test_newSourceWithoutDarkFrame() {
        var ground = makeVideo("white.mp4", "");
        tryVerify(function() { return isShown(ground, "white"); }, 8000);
        ground.video.source = fixture.url("red.mp4");
        for (var frames = 0; !isShown(ground, "red") && frames < 500; ++frames) {
            verify(isShown(ground, "white"), "frame " + frames + " " + colorAt(ground, 160, 90));
            wait(10);
        }
        verify(isShown(ground, "red"));
    }

    function test_withoutAutoPlayShowsFirstFrame() {
        var ground = makeVideo("red.mp4", "autoPlay: false");
        tryVerify(function() { return isShown(ground, "red"); }, 8000);
        compare(ground.video.playbackState, MediaPlayer.PausedState);
        ground.video.play();
        tryCompare(ground.video, "playbackState", MediaPlayer.PlayingState);
    }

    function test_missingOrBroken_data() {
        return [{ tag: "missing" }, { tag: "broken" }, { tag: "edited", isEdited: true }];
    }
    function test_missingOrBroken(data) {
        var name = data.tag + ".mp4";
        if (data.tag === "broken")
            fixture.makeGarbage(name);
        wait(30); // what is written while it is tried is tried again
        var ground = makeVideo(name, data.isEdited ? "element: 3" : "");
        tryVerify(function() { return ground.video.settled && ground.video.status === MediaPlayer.InvalidMedia; }, 8000);
        compare(colorAt(ground, 2, 2) !== "#000000", data.isEdited === true, "a mark is drawn in the editor alone");
        fixture.makeClip(name, "white", 1);
        tryVerify(function() { return isShown(ground, "white"); }, 8000);
        expectWarnings(1, new RegExp(name));
        CAPI.removeFile(name);
    }
}
