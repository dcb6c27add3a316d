// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "times.js" as Times

/// One message of a Twitter: its author with picture and time, and as much of its text as there is room for.
Rectangle {
    id: root

    property var entry: ({ name: "", account: "", text: "", avatar: "", time: 0 })
    property real pixelSize: 24
    /// Diameter of the author's picture in pixels; 0: none.
    property real avatarSize: 64
    property color textColor: "white"
    property var locale: Qt.locale()

    readonly property real padding: Math.min(pixelSize * 0.8, height * 0.12)
    readonly property real edge: Math.max(0, Math.min(avatarSize, height - 2 * padding, width * 0.3))

    radius: 12

    WebPicture {
        x: root.padding
        y: root.padding
        width: root.edge
        height: root.edge
        visible: root.edge > 0
        radius: root.edge / 2
        source: visible ? root.entry.avatar : ""
        label: root.entry.name
    }

    Item {
        id: lines
        x: root.padding + (root.edge > 0 ? root.edge + root.pixelSize * 0.7 : 0)
        y: root.padding
        width: Math.max(0, root.width - x - root.padding)
        height: Math.max(0, root.height - 2 * root.padding)

        Text {
            id: author
            width: Math.min(implicitWidth, lines.width - time.width - time.anchors.leftMargin)
            text: root.entry.name
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: root.textColor
            font.family: "Open Sans"
            font.pixelSize: root.pixelSize * 0.85
            font.weight: Font.DemiBold
        }

        Text {
            anchors.left: author.right
            anchors.leftMargin: root.pixelSize * 0.4
            anchors.right: time.left
            anchors.rightMargin: anchors.leftMargin
            anchors.baseline: author.baseline
            text: root.entry.account
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: root.textColor
            opacity: 0.6
            font.family: "Open Sans"
            font.pixelSize: root.pixelSize * 0.75
        }

        Text {
            id: time
            anchors.right: parent.right
            anchors.leftMargin: root.pixelSize * 0.4
            anchors.baseline: author.baseline
            text: Times.brief(root.entry.time, Date.now(), root.locale)
            color: root.textColor
            opacity: 0.6
            font.family: "Open Sans"
            font.pixelSize: root.pixelSize * 0.75
        }

        Text {
            anchors.top: author.bottom
            anchors.bottom: parent.bottom
            anchors.topMargin: root.pixelSize * 0.1
            width: parent.width
            visible: height >= font.pixelSize * 1.3
            text: root.entry.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            color: root.textColor
            font.family: "Open Sans"
            font.pixelSize: root.pixelSize
        }
    }
}
