// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// A turning ring of dots. The animator keeps turning on the render thread while a page loads.
Item {
    id: root

    property color color: Theme.accent
    property bool running: visible

    readonly property int dots: 8

    implicitWidth: 24 * dp
    implicitHeight: implicitWidth

    Item {
        id: wheel
        anchors.fill: parent

        Repeater {
            model: root.dots

            Rectangle {
                readonly property real angle: 2 * Math.PI * index / root.dots
                readonly property real orbit: (wheel.width - width) / 2

                x: orbit + orbit * Math.cos(angle)
                y: orbit + orbit * Math.sin(angle)
                width: wheel.width / 4.5
                height: width
                radius: width / 2
                color: root.color
                opacity: 0.15 + 0.85 * index / (root.dots - 1)
            }
        }
    }

    RotationAnimator {
        target: wheel
        running: root.running
        from: 0
        to: 360
        duration: 1000
        loops: Animation.Infinite
    }
}
