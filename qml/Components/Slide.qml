// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/show"
import "private/limits.js" as Limits
import "private/presence.js" as Presence

/// One slide of a Slideshow: an area as large as the show, filled with any items. The show moves it, shows it and
/// hides it; items inside follow its presence (see private/presence.js). Animations of one's own run while
/// `onAir`. Outside a Slideshow it is always shown.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Slide {
    duration: 5000
    tagColor: '#3d8fd6'
}"

    /// By this a Slideshow knows its slides; without it the item is one that stays.
    property bool isSlide: true
    /// How long the slide is shown, in milliseconds, from the start of its transition to the start of the next one.
    property int duration: 5000
    /// Marks the slide in the editor.
    property color tagColor: "#3d8fd6"

    /// What the show wants of the slide, and with the slides around it taken into account.
    property int part: parent && parent.slides !== undefined ? Presence.absent : Presence.shown
    readonly property int presence: Math.min(part, Presence.presenceOf(root))
    /// Whether the slide has its turn and can be seen.
    readonly property bool onAir: visible && presence === Presence.shown
    /// Set by the show during a transition: drawn as one picture, how much of it, from the top instead of the left.
    property bool isGrouped: false
    property real reveal: 1
    property bool revealsDown: false
    /// Set by the show during a transition: opacity of what stands before the slide's pictures.
    property real front: 1

    width: parent ? parent.width : 640
    height: parent ? parent.height : 360
    layer.enabled: isGrouped && width > 0 && height > 0 && Math.max(width, height) <= Limits.pictureEdge
    layer.smooth: true
    layer.effect: SlideEffect {
        reveal: root.reveal
        down: root.revealsDown ? 1 : 0
    }
    Component.onCompleted: editor = Qt.createComponent("SlideEditor.qml")

    SlideFront {
        slide: root
        shade: root.front
    }

    EditorHint {
        target: root
        label: qsTr("Slide")
        tint: root.tagColor
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Slide"

            Rectangle {
                width: 6
                height: parent.height
                color: root.tagColor
            }
        }
    }
}
