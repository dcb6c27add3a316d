// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."
import "private"
import "private/press.js" as Press

// A push button. Space and Enter press it like a click; while busy it takes no presses.
T.Button {
    id: control

    property string size: "base"
    // "default", "primary", "success", "info", "warning", "danger" or "link".
    property string type: "default"
    property string faIcon
    property bool busy: false

    readonly property var kind: Theme.kinds[type] || Theme.kinds["default"]
    readonly property bool isLink: type === "link"

    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Theme.controlHeight(size)
    padding: 0
    horizontalPadding: text === "" ? 0 : Theme.padding(size)
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(size)
    Accessible.name: text

    Keys.onPressed: event.accepted = busy && event.key === Qt.Key_Space
    Keys.onReturnPressed: Press.press(control, event)
    Keys.onEnterPressed: Press.press(control, event)

    contentItem: IconText {
        text: control.text
        faIcon: control.faIcon
        size: control.size
        busy: control.busy
        color: control.isLink && control.hovered ? Theme.strongInk : control.kind.ink
    }

    background: Rectangle {
        radius: Theme.radius(control.size)
        color: control.down || control.checked ? control.kind.pressed
                                               : (control.hovered ? control.kind.hover : control.kind.fill)
        border.width: Math.max(1, dp)
        border.color: control.kind.border

        Behavior on color {
            enabled: control.enabled
            ColorAnimation { duration: Theme.quick }
        }

        Rectangle {
            x: control.leftPadding
            y: parent.height - Theme.padding("xsmall")
            width: parent.width - 2 * x
            height: Math.max(1, dp)
            visible: control.isLink && control.hovered
            color: Theme.strongInk
        }

        FocusRing {
            visible: control.visualFocus
            cornerRadius: parent.radius
        }
    }

    TouchReach {
        control: control
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -Theme.reach(control.size, control.height)
        visible: control.busy
    }
}
