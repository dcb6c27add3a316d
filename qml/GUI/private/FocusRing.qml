// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// Shows where the keyboard is: a ring around its parent, with a light edge so that it stands out on dark ground.
Rectangle {
    id: root

    // Distance from the parent's edge; negative for a ring inside, where the surroundings clip.
    property real gap: 2 * dp
    property real cornerRadius: 0

    anchors.fill: parent
    anchors.margins: -gap - border.width
    radius: cornerRadius + gap
    color: "transparent"
    border.width: 2 * dp
    border.color: Theme.focus

    Rectangle {
        anchors.fill: parent
        anchors.margins: -dp
        radius: parent.radius + dp
        visible: root.gap > 0
        color: "transparent"
        border.width: Math.max(1, dp)
        border.color: Theme.surface
    }
}
