// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The ring of a Carousel: from the back around the left side to the front and on around the right side. What is
/// farther back is smaller, higher and paler.
Path {
    id: root

    /// Size of the Carousel.
    property real width
    property real height
    /// Whether the two ends of the ring, where it comes around behind, are drawn out to the side: two pictures then
    /// stand beside each other instead of one behind the other.
    property bool isOpen: false
    readonly property real middle: width / 2
    readonly property real end: width * (isOpen ? 0.78 : 0.5)
    readonly property real endY: isOpen ? (back + front) / 2 : back
    readonly property real endDepth: isOpen ? 0.5 : 0
    readonly property real back: height * 0.38
    readonly property real front: height * 0.53

    startX: end
    startY: endY

    PathAttribute { name: "depth"; value: root.endDepth }
    PathCubic {
        x: root.width * 0.2
        y: (root.back + root.front) / 2
        control1X: root.middle * 0.6
        control1Y: root.back
        control2X: root.width * 0.14
        control2Y: root.back
    }
    PathAttribute { name: "depth"; value: 0.5 }
    PathCubic {
        x: root.middle
        y: root.front
        control1X: root.width * 0.26
        control1Y: root.front
        control2X: root.middle * 0.7
        control2Y: root.front
    }
    PathAttribute { name: "depth"; value: 1 }
    PathPercent { value: 0.5 }
    PathCubic {
        x: root.width * 0.8
        y: (root.back + root.front) / 2
        control1X: root.middle * 1.3
        control1Y: root.front
        control2X: root.width * 0.74
        control2Y: root.front
    }
    PathAttribute { name: "depth"; value: 0.5 }
    PathCubic {
        x: root.end
        y: root.endY
        control1X: root.width * 0.86
        control1Y: root.back
        control2X: root.middle * 1.4
        control2Y: root.back
    }
    PathAttribute { name: "depth"; value: root.endDepth }
    PathPercent { value: 1 }
}
