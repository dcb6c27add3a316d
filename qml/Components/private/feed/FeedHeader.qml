// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The title above the entries of a feed, with a mark in the accent colour. It takes room even without a text.
Item {
    id: root

    property string text
    property real pixelSize: 26
    property color color: "white"
    property string family: "Open Sans"
    property color accentColor: "#f2a33a"

    implicitHeight: text === "" ? pixelSize * 0.8 : pixelSize * 2.4

    Rectangle {
        y: (root.height - height) / 2
        width: root.pixelSize * 0.24
        height: root.pixelSize * 1.1
        radius: width / 2
        visible: root.text !== ""
        color: root.accentColor
    }

    Text {
        x: root.pixelSize * 0.7
        width: Math.max(0, root.width - x)
        height: root.height
        text: root.text
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        color: root.color
        font.family: root.family
        font.pixelSize: root.pixelSize
        font.weight: Font.DemiBold
    }
}
