// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/motions.js" as Motions
import "private/presence.js" as Presence

/// A container that moves gently with all its items. In the editor it stands still.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "AnimatedItem {
    width: 240
    height: 160
    color: '#2878bd'
    radius: 12
    motion: 'float'
    strength: 1
    time: 4000
}"

    /// One of "float", "sway", "swing", "pulse", "spin", "turn", "shake".
    property string motion: "float"
    /// How far it moves; 1 is a gentle movement, 0 none.
    property real strength: 1
    /// Duration of one round in milliseconds.
    property int time: 4000
    property bool running: true

    property bool isEdited: false
    /// How far the round has come, 0 to 1.
    property real phase: 0
    readonly property var pose: Motions.pose(motion, phase, strength, width, height)

    width: 240
    height: 160
    color: "#2878bd"
    radius: 12
    transform: [
        Scale {
            origin.x: root.width / 2
            origin.y: root.height / 2
            xScale: root.pose.scale
            yScale: root.pose.scale
        },
        Rotation {
            origin.x: root.width / 2
            origin.y: root.pose.hangs ? 0 : root.height / 2
            angle: root.pose.angle
        },
        Rotation {
            origin.x: root.width / 2
            origin.y: root.height / 2
            axis { x: 0; y: 1; z: 0 }
            angle: root.pose.turn
        },
        Translate {
            x: root.pose.x
            y: root.pose.y
        }
    ]
    Component.onCompleted: {
        editor = Qt.createComponent("AnimatedItemEditor.qml");
        isEdited = Presence.isEdited(root);
    }

    NumberAnimation {
        target: root
        property: "phase"
        from: 0
        to: 1
        duration: Math.max(1, root.time)
        loops: Animation.Infinite
        running: root.running && root.time > 0 && !root.isEdited && root.visible
                 && Presence.presenceOf(root) === Presence.shown
        onStopped: root.phase = 0
    }

    Component {
        id: preview

        PreviewTile {
            icon: "AnimatedItem"
        }
    }
}
