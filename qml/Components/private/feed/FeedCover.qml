// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What a network item shows while it has no answer at all: its sign and name, as calm as a book's cover. Nothing on it
/// says that something is missing.
Item {
    id: root

    /// Name of a glyph of the icon font.
    property string icon: "fa-rss"
    property string title
    property color color: "white"
    property string family: "Open Sans"

    readonly property real measure: Math.max(1, Math.min(width * 0.5, height))

    Column {
        anchors.centerIn: parent
        width: root.width * 0.9
        spacing: root.measure * 0.04

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: faIcons[root.icon]
            color: root.color
            opacity: 0.3
            font.family: "FontAwesome"
            font.pixelSize: Math.max(1, root.measure * 0.34)
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: root.title
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            color: root.color
            font.family: root.family
            font.pixelSize: Math.max(1, root.measure * 0.16)
        }
    }
}
