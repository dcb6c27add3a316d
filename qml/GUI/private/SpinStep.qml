// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// Half of a spin box's pair of step buttons.
Item {
    id: root

    property Item control
    property QtObject part
    property string faIcon
    property bool isUp: false

    readonly property bool isPossible: isUp ? control.value < control.to : control.value > control.from

    x: control.width - width
    y: isUp ? 0 : control.height / 2
    implicitWidth: Math.max(2.5 * Theme.unit, control.height * 0.8)
    height: control.height / 2

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2 * dp
        radius: 2 * dp
        color: Theme.strongInk
        opacity: root.part.pressed ? 0.16 : (root.part.hovered && root.isPossible ? 0.08 : 0)
    }

    FontAwesomeIcon {
        anchors.centerIn: parent
        faIcon: root.faIcon
        size: "small"
        color: Theme.ink
        opacity: root.isPossible ? 1 : 0.3
    }
}
