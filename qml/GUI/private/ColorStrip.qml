// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import ".."

/// A slider from 0 to 1 over a run of colours.
T.Slider {
    id: root

    property string size: "base"
    property alias gradient: track.gradient

    implicitWidth: 24 * Theme.unit
    implicitHeight: 2.5 * Theme.unit
    padding: handle.width / 2
    stepSize: 0.01

    background: Item {
        Rectangle {
            anchors.fill: track
            radius: track.radius
            color: Theme.surface
        }

        Rectangle {
            id: track
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 1.25 * Theme.unit
            radius: Theme.radius("small")
            border.width: Math.max(1, dp)
            border.color: Theme.border
        }
    }

    handle: Rectangle {
        x: root.leftPadding + root.visualPosition * root.availableWidth - width / 2
        y: (root.height - height) / 2
        implicitWidth: 1.25 * Theme.unit
        implicitHeight: 2.25 * Theme.unit
        radius: 3 * dp
        color: Theme.surface
        border.width: 2 * dp
        border.color: root.pressed ? Theme.link : Theme.accent

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
        }
    }

    TouchReach {
        control: root
    }
}
