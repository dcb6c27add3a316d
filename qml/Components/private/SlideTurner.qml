// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits
import "presence.js" as Presence
import "stage.js" as Stage
import "transitions.js" as Transitions

/// Gives the slides of a Slideshow their turns. The time of a slide has up to three stretches: alone; with the next
/// slide loading beside the frame; and, if need be, waiting for that slide. Then the transition runs.
Item {
    id: root

    /// The Slideshow.
    property Item show
    /// In the editor: slides change only when told, at once, and all stay loaded.
    property bool isStill: false
    // Set when the document is complete: before, slides come one by one.
    property bool hasBegun: false
    readonly property var slides: show.slides
    // Positions of the slides that take turns.
    readonly property var order: isStill || show.turnOrder === null ? slides.map(function(slide, i) { return i; })
                                                         : show.turnOrder.filter(function(i) { return slides[i] !== undefined; })
    property Item current: null
    /// The next slide while it loads and while it comes in.
    property Item incoming: null
    readonly property bool turning: animation.running
    readonly property int currentIndex: slides.indexOf(turning ? incoming : current)
    readonly property int presence: Presence.presenceOf(show)
    readonly property bool isSeen: show.visible && presence === Presence.shown && !isStill
    readonly property bool isRunning: isSeen && show.running
    readonly property string transition: show.transTime > 0 ? Transitions.known(show.transType) : "cut"
    // When the next turn is due, as Date.now() counts.
    property real dueAt: 0

    /// A slide has come in completely.
    signal turned()

    /// Shows the first slide, if none is shown.
    function begin() {
        root.hasBegun = true;
        if (root.current)
            return;
        root.slides.forEach(function(slide) { Stage.leaveStage(slide, root.isStill); });
        if (root.order.length === 0)
            return;
        root.current = root.slides[root.order[0]];
        Stage.takeStage(root.current);
        root.dueAt = Date.now() + timeOf(root.current) + root.show.offsetTime;
        plan();
    }

    /// Position of the slide that follows (1) or precedes (-1) the one that is shown; undefined without any.
    function neighbour(step) {
        var count = root.order.length;
        var place = root.order.indexOf(root.currentIndex);
        return root.order[place < 0 ? 0 : (place + step + count) % count];
    }

    /// Turns to slide `index` once it is loaded; where nobody sees it, at once.
    function turnTo(index) {
        var wanted = root.slides[index];
        if (root.turning)
            finish();
        if (!wanted || wanted === root.current)
            return;
        if (root.incoming && root.incoming !== wanted)
            Stage.leaveStage(root.incoming, root.isStill);
        root.dueAt = Date.now();
        load(wanted);
        if (root.isSeen)
            turnWhenReady();
        else
            finish();
    }

    function timeOf(slide) {
        return Stage.timeOf(slide, root.show.transTime);
    }

    // Sets the timer for what comes next in the current slide's time.
    function plan() {
        clock.stop();
        if (!root.isRunning || !root.current || root.turning)
            return;
        var left = root.dueAt - Date.now();
        if (left > timeOf(root.current) + Math.abs(root.show.offsetTime)) {
            // The computer's clock was set back.
            left = timeOf(root.current);
            root.dueAt = Date.now() + left;
        }
        clock.interval = Math.max(1, root.incoming ? left : left - Limits.slideLead);
        clock.start();
    }

    function goOn() {
        if (root.incoming)
            turnWhenReady();
        else
            load(root.slides[neighbour(1)]);
    }

    function load(slide) {
        if (!slide || slide === root.current)
            return;
        root.incoming = slide;
        Stage.waitBeside(slide, root.show.width, root.transition);
        plan();
    }

    function turnWhenReady() {
        clock.stop();
        if (Presence.isSettled(root.incoming) || Date.now() > root.dueAt + Limits.slidePatience)
            turn();
        else
            patience.restart();
    }

    function turn() {
        // In step with other shows, unless loading or a change of the computer's clock has cost too much time.
        var late = Date.now() - root.dueAt;
        root.dueAt = Date.now() + timeOf(root.incoming) - (late < Limits.shortestSlide ? Math.max(0, late) : 0);
        root.incoming.part = Presence.shown;
        if (root.transition === "cut")
            finish();
        else
            animation.start();
    }

    function finish() {
        animation.stop();
        if (root.incoming) {
            if (root.current)
                Stage.leaveStage(root.current, root.isStill);
            root.current = root.incoming;
            root.incoming = null;
            Stage.takeStage(root.current);
            root.turned();
        }
        plan();
    }

    // Back to the beginning, so that it starts there the next time.
    function rewind() {
        animation.stop();
        root.incoming = null;
        root.current = null;
        begin();
    }

    function isDue(slide) {
        return slide !== null && root.order.indexOf(root.slides.indexOf(slide)) >= 0;
    }

    // After a change of the list or its order: goes on with what is left.
    function checkSlides() {
        if (!root.hasBegun)
            return;
        if (!isDue(root.incoming)) {
            animation.stop();
            root.incoming = null;
        }
        root.slides.forEach(function(slide) {
            if (slide !== root.current && slide !== root.incoming)
                Stage.leaveStage(slide, root.isStill);
        });
        if (root.slides.indexOf(root.current) < 0 || root.order.length === 0)
            rewind();
        else if (!isDue(root.current) && !root.turning)
            turnTo(root.order[0]);
        plan();
    }

    onOrderChanged: checkSlides()
    onIsSeenChanged: {
        if (!isSeen && turning)
            finish();
    }
    onIsRunningChanged: {
        if (isRunning && current && !turning)
            dueAt = Date.now() + timeOf(current);
        plan();
    }
    onPresenceChanged: {
        if (presence === Presence.absent && current && !isStill)
            rewind();
    }

    Timer {
        id: clock
        onTriggered: root.goOn()
    }

    Timer {
        id: patience
        interval: 40
        onTriggered: {
            if (root.incoming && root.isSeen && !root.turning)
                root.turnWhenReady();
        }
    }

    SlideTransition {
        id: animation
        show: root.show
        incoming: root.incoming
        outgoing: root.current
        name: root.transition
        onFinished: root.finish()
    }
}
