// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."
import "private"
import "private/press.js" as Press

// A flat icon button for tool bars and page headers; with a text, a tile: a large icon above its caption.
// The tool tip names it where it has no text of its own.
T.Button {
    id: control

    property string size: "base"
    property string faIcon
    property string toolTip
    property bool busy: false
    // For dark ground.
    property bool onDark: false
    property color color: onDark ? Theme.barInk : (isTile ? Theme.accent : Theme.ink)

    readonly property bool isTile: text !== ""
    readonly property color wash: onDark ? Theme.barInk : Theme.strongInk

    implicitWidth: isTile ? Math.max(9 * Theme.unit, implicitContentWidth + leftPadding + rightPadding)
                          : implicitHeight
    implicitHeight: isTile ? implicitContentHeight + topPadding + bottomPadding
                           : Theme.controlHeight(size) + Theme.unit / 2
    padding: isTile ? Theme.padding(size) : 0
    opacity: enabled ? 1 : 0.4
    hoverEnabled: true
    Accessible.name: text || toolTip

    Keys.onPressed: event.accepted = busy && event.key === Qt.Key_Space
    Keys.onReturnPressed: Press.press(control, event)
    Keys.onEnterPressed: Press.press(control, event)

    contentItem: IconText {
        text: control.text
        faIcon: control.faIcon
        size: control.size
        iconSize: control.isTile ? "h1" : control.size
        stacked: control.isTile
        strong: control.isTile
        busy: control.busy
        color: control.color
    }

    background: Rectangle {
        radius: Theme.radius(control.size)
        color: control.isTile && !control.onDark ? Theme.surface : "transparent"
        border.width: control.isTile ? Math.max(1, dp) : 0
        border.color: control.hovered ? Theme.accent : Theme.line

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: control.wash
            opacity: control.down || control.checked ? 0.16 : (control.hovered ? 0.08 : 0)

            Behavior on opacity {
                NumberAnimation { duration: Theme.quick }
            }
        }

        FocusRing {
            visible: control.visualFocus
            cornerRadius: parent.radius
            gap: control.isTile ? 2 * dp : dp
        }
    }

    TouchReach {
        control: control
    }

    ToolTip {
        text: control.toolTip
        visible: text !== "" && (control.hovered || control.visualFocus) && !control.down
    }

    MouseArea {
        anchors.fill: parent
        visible: control.busy
    }
}
