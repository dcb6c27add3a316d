// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The main page's middle: the still of the project, as large as the page allows, and the tiles beside it, on an
/// upright page below it; without a still the tiles alone.
FocusScope {
    id: root

    property alias still: picture.source
    property alias tiles: tiles

    readonly property real gap: 4 * BGUI.Theme.unit
    readonly property bool hasStill: picture.status === Image.Ready
    readonly property bool isWide: width > height
    readonly property real ratio: hasStill ? picture.implicitWidth / picture.implicitHeight : 1
    readonly property real stillRoomAcross: isWide ? 0.68 * width - 1.5 * gap : width - 2 * gap
    readonly property real stillRoomDown: isWide ? height - 2 * gap : 0.6 * height
    readonly property real stillWidth: Math.min(stillRoomAcross, stillRoomDown * ratio)

    Image {
        id: picture
        objectName: "projectStill"
        x: root.isWide ? root.gap + (root.stillRoomAcross - width) / 2 : (parent.width - width) / 2
        y: root.isWide ? (parent.height - height) / 2 : root.gap
        width: root.stillWidth
        height: root.stillWidth / root.ratio
        visible: root.hasStill
        asynchronous: true
        mipmap: true

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.width: Math.max(1, dp)
            border.color: BGUI.Theme.line
        }
    }

    MainTiles {
        id: tiles

        readonly property bool isBeside: root.hasStill && root.isWide
        readonly property real taken: root.hasStill && !root.isWide ? picture.y + picture.height : 0

        upright: isBeside
        focus: true
        x: isBeside ? root.gap * 2 + root.stillRoomAcross : root.gap
        y: isBeside ? picture.y : taken + root.gap
        width: parent.width - x - root.gap
        height: isBeside ? picture.height : Math.min(parent.height - y - root.gap, taken > 0 ? width / 3 : Infinity)
    }
}
