// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// A sample of a colour on a ground of two tones, which shows how transparent it is.
Rectangle {
    id: root

    property color sample: "black"

    radius: Theme.radius("small")
    color: Theme.surface

    Rectangle {
        x: parent.width / 2
        width: parent.width / 2
        height: parent.height
        radius: parent.radius
        visible: root.sample.a < 1
        color: Theme.mutedInk
    }

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: root.sample
        border.width: Math.max(1, dp)
        border.color: Theme.border
    }
}
