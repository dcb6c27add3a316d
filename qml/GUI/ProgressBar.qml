// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// How far long work has come; `indeterminate` while nobody knows.
T.ProgressBar {
    id: root

    implicitWidth: 24 * Theme.unit
    implicitHeight: Theme.unit

    background: Rectangle {
        radius: height / 2
        color: Theme.sunken
        border.width: Math.max(1, dp)
        border.color: Theme.line
    }

    contentItem: Item {
        clip: root.indeterminate

        Rectangle {
            id: bar
            width: root.indeterminate ? parent.width / 3 : parent.width * root.visualPosition
            height: parent.height
            radius: height / 2
            color: Theme.accent

            Behavior on width {
                enabled: !root.indeterminate
                NumberAnimation { duration: Theme.quick }
            }
        }

        XAnimator {
            target: bar
            running: root.indeterminate && root.visible
            from: -root.width / 3
            to: root.width
            duration: 1400
            loops: Animation.Infinite
            onStopped: bar.x = 0
        }
    }
}
