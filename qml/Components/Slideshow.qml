// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/show"
import "private/presence.js" as Presence

/// Shows its Slide children one after the other, in their order, again and again. The next slide is loaded, and the
/// first frames of its videos are decoded, before it comes in. Only the slide that is shown and, shortly before its
/// turn, the next one keep pictures, decoders and running clocks. In the editor it stands still.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Slideshow {
    width: 960
    height: 540
    color: '#17212b'
    transType: 'fade'
}"

    /// The slides in order of their turns. The show keeps the list.
    property var slides: []
    /// Milliseconds by which the first slide stays longer (shorter when negative) when the show begins, so that
    /// several shows need not turn at the same moment.
    property int offsetTime: 0
    /// Whether the show turns its slides.
    property bool running: true
    /// One of "cut", "fade", "slideLeft", "slideRight", "slideUp", "slideDown", "zoom", "wipe", "wipeDown", "cover",
    /// and "stagger" for slides with texts: these leave, the picture changes, and the next texts come.
    property string transType: "fade"
    /// Duration of a transition in milliseconds; 0 and less: a cut.
    property int transTime: 800
    /// Position of the slide that is shown, -1 while there is none. During a transition it is the incoming one.
    readonly property int currentIndex: slides.indexOf(turning ? platform.incoming : platform.current)
    readonly property Item currentSlide: platform.current
    /// Whether a transition is under way.
    readonly property bool turning: platform.turning
    /// Positions of the slides that take turns; null for all, in their order; empty for none.
    property var turnOrder: null

    /// What the editor calls an empty one.
    property string kind: qsTr("Slideshow")

    /// Slide `index` has come in completely.
    signal slideShown(int index)

    /// Turns to slide `index` as soon as it is loaded. Out of range: nothing happens.
    function goTo(index) {
        turner.turnTo(index);
    }

    function next() {
        turner.turnTo(turner.neighbour(root.currentIndex, 1));
    }

    function previous() {
        turner.turnTo(turner.neighbour(root.currentIndex, -1));
    }

    function collectSlides() {
        const found = [];
        for (let i = 0; i < root.children.length; ++i) {
            if (root.children[i].isSlide === true)
                found.push(root.children[i]);
        }
        root.slides = found;
    }

    width: 960
    height: 540
    color: "#17212b"
    clip: true
    onChildrenChanged: collectSlides()
    Component.onCompleted: {
        editor = Qt.createComponent("SlideshowEditor.qml");
        platform.isStill = Presence.isEdited(root);
        collectSlides();
        turner.begin();
    }

    SlideStage {
        id: platform
        show: root
        onTurned: root.slideShown(root.currentIndex)
    }

    SlideTurner {
        id: turner
        show: root
        stage: platform
    }

    EditorHint {
        target: root
        label: root.kind
        isEmpty: root.slides.length === 0
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Slideshow"
        }
    }
}
