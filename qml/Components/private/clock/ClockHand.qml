// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A bar that points from the middle of its parent outwards: a hand or a mark of a clock.
Rectangle {
    id: root

    /// Direction in degrees, clockwise from the top.
    property real angle: 0
    /// Distance of its inner end from the middle, negative beyond it, its length and its thickness in pixels.
    property real from: 0
    property real length: 100
    property real thickness: 4

    x: (parent.width - width) / 2
    y: parent.height / 2 - from - length
    width: Math.max(1, thickness)
    height: length
    radius: width / 2
    antialiasing: true
    transform: Rotation {
        origin.x: root.width / 2
        origin.y: root.length + root.from
        angle: root.angle
    }
}
