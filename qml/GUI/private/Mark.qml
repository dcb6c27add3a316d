// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// The box of a check box or the circle of a radio.
Rectangle {
    id: root

    property Item control
    property string glyph
    property real glyphScale: 0.72
    property bool isSet: false

    x: control.text === "" ? (control.width - width) / 2 : control.leftPadding
    y: (control.height - height) / 2
    implicitWidth: Math.round(Theme.fontSize(control.size) * 1.25)
    implicitHeight: implicitWidth
    color: isSet ? (control.down ? Theme.link : Theme.accent) : (control.down ? Theme.sunken : Theme.surface)
    border.width: Math.max(1, dp)
    border.color: isSet || control.hovered ? Theme.accent : Theme.border

    Behavior on color {
        ColorAnimation { duration: Theme.quick }
    }

    FontAwesomeIcon {
        anchors.centerIn: parent
        faIcon: root.glyph
        color: Theme.surface
        font.pixelSize: root.width * root.glyphScale
        scale: root.isSet ? 1 : 0

        Behavior on scale {
            NumberAnimation { duration: Theme.quick; easing.type: Easing.OutBack }
        }
    }

    FocusRing {
        visible: root.control.visualFocus
        cornerRadius: root.radius
    }
}
