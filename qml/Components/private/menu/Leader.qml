// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The dots that lead from a name to its price, where there is room for a few.
Item {
    id: root

    /// Size of the text beside them, in pixels.
    property real size: 24
    property color color: "gray"
    readonly property real step: Math.max(2, size * 0.36)
    readonly property int dots: Math.min(400, Math.max(0, Math.floor(width / step)))

    implicitHeight: size * 0.3
    clip: true

    Row {
        anchors.right: parent.right
        spacing: root.step * 0.7

        Repeater {
            model: root.dots < 4 ? 0 : root.dots

            Rectangle {
                width: root.step * 0.3
                height: width
                radius: width / 2
                color: root.color
                opacity: 0.7
            }
        }
    }
}
