// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../limits.js" as Limits
import "../presence.js" as Presence
import "stage.js" as Stage

/// Gives the slides of a Slideshow their turns. The time of a slide has up to three stretches: alone; with the next
/// slide loading beside the frame; and, if need be, waiting for that slide. Then the transition runs.
Item {
    id: root

    /// The Slideshow and its stage.
    property Item show
    property SlideStage stage
    // Set when the document is complete: before, slides come one by one.
    property bool hasBegun: false
    readonly property var slides: show.slides
    /// Positions of the slides that take turns.
    readonly property var order: stage.isStill || show.turnOrder === null
                                 ? slides.map(function(slide, i) { return i; })
                                 : show.turnOrder.filter(function(i) { return slides[i] !== undefined; })
    readonly property int presence: Presence.presenceOf(show)
    readonly property bool isSeen: show.visible && presence === Presence.shown && !stage.isStill
    readonly property bool isRunning: isSeen && show.running
    // When the next turn is due, as Date.now() counts, and how long it has waited since for its slide.
    property real dueAt: 0
    property int waited: 0

    /// Shows the first slide, if none is shown yet.
    function begin() {
        root.hasBegun = true;
        if (root.stage.current)
            return;
        root.stage.startWith(root.order.length > 0 ? root.slides[root.order[0]] : null);
        startTime(root.show.offsetTime);
    }

    /// Position of the slide that follows (1) or precedes (-1) slide `index`; undefined without any.
    function neighbour(index, step) {
        const count = root.order.length;
        const place = root.order.indexOf(index);
        return root.order[place < 0 ? 0 : (place + step + count) % count];
    }

    /// Turns to slide `index` once it is loaded; where nobody sees it, at once.
    function turnTo(index) {
        begin();
        root.stage.finish();
        const wanted = root.slides[index];
        if (!wanted || wanted === root.stage.current)
            return;
        root.dueAt = Date.now();
        load(wanted);
        if (root.isSeen)
            turnWhenReady();
        else
            root.stage.finish();
    }

    function timeOf(slide) {
        return Stage.timeOf(slide, root.show.transTime);
    }

    // The current slide's time begins, with `extra` milliseconds.
    function startTime(extra) {
        if (root.stage.current)
            root.dueAt = Date.now() + timeOf(root.stage.current) + extra;
        plan();
    }

    // Sets the timer for what comes next in the current slide's time.
    function plan() {
        clock.stop();
        if (!root.isRunning || !root.stage.current || root.stage.turning)
            return;
        let left = root.dueAt - Date.now();
        const longest = timeOf(root.stage.current) + Math.abs(root.show.offsetTime);
        if (left > longest) {
            // The computer's clock was set back.
            left = longest;
            root.dueAt = Date.now() + left;
        }
        clock.interval = Math.max(1, root.stage.incoming ? left : left - Limits.slideLead);
        clock.start();
    }

    function goOn() {
        if (root.stage.incoming)
            turnWhenReady();
        else
            load(root.slides[neighbour(root.slides.indexOf(root.stage.current), 1)]);
    }

    function load(slide) {
        if (!slide || slide === root.stage.current)
            return;
        root.waited = 0;
        root.stage.load(slide);
        plan();
    }

    function turnWhenReady() {
        clock.stop();
        if (Presence.isSettled(root.stage.incoming) || root.waited > Limits.slidePatience)
            turn();
        else
            patience.start();
    }

    function turn() {
        // In step with other shows, unless loading or a change of the computer's clock has cost too much time.
        const late = Date.now() - root.dueAt;
        root.dueAt = Date.now() + timeOf(root.stage.incoming) - (late < Limits.shortestSlide ? Math.max(0, late) : 0);
        root.stage.turn();
    }

    function isDue(slide) {
        return slide !== null && root.order.indexOf(root.slides.indexOf(slide)) >= 0;
    }

    // After a change of the list or its order: goes on with what is left.
    function checkSlides() {
        if (!root.hasBegun)
            return;
        if (!isDue(root.stage.incoming))
            root.stage.drop();
        root.stage.clearOthers();
        if (root.slides.indexOf(root.stage.current) < 0 || root.order.length === 0)
            rewind();
        else if (!isDue(root.stage.current) && !root.stage.turning)
            turnTo(root.order[0]);
        plan();
    }

    // Back to the beginning, so that it starts there the next time.
    function rewind() {
        root.stage.startWith(null);
        begin();
    }

    onOrderChanged: checkSlides()
    onIsSeenChanged: {
        if (!isSeen && (stage.turning || patience.running))
            stage.finish();
    }
    onIsRunningChanged: {
        if (hasBegun && !stage.turning)
            startTime(0);
    }
    onPresenceChanged: {
        if (presence === Presence.absent && stage.current && !stage.isStill)
            rewind();
    }

    Connections {
        target: root.stage
        function onTurned() {
            root.plan();
        }
    }

    Timer {
        id: clock
        onTriggered: root.goOn()
    }

    Timer {
        id: patience
        interval: 40
        onTriggered: {
            root.waited += interval;
            if (root.stage.incoming && root.isSeen && !root.stage.turning)
                root.turnWhenReady();
        }
    }
}
