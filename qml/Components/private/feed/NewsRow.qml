// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "times.js" as Times

/// One entry of an Rss: picture, headline, time, and as much of its text as there is room for.
Item {
    id: root

    property var entry: ({ title: "", summary: "", picture: "", time: 0 })
    /// Edge of the picture in pixels; 0: no pictures.
    property real imgSize: 0
    property real pixelSize: 28
    property color color: "white"
    property string family: "Open Sans"
    property var locale: Qt.locale()

    readonly property real edge: Math.min(imgSize, height)
    readonly property real textX: edge > 0 ? edge + pixelSize * 0.7 : 0

    WebPicture {
        y: (root.height - height) / 2
        width: root.edge
        height: root.edge
        visible: root.edge > 0
        radius: 8
        source: visible ? root.entry.picture : ""
        label: root.entry.title
    }

    Item {
        x: root.textX
        width: Math.max(0, root.width - x)
        height: Math.min(root.height, headline.height + time.height + summary.contentHeight)
        anchors.verticalCenter: parent.verticalCenter

        Text {
            id: headline
            width: parent.width
            height: Math.min(implicitHeight, root.height)
            text: root.entry.title
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            color: root.color
            font.family: root.family
            font.pixelSize: root.pixelSize
            font.weight: Font.DemiBold
        }

        Text {
            id: time
            anchors.top: headline.bottom
            width: parent.width
            visible: text !== "" && headline.height + implicitHeight <= root.height
            height: visible ? implicitHeight : 0
            text: Times.brief(root.entry.time, Date.now(), root.locale)
            color: root.color
            opacity: 0.6
            font.family: root.family
            font.pixelSize: root.pixelSize * 0.6
        }

        Text {
            id: summary
            anchors.top: time.bottom
            width: parent.width
            height: Math.max(0, root.height - headline.height - time.height)
            visible: height >= font.pixelSize * 1.4
            text: visible ? root.entry.summary : ""
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            color: root.color
            opacity: 0.85
            font.family: root.family
            font.pixelSize: root.pixelSize * 0.72
        }
    }
}
