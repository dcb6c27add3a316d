// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A soft shadow below its parent: a few faint sheets, no shader.
Repeater {
    id: root

    model: 4

    Rectangle {
        anchors.fill: parent
        anchors.margins: -(index + 1) * dp
        anchors.topMargin: -index * 0.5 * dp
        anchors.bottomMargin: -(index + 1) * 1.5 * dp
        z: -1
        radius: (parent ? parent.radius : 0) + index * dp
        color: Qt.rgba(0, 0, 0, 0.04)
    }
}
