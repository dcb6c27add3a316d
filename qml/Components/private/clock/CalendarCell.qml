// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A day, or a weekday's name, on the page of a calendar.
Item {
    id: root

    property alias text: label.text
    property alias color: label.color
    property alias font: label.font
    property bool isMarked: false
    property color markColor

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(root.width, root.height) * 0.96
        height: width
        radius: width / 2
        visible: root.isMarked
        color: root.markColor
    }

    Text {
        id: label
        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Math.min(6, font.pixelSize)
    }
}
