// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// Saturation to the right, brightness upwards, of one hue. Arrow keys step by a hundredth, with Shift by a tenth.
Item {
    id: root

    property real hue: 0
    property real saturation: 0
    property real brightness: 0

    // The user moved the mark; both from 0 to 1.
    signal moved(real saturation, real brightness)

    function pick(s, v) {
        moved(Math.max(0, Math.min(1, s)), Math.max(0, Math.min(1, v)));
    }

    implicitWidth: 28 * Theme.unit
    implicitHeight: 16 * Theme.unit
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Saturation and brightness")

    Keys.onPressed: {
        const far = event.modifiers & Qt.ShiftModifier ? 0.1 : 0.01;
        const sideways = (event.key === Qt.Key_Right) - (event.key === Qt.Key_Left);
        const upwards = (event.key === Qt.Key_Up) - (event.key === Qt.Key_Down);
        event.accepted = sideways !== 0 || upwards !== 0;
        if (event.accepted)
            pick(saturation + far * sideways, brightness + far * upwards);
    }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "white" }
            GradientStop { position: 1; color: Qt.hsva(root.hue, 1, 1, 1) }
        }
    }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: "transparent" }
            GradientStop { position: 1; color: "black" }
        }
        border.width: Math.max(1, dp)
        border.color: Theme.border

        FocusRing {
            visible: root.activeFocus
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: pickAt(mouse)
        onPositionChanged: pickAt(mouse)

        function pickAt(mouse) {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.pick(mouse.x / width, 1 - mouse.y / height);
        }
    }

    Rectangle {
        x: root.saturation * root.width - width / 2
        y: (1 - root.brightness) * root.height - height / 2
        width: 1.5 * Theme.unit
        height: width
        radius: width / 2
        color: "transparent"
        border.width: 2 * dp
        border.color: "white"

        Rectangle {
            anchors.fill: parent
            anchors.margins: -dp
            radius: width / 2
            color: "transparent"
            border.width: Math.max(1, dp)
            border.color: "black"
        }
    }
}
