// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// A push button. Space and Enter press it like a click; while busy it takes no presses.
T.Button {
    id: root

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
    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    contentItem: IconText {
        text: root.text
        faIcon: root.faIcon
        size: root.size
        busy: root.busy
        color: root.isLink && root.hovered ? Theme.strongInk : root.kind.ink
    }

    background: Rectangle {
        radius: Theme.radius(root.size)
        color: root.down || root.checked ? root.kind.pressed
                                         : (root.hovered ? root.kind.hover : root.kind.fill)
        border.width: Math.max(1, dp)
        border.color: root.kind.border

        Behavior on color {
            enabled: root.enabled
            ColorAnimation { duration: Theme.quick }
        }

        Rectangle {
            x: root.leftPadding
            y: parent.height - Theme.padding("xsmall")
            width: parent.width - 2 * x
            height: Math.max(1, dp)
            visible: root.isLink && root.hovered
            color: Theme.strongInk
        }

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
        }
    }

    TouchReach {
        control: root
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -Theme.reach(root.size, root.height)
        visible: root.busy
    }
}
