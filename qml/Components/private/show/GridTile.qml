// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."
import "../menu"
import "../picture"
import "../menu/entries.js" as Entries

/// One tile of a GridOrganizer: the picture, and its name on a darker foot. The grid's own layout knows only cells of
/// one size; the tile itself stands where `place` says.
Item {
    id: root

    property var entry
    /// Place in the grid, and position in the order in which tiles enter.
    property rect place
    property int order: 0
    /// Whether the tile enters, or is simply there.
    property bool enters: true
    readonly property real entered: enters ? appearance.progress : 1
    readonly property string name: Entries.text(entry, "name")

    Appearance {
        id: appearance
        enterTime: Math.min(2000, root.order * 90)
        moveTime: 600
    }

    Item {
        id: tile
        x: root.place.x - root.x
        y: root.place.y - root.y
        width: root.place.width
        height: root.place.height
        opacity: root.entry === undefined ? 0 : root.entered
        scale: 0.85 + 0.15 * root.entered

        FadingPicture {
            anchors.fill: parent
            source: Entries.text(root.entry, "image", "image")
            radius: Math.min(tile.width, tile.height) * 0.05
        }

        Rectangle {
            anchors { left: parent.left; bottom: parent.bottom }
            anchors.margins: tile.height * 0.04
            width: Math.min(Math.ceil(caption.implicitWidth) + 2 + 2 * caption.anchors.margins,
                            parent.width - 2 * anchors.margins)
            height: caption.height + tile.height * 0.06
            radius: tile.height * 0.03
            visible: root.name !== ""
            color: "#d9121a21"

            MenuText {
                id: caption
                anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
                anchors.margins: tile.height * 0.05
                text: root.name
                color: "white"
                size: Math.max(10, tile.height * 0.085)
                isBold: true
            }
        }
    }
}
