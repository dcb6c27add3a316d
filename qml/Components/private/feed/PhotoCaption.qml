// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Title and author of a photo, on a shade that keeps them readable.
Rectangle {
    id: root

    property string title
    property string author
    property color textColor: "white"
    property real pixelSize: 24

    height: pixelSize * 5
    gradient: Gradient {
        GradientStop { position: 0; color: "transparent" }
        GradientStop { position: 1; color: "#c0000000" }
    }

    Column {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.pixelSize * 0.8
        x: root.pixelSize
        width: root.width - 2 * x

        Text {
            width: parent.width
            visible: text !== ""
            text: root.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: root.textColor
            font.family: "Open Sans"
            font.pixelSize: root.pixelSize
            font.weight: Font.DemiBold
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: root.author
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: root.textColor
            opacity: 0.8
            font.family: "Open Sans"
            font.pixelSize: Math.max(1, root.pixelSize * 0.7)
        }
    }
}
