// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."
import "private"

// A value between two ends. Arrow keys step, Home and End go to the ends.
T.Slider {
    id: control

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
        x: control.horizontal ? 0 : (control.width - width) / 2
        y: control.horizontal ? (control.height - height) / 2 : 0
        width: control.horizontal ? control.width : 4 * dp
        height: control.horizontal ? 4 * dp : control.height
        radius: 2 * dp
        color: Theme.line

        Rectangle {
            y: control.horizontal ? 0 : control.visualPosition * parent.height
            width: control.horizontal ? control.visualPosition * parent.width : parent.width
            height: parent.height - y
            radius: parent.radius
            color: Theme.accent
        }
    }

    handle: Rectangle {
        readonly property real travel: control.visualPosition

        x: control.horizontal ? control.leftPadding + travel * control.availableWidth - width / 2
                              : (control.width - width) / 2
        y: control.horizontal ? (control.height - height) / 2
                              : control.topPadding + travel * control.availableHeight - height / 2
        implicitWidth: Math.round(Theme.fontSize(control.size) * 1.15)
        implicitHeight: implicitWidth
        radius: width / 2
        color: control.pressed ? Theme.link : Theme.surface
        border.width: 2 * dp
        border.color: control.hovered || control.pressed ? Theme.link : Theme.accent

        FocusRing {
            visible: control.visualFocus
            cornerRadius: parent.radius
        }
    }

    TouchReach {
        control: control
    }
}
