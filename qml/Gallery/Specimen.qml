// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A card with one component on a piece of wall, made as small as the wall demands, and a line on what it is. The
/// component is made when its chapter sets `isFilled`.
BGUI.Card {
    id: root

    property string about
    /// Height of the wall over its width.
    property real ratio: 9 / 16
    property color wall: "#2b3642"
    /// Free room around the component, as a share of the wall's width.
    property real margin: 0.05
    default property Component component: null
    property bool isFilled: false
    readonly property Item shown: loader.item

    spacing: BGUI.Theme.unit

    BGUI.Label {
        width: root.contentWidth
        text: root.about
        size: "small"
        muted: true
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }

    Rectangle {
        id: ground

        readonly property real room: width * (1 - 2 * root.margin)

        width: root.contentWidth
        height: Math.round(width * root.ratio)
        radius: BGUI.Theme.radius("base")
        color: root.wall
        clip: true

        Loader {
            id: loader
            anchors.centerIn: parent
            scale: Math.min(1, ground.room / width, (ground.height - ground.width + ground.room) / height)
            active: root.isFilled
            asynchronous: true
            sourceComponent: root.component
            opacity: status === Loader.Ready ? 1 : 0

            Behavior on opacity {
                NumberAnimation { duration: 300 }
            }
        }
    }
}
