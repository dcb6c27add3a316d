// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"

/// A value between two ends. Arrow keys step, Home and End go to the ends.
T.Slider {
    id: root

    property string size: "base"

    implicitWidth: horizontal ? 24 * Theme.unit : Theme.controlHeight(size)
    implicitHeight: horizontal ? Theme.controlHeight(size) : 24 * Theme.unit
    padding: handle.width / 2
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true

    Keys.onPressed: {
        const isEnd = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        event.accepted = isEnd;
        if (isEnd) {
            value = event.key === Qt.Key_Home ? from : to;
            moved();
        }
    }

    background: Rectangle {
        x: root.horizontal ? 0 : (root.width - width) / 2
        y: root.horizontal ? (root.height - height) / 2 : 0
        width: root.horizontal ? root.width : 4 * dp
        height: root.horizontal ? 4 * dp : root.height
        radius: 2 * dp
        color: Theme.line

        Rectangle {
            y: root.horizontal ? 0 : root.visualPosition * parent.height
            width: root.horizontal ? root.visualPosition * parent.width : parent.width
            height: parent.height - y
            radius: parent.radius
            color: Theme.accent
        }
    }

    handle: Rectangle {
        readonly property real travel: root.visualPosition

        x: root.horizontal ? root.leftPadding + travel * root.availableWidth - width / 2
                           : (root.width - width) / 2
        y: root.horizontal ? (root.height - height) / 2
                           : root.topPadding + travel * root.availableHeight - height / 2
        implicitWidth: Math.round(Theme.fontSize(root.size) * 1.15)
        implicitHeight: implicitWidth
        radius: width / 2
        color: root.pressed ? Theme.link : Theme.surface
        border.width: 2 * dp
        border.color: root.hovered || root.pressed ? Theme.link : Theme.accent

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
        }
    }

    TouchReach {
        control: root
    }
}
