// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "presence.js" as Presence

/// The coming and going of its parent: `progress` runs from 0 to 1 when the item enters and back when it exits.
/// Times count from the moment the item's slide has its turn, or, outside a slide, from the moment it is seen.
/// In the editor the item is simply there.
Item {
    id: root

    property Item target: parent
    /// Milliseconds after which the item enters; negative counts as 0.
    property int enterTime: 0
    /// Milliseconds after which it exits; not later than `enterTime`: it stays.
    property int exitTime: 0
    /// Duration of each movement in milliseconds.
    property int moveTime: 700
    property real progress: 0
    readonly property bool isOnAir: target.visible && Presence.presenceOf(target) === Presence.shown
    property bool isEdited: false
    property bool isComplete: false

    function follow() {
        course.stop();
        root.progress = root.isEdited ? 1 : 0;
        if (root.isComplete && root.isOnAir && !root.isEdited)
            course.start();
    }

    onIsOnAirChanged: follow()
    Component.onCompleted: {
        root.isEdited = Presence.isEdited(root.target);
        root.isComplete = true;
        follow();
    }

    SequentialAnimation {
        id: course

        PauseAnimation {
            duration: Math.max(0, root.enterTime)
        }
        NumberAnimation {
            target: root
            property: "progress"
            to: 1
            duration: Math.max(0, root.moveTime)
            easing.type: Easing.OutCubic
        }
        PauseAnimation {
            duration: Math.max(0, root.exitTime - Math.max(0, root.enterTime) - Math.max(0, root.moveTime))
        }
        NumberAnimation {
            target: root
            property: "progress"
            to: root.exitTime > root.enterTime ? 0 : 1
            duration: root.exitTime > root.enterTime ? Math.max(0, root.moveTime) : 0
            easing.type: Easing.InCubic
        }
    }
}
