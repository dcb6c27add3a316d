// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../presence.js" as Presence
import "stage.js" as Stage
import "transitions.js" as Transitions

/// The stage of a Slideshow: the slide that is shown, the one that waits beside the frame, and the transition between
/// them.
Item {
    id: root

    /// The Slideshow.
    property Item show
    /// In the editor: changes are cuts, and all slides stay loaded.
    property bool isStill: false
    property Item current: null
    /// The next slide while it loads and while it comes in.
    property Item incoming: null
    readonly property bool turning: animation.running
    readonly property string transition: show.transTime > 0 && !isStill ? Transitions.known(show.transType) : "cut"

    /// A slide has come in completely.
    signal turned()

    /// Empties the stage and puts `slide`, if any, on it.
    function startWith(slide) {
        animation.stop();
        root.incoming = null;
        root.current = slide;
        clearOthers();
        if (slide)
            Stage.takeStage(slide);
    }

    /// Sends all slides away that have nothing to do on the stage.
    function clearOthers() {
        root.show.slides.forEach(function(slide) {
            if (slide !== root.current && slide !== root.incoming)
                Stage.leaveStage(slide, root.isStill);
        });
    }

    /// Lets `slide` load beside the frame, in place of another one that may wait there.
    function load(slide) {
        drop();
        root.incoming = slide;
        Stage.waitBeside(slide, root.show.width, root.transition);
    }

    /// Sends the waiting slide away.
    function drop() {
        animation.stop();
        if (root.incoming)
            Stage.leaveStage(root.incoming, root.isStill);
        root.incoming = null;
    }

    /// Lets the waiting slide come in.
    function turn() {
        root.incoming.part = Presence.shown;
        if (root.transition === "cut")
            finish();
        else
            animation.start();
    }

    /// Puts the incoming slide in its place at once.
    function finish() {
        animation.stop();
        if (!root.incoming)
            return;
        if (root.current)
            Stage.leaveStage(root.current, root.isStill);
        root.current = root.incoming;
        root.incoming = null;
        Stage.takeStage(root.current);
        root.turned();
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
