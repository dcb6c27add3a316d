// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A button with a small drawing of what it does to items.
BGUI.ActionButton {
    id: root

    property string kind

    // Bars and lines of each drawing, in a square of 16: x, y, width, height, and whether it stands back.
    readonly property var drawings: ({
        left: [[1, 1, 1.5, 14], [4, 3, 10, 4], [4, 9, 6, 4]],
        centre: [[7.25, 1, 1.5, 14], [3, 3, 10, 4], [5, 9, 6, 4]],
        right: [[13.5, 1, 1.5, 14], [2, 3, 10, 4], [6, 9, 6, 4]],
        top: [[1, 1, 14, 1.5], [3, 4, 4, 10], [9, 4, 4, 6]],
        middle: [[1, 7.25, 14, 1.5], [3, 3, 4, 10], [9, 5, 4, 6]],
        bottom: [[1, 13.5, 14, 1.5], [3, 2, 4, 10], [9, 6, 4, 6]],
        across: [[1, 3, 3, 10], [6.5, 3, 3, 10], [12, 3, 3, 10]],
        down: [[3, 1, 10, 3], [3, 6.5, 10, 3], [3, 12, 10, 3]],
        front: [[1, 1, 7, 7, true], [8, 8, 7, 7, true], [4, 4, 8, 8]],
        forward: [[2, 2, 8, 8, true], [6, 6, 8, 8]],
        backward: [[2, 2, 8, 8], [6, 6, 8, 8, true]],
        back: [[4, 4, 8, 8], [1, 1, 7, 7, true], [8, 8, 7, 7, true]]
    })

    objectName: kind
    focusPolicy: Qt.TabFocus

    Item {
        anchors.centerIn: parent
        width: 16 * dp
        height: width

        Repeater {
            model: root.drawings[root.kind]

            Rectangle {
                readonly property bool isBehind: modelData[4] === true

                x: modelData[0] * dp
                y: modelData[1] * dp
                width: modelData[2] * dp
                height: modelData[3] * dp
                color: isBehind ? BGUI.Theme.surface : BGUI.Theme.ink
                border.width: isBehind ? Math.max(1, dp) : 0
                border.color: BGUI.Theme.ink
            }
        }
    }
}
