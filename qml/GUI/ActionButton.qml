// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// A flat icon button for tool bars and page headers; with a text, a tile: a large icon above its caption.
/// The tool tip names it where it has no text of its own. `growth` enlarges icon and caption.
T.Button {
    id: root

    property string size: "base"
    property string faIcon
    property string toolTip
    property bool busy: false
    property real growth: 1
    // For dark ground.
    property bool onDark: false
    property color color: onDark ? Theme.barInk : (isTile ? Theme.accent : Theme.ink)

    readonly property bool isTile: text !== ""
    // A finger that has gone leaves its last place behind as if a mouse were there.
    readonly property bool isPointedAt: hovered && !finger.wasHere
    readonly property color wash: onDark ? Theme.barInk : Theme.strongInk

    implicitWidth: isTile ? Math.max(9 * Theme.unit, implicitContentWidth + leftPadding + rightPadding)
                          : implicitHeight
    implicitHeight: isTile ? implicitContentHeight + topPadding + bottomPadding
                           : Theme.controlHeight(size) + Theme.unit / 2
    padding: isTile ? Theme.padding(size) : 0
    opacity: enabled ? 1 : 0.4
    hoverEnabled: true
    Accessible.name: text || toolTip

    onHoveredChanged: {
        if (!hovered)
            finger.wasHere = false;
    }
    Keys.onPressed: event.accepted = busy && event.key === Qt.Key_Space
    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    contentItem: IconText {
        text: root.text
        faIcon: root.faIcon
        size: root.size
        iconSize: root.isTile ? "h1" : root.size
        stacked: root.isTile
        strong: root.isTile
        busy: root.busy
        growth: root.growth
        color: root.color
    }

    background: Rectangle {
        radius: Theme.radius(root.size)
        color: root.isTile && !root.onDark ? Theme.surface : "transparent"
        border.width: root.isTile ? Math.max(1, dp) : 0
        border.color: root.isPointedAt ? Theme.accent : Theme.line

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.wash
            opacity: root.down || root.checked ? 0.16 : (root.isPointedAt ? 0.08 : 0)

            Behavior on opacity {
                NumberAnimation { duration: Theme.quick }
            }
        }

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
            gap: root.isTile ? 2 * dp : dp
        }
    }

    TouchReach {
        control: root
    }

    PointHandler {
        id: finger
        property bool wasHere: false
        acceptedDevices: PointerDevice.TouchScreen
        onActiveChanged: wasHere = true
    }

    ToolTip {
        text: root.toolTip
        visible: text !== "" && (root.isPointedAt || root.visualFocus) && !root.down
    }

    MouseArea {
        anchors.fill: parent
        visible: root.busy
    }
}
