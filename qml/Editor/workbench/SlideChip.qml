// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// One slide in the bar of slides: its number and colour, and how long it stays.
T.AbstractButton {
    id: root

    property int place: 0
    property Item slide: null
    property string size: "base"
    property bool isCurrent: false

    readonly property real seconds: slide ? slide.duration / 1000 : 0

    objectName: "slide %1".arg(place + 1)
    implicitWidth: Math.max(9 * BGUI.Theme.unit, implicitContentWidth + 2 * BGUI.Theme.unit)
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    text: qsTr("%1 · %2 s").arg(place + 1).arg(Math.round(10 * seconds) / 10)

    contentItem: BGUI.Label {
        leftPadding: BGUI.Theme.unit / 2
        size: root.size
        strong: root.isCurrent
        text: root.text
        wrapMode: Text.NoWrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: BGUI.Theme.radius("base")
        color: root.isCurrent ? BGUI.Theme.tint : root.hovered ? BGUI.Theme.sunken : BGUI.Theme.surface
        border.width: root.isCurrent || root.visualFocus ? 2 * dp : Math.max(1, dp)
        border.color: root.isCurrent ? BGUI.Theme.accent : root.visualFocus ? BGUI.Theme.focus : BGUI.Theme.line

        Rectangle {
            x: 4 * dp
            y: x
            width: 4 * dp
            height: parent.height - 2 * y
            radius: width / 2
            color: root.slide && root.slide.tagColor !== undefined ? root.slide.tagColor : "transparent"
        }
    }
}
