// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/picture"

ComponentCase {
    id: test
    name: "ChromaVideo"

    // 6 x 6 x 6 colours, and the key over them on black, so that the drawn colour is the premultiplied one.
    Item {
        id: colors
        width: 216 * 2
        height: 2

        Repeater {
            model: 216

            Rectangle {
                x: index * 2
                width: 2
                height: 2
                color: Qt.rgba(Math.floor(index / 36) / 5, Math.floor(index / 6) % 6 / 5, index % 6 / 5, 1)
            }
        }
    }

    ShaderEffectSource {
        id: picture
        sourceItem: colors
        hideSource: true
        visible: false
    }

    Rectangle {
        id: ground
        y: 20
        width: 216 * 2
        height: 2

        ChromaKey {
            id: key
            anchors.fill: parent
            source: picture
        }
    }

    function test_shaderIsTheKey_data() {
        return [
            { tag: "defaults", th: 3.5, a2: 1.2, amt: 0.03, bg: "white", plus: 0 },
            { tag: "soft", th: 1, a2: 0.8, amt: 0.5, bg: "white", plus: 0 },
            { tag: "hard", th: 10, a2: 2, amt: 0, bg: "white", plus: 0 },
            { tag: "coloured light", th: 3.5, a2: 1.2, amt: 0.03, bg: "#ffc080", plus: 0.1 }
        ];
    }
    function test_shaderIsTheKey(data) {
        ["th", "a2", "amt", "bg", "plus"].forEach(function(name) { key[name] = data[name]; });
        var light = Qt.darker(data.bg, 1);
        [0, 1].forEach(function(white) {
            ground.color = white ? "white" : "black";
            var drawn = grabImage(ground);
            for (var i = 0; i < 216; ++i) {
                var pixel = { r: Math.floor(i / 36) / 5, g: Math.floor(i / 6) % 6 / 5, b: i % 6 / 5 };
                var wanted = fixture.keyed(pixel, light, data);
                var under = white * (1 - wanted.a);
                [["red", "r"], ["green", "g"], ["blue", "b"]].forEach(function(name) {
                    var difference = Math.abs(drawn[name[0]](i * 2 + 1, 1) - 255 * Math.min(1, wanted[name[1]] + under));
                    verify(difference <= 3, JSON.stringify(pixel) + " " + name[0] + " off by " + difference);
                });
            }
        });
    }

    function makeVideo(clip, extra, kind) {
        fixture.makeClip(clip + ".mp4", clip, 1);
        return make("Rectangle { width: 320; height: 180; color: 'blue'; property alias video: video; " + (kind || "ChromaVideo") + " { "
                    + "id: video; anchors.fill: parent; muted: true; source: '" + fixture.url(clip + ".mp4") + "'; " + extra + " } }");
    }

    function test_greenShowsWhatLiesBeneath() {
        var green = makeVideo("0x00ff00", "");
        tryCompare(green.video, "playbackState", MediaPlayer.PlayingState, 8000);
        tryVerify(function() { return green.video.position > 0; }, 8000);
        verify(isNear(colorAt(green, 160, 90), "blue"), colorAt(green, 160, 90));
        var red = makeVideo("red", "");
        tryVerify(function() { return isNear(colorAt(red, 160, 90), "red"); }, 8000, colorAt(red, 160, 90));
        // Enlarged, at a width that is no whole number of pixels, it is keyed out to its edges.
        red.width = 500.5;
        red.height = 400;
        tryVerify(function() { return [[0, 0], [499, 0], [250, 399], [0, 399], [499, 399]].every(
                      at => isNear(colorAt(red, at[0], at[1]), "red")); });
    }

    // Without autoPlay it goes on as it was when it was hidden: at rest, or playing when somebody has started it.
    function test_goesOnWithoutAutoPlay_data() {
        return [{ tag: "ChromaVideo" }, { tag: "BasicVideo" }];
    }
    function test_goesOnWithoutAutoPlay(data) {
        const video = makeVideo("red", "autoPlay: false", data.tag).video;
        tryCompare(video, "playbackState", MediaPlayer.PausedState, 8000);
        [MediaPlayer.PausedState, MediaPlayer.PlayingState, MediaPlayer.PausedState].forEach((state, i) => {
            [() => {}, video.play, video.pause][i]();
            tryCompare(video, "playbackState", state);
            video.visible = false;
            tryCompare(video, "playbackState", MediaPlayer.PausedState);
            video.visible = true;
            wait(50);
            tryCompare(video, "playbackState", state);
        });
    }

    function test_playsWhileSeen_data() {
        return test_goesOnWithoutAutoPlay_data();
    }
    function test_playsWhileSeen(data) {
        var ground = makeVideo("red", "", data.tag);
        tryCompare(ground.video, "playbackState", MediaPlayer.PlayingState, 8000);
        ground.video.visible = false;
        tryCompare(ground.video, "playbackState", MediaPlayer.PausedState);
        ground.video.visible = true;
        tryCompare(ground.video, "playbackState", MediaPlayer.PlayingState);
        ground.video.stop();
        tryCompare(ground.video, "playbackState", MediaPlayer.StoppedState);
        ground.video.play();
        ground.video.pause();
        // While its first frame is still on the way, GStreamer drops a seek.
        tryVerify(function() { ground.video.seek(500); return ground.video.position >= 400; });
        compare(ground.video.playbackState, MediaPlayer.PausedState);
    }
}
