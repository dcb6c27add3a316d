// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/presence.js" as Presence
import "qrc:/Nuvex/Components/private/show/transitions.js" as Transitions

ComponentCase {
    id: test
    name: "Slideshow"

    SignalSpy {
        id: shown
        signalName: "slideShown"
    }

    // A show on a lime ground: slides filled with the given colours, which take 250 ms each.
    function makeShow(properties, colors) {
        var slides = colors.map(function(color) {
            return "Slide { duration: 250; Rectangle { anchors.fill: parent; color: '" + color + "' } }";
        });
        var show = make("Slideshow { width: 320; height: 180; color: '#00ff00'; " + properties + "; " + slides.join(" ") + "}");
        shown.clear();
        shown.target = show;
        return show;
    }

    function shownIndexes() {
        return shown.signalArguments.map(function(args) { return args[0]; });
    }

    function test_turnsInOrderAgainAndAgain() {
        var show = makeShow("transTime: 20", ["red", "blue", "white"]);
        compare(show.slides.length, 3);
        compare(show.currentIndex, 0);
        tryCompare(shown, "count", 4, 5000);
        compare(shownIndexes(), [1, 2, 0, 1]);
    }

    function test_slidesStayForTheirTime() {
        var start = Date.now();
        var show = makeShow("transTime: 0; offsetTime: 200", ["red", "blue"]);
        tryCompare(shown, "count", 1, 5000);
        verify(Date.now() - start >= 445, "the offset lengthens the first stay");
        tryCompare(shown, "count", 3, 5000);
        verify(Date.now() - start >= 940);
    }

    function test_command_data() {
        return [
            { tag: "next wraps", from: 2, call: function(show) { show.next(); }, index: 0 },
            { tag: "previous wraps", from: 0, call: function(show) { show.previous(); }, index: 2 },
            { tag: "goTo", from: 0, call: function(show) { show.goTo(2); }, index: 2 },
            { tag: "goTo nowhere", from: 1, call: function(show) { show.goTo(9); show.goTo(-1); }, index: 1 },
            { tag: "twice in a transition", from: 0, call: function(show) { show.next(); show.next(); }, index: 2 }
        ];
    }
    function test_command(data) {
        var show = makeShow("running: false; transTime: 40", ["red", "blue", "white"]);
        show.goTo(data.from);
        tryVerify(function() { return !show.turning && show.currentIndex === data.from; });
        data.call(show);
        tryVerify(function() { return !show.turning && show.currentIndex === data.index; });
        compare(show.currentSlide, show.slides[data.index]);
    }

    function test_onlyTheDueSlidesAreLoaded() {
        var show = makeShow("running: false; transTime: 0", ["red", "blue", "white"]);
        compare(show.slides.map(function(slide) { return slide.presence; }), [2, 0, 0]);
        show.next();
        tryCompare(show, "currentIndex", 1);
        compare(show.slides.map(function(slide) { return slide.presence; }), [0, 2, 0]);
        compare(show.slides.map(function(slide) { return slide.visible; }), [false, true, false]);
    }

    function test_picturesComeAndGo() {
        fixture.makePicture("slide.png", "red", 400, 400);
        var show = make("Slideshow { width: 320; height: 180; running: false; transTime: 0; Slide {} "
                        + "Slide { property alias image: image; BasicImage { id: image; anchors.fill: parent; "
                        + "source: '" + fixture.url("slide.png") + "' } } }");
        var image = show.slides[1].image;
        compare(image.status, Image.Null);
        show.next();
        tryCompare(show, "currentIndex", 1);
        compare(image.status, Image.Ready, "the slide came in with its picture");
        compare(image.source, fixture.url("slide.png"));
        show.next();
        tryCompare(show, "currentIndex", 0);
        compare(image.status, Image.Null);
        compare(image.source, fixture.url("slide.png"));
    }

    function test_waitsForASlideThatLoads() {
        var show = makeShow("transTime: 0", ["red"]);
        var slow = createTemporaryQmlObject("import QtQuick 2.15; import Nuvex.Components 1.0; "
                                            + "Slide { property alias settled: load.settled; duration: 250; "
                                            + "Item { id: load; property bool settled: false } }", show);
        tryCompare(slow, "presence", Presence.waiting);
        compare(slow.x, 320, "it loads beside the frame");
        wait(400);
        compare(show.currentIndex, 0);
        slow.settled = true;
        tryCompare(show, "currentIndex", 1);
    }

    // Grabs frames through a whole transition and looks for the ground.
    function test_transitionShowsNoGround_data() {
        return Transitions.names.map(function(name) { return { tag: name }; });
    }
    function test_transitionShowsNoGround(data) {
        var show = makeShow("running: false; transTime: 500; transType: '" + data.tag + "'", ["red", "blue"]);
        waitForRendering(show);
        show.next();
        var frames = 0;
        do {
            var frame = grabImage(show);
            for (var x = 4; x < 320; x += 26) {
                for (var y = 4; y < 180; y += 43)
                    verify(frame.green(x, y) < 40, "frame " + frames + " at " + x + "," + y + " " + frame.pixel(x, y));
            }
            ++frames;
            wait(10);
        } while (show.turning);
        verify(data.tag === "cut" || frames > 3, frames + " frames");
        compare(colorAt(show, 160, 90), "#0000ff");
        compare(show.slides[0].visible, false);
    }

    // White on grounds without green: what is green in a frame is a headline.
    function test_staggerNeverLaysTextOverText() {
        var slide = (x, color) => "Slide { id: " + color + "; property real level: 0.8; property alias text: text" + x
            + "; Rectangle { width: 320; height: 180; color: '" + color + "'; "
            + "Rectangle { id: text" + x + "; x: " + x + "; y: 40; width: 100; height: 60; opacity: " + color + ".level } } }";
        var show = make("Slideshow { width: 320; height: 180; running: false; transTime: 600; transType: 'stagger'; "
                        + slide(20, "red") + slide(200, "blue") + "}");
        waitForRendering(show);
        for (var from = 0; from < 2; ++from) {
            show.next();
            var leaving = 0, coming = 0, changing = 0;
            do {
                var frame = grabImage(show);
                var greens = [frame.green(70, 70), frame.green(250, 70)];
                verify(Math.min(greens[0], greens[1]) < 10, "two texts: " + greens);
                if (Math.min(frame.red(5, 5), frame.blue(5, 5)) > 20) {
                    ++changing;
                    verify(Math.max(greens[0], greens[1]) < 10, "a text while the picture changes: " + greens);
                }
                leaving += greens[from] >= 10 && greens[from] < 195 ? 1 : 0;
                coming += greens[1 - from] >= 10 && greens[1 - from] < 195 ? 1 : 0;
                wait(10);
            } while (show.turning);
            verify(leaving > 0 && changing > 0 && coming > 0, [leaving, changing, coming] + " frames");
        }
        show.slides.forEach(slide => compare(slide.text.opacity, 0.8));
        show.currentSlide.level = 0.5;
        compare(show.currentSlide.text.opacity, 0.5, "the document's binding holds again");
    }

    function test_slidesComeAndGo() {
        var show = makeShow("running: false; transTime: 0", ["red", "blue", "white"]);
        show.slides[0].destroy();
        tryVerify(function() { return show.slides.length === 2; });
        tryCompare(show, "currentIndex", 0);
        compare(colorAt(show, 10, 10), "#0000ff");
        createTemporaryQmlObject("import Nuvex.Components 1.0; Slide { isSlide: true }", show);
        createTemporaryQmlObject("import Nuvex.Components 1.0; Slide { isSlide: false }", show);
        compare(show.slides.length, 3);
        compare(show.slides[2].visible, false);
        show.slides[1].destroy();
        show.slides[0].destroy();
        tryVerify(function() { return show.slides.length === 1 && show.currentIndex === 0; });
    }

    function test_videoPlaysOnItsTurnFromTheStart() {
        fixture.makeClip("white.mp4", "white", 2);
        var show = make("Slideshow { width: 320; height: 180; running: false; transTime: 100; color: 'black'; Slide {} "
                        + "Slide { property alias video: video; BasicVideo { id: video; anchors.fill: parent; muted: true; "
                        + "source: '" + fixture.url("white.mp4") + "' } } }");
        var video = show.slides[1].video;
        compare(video.playbackState, MediaPlayer.StoppedState);
        for (var round = 0; round < 2; ++round) {
            show.next();
            tryVerify(function() { return show.turning; }, 8000);
            verify(video.settled, "its first frame was there before the transition");
            tryVerify(function() { return !show.turning; });
            verify(isNear(colorAt(show, 160, 90), "white"), "no empty frame");
            tryCompare(video, "playbackState", MediaPlayer.PlayingState);
            show.next();
            tryCompare(video, "playbackState", MediaPlayer.StoppedState);
            tryVerify(function() { return !show.turning; });
        }
    }

    function test_showInASlideFollowsIt() {
        var outer = make("Slideshow { running: false; transTime: 0; Slide {} Slide { property alias inner: inner; "
                         + "Slideshow { id: inner; transTime: 0; Slide { duration: 300 } Slide { duration: 300 } } } }");
        var inner = outer.slides[1].inner;
        compare(inner.slides[0].presence, Presence.absent);
        outer.next();
        tryCompare(inner.slides[0], "presence", Presence.shown);
        tryCompare(inner, "currentIndex", 1);
        outer.next();
        tryCompare(inner, "currentIndex", 0);
        compare(inner.slides[0].presence, Presence.absent);
        compare(inner.slides[1].presence, Presence.absent);
    }

    function test_standsStillInTheEditor() {
        var show = make("Slideshow { property int element: 3; transTime: 0; Slide { property int element: 1; duration: 220 } "
                        + "Slide { property int element: 2; duration: 220 } }");
        wait(400);
        compare(show.currentIndex, 0);
        compare(show.slides[1].presence, Presence.shown);
        show.goTo(1);
        compare(show.currentIndex, 1);
    }

    function test_absurdValuesAreQuiet() {
        var show = makeShow("transTime: -5; transType: 'nonsense'; offsetTime: -99999; clip: false",
                            ["red", "blue"]);
        show.width = -3;
        show.height = 0;
        show.slides[0].duration = -1;
        show.next();
        tryCompare(show, "currentIndex", 1);
        make("Slideshow { transTime: 100000000; Slide {} }").next();
        make("Slideshow {}").next();
    }
}
