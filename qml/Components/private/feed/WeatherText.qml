// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The words of a Weather: a large headline, a line of detail, the place. Empty lines take no room.
Column {
    id: root

    property string headline
    property string detail
    property string place
    property color color: "white"
    property string family: "Open Sans"
    /// What all sizes are measured by, and the most that a line may take, in pixels.
    property real measure: 100
    property real room: 200
    property bool isCentred: false
    readonly property real lineWidth:
        Math.min(room, Math.max(first.implicitWidth, second.implicitWidth, third.implicitWidth))

    Text {
        id: first
        width: root.lineWidth
        horizontalAlignment: root.isCentred ? Text.AlignHCenter : Text.AlignLeft
        text: root.headline
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: root.color
        font.family: root.family
        font.pixelSize: Math.max(1, root.measure * 0.36)
    }

    Text {
        id: second
        width: root.lineWidth
        horizontalAlignment: root.isCentred ? Text.AlignHCenter : Text.AlignLeft
        visible: text !== ""
        text: root.detail
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: root.color
        font.family: root.family
        font.pixelSize: Math.max(1, root.measure * 0.13)
    }

    Text {
        id: third
        width: root.lineWidth
        horizontalAlignment: root.isCentred ? Text.AlignHCenter : Text.AlignLeft
        visible: text !== ""
        text: root.place
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: root.color
        opacity: 0.7
        font.family: root.family
        font.pixelSize: Math.max(1, root.measure * 0.11)
    }
}
