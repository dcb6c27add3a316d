// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "entries.js" as Entries

/// One entry in the list of a MenuSlideshow.
Item {
    id: root

    /// The MenuSlideshow and the entry of its model.
    property Item menu
    property var entry
    /// The share of their full size that its texts stand in.
    property real share: 1
    readonly property string name: Entries.text(entry, "name", "name")
    /// The font of the name in full size, the length that it has with the price and the price has, and the height that
    /// the line needs, in pixels.
    readonly property alias face: title.face
    readonly property real line: width - 3 * indent
    readonly property real beside: price.width
    readonly property real needed: Math.max(70 * menu.unit * share, title.height + details.height + 3 * menu.unit)
    readonly property real indent: 18 * menu.unit
    readonly property bool isMarked: ListView.isCurrentItem

    Column {
        anchors { left: parent.left; leftMargin: root.indent; verticalCenter: parent.verticalCenter }

        NameText {
            id: title
            // A little more than it was measured for, as letters come in whole pixels.
            width: Math.max(0, root.line - root.beside + 4 * root.menu.unit)
            face.family: "Manrope"
            face.bold: true
            face.pixelSize: Math.max(1, Math.round(30 * root.menu.unit))
            share: root.share
            text: root.name
            color: root.menu.textColor
            horizontalAlignment: Text.AlignLeft
        }

        MenuText {
            id: details
            width: title.width
            height: text === "" ? 0 : implicitHeight
            text: Entries.text(root.entry, "details")
            color: root.isMarked ? root.menu.textColor : root.menu.detailsColor
            fontSizeMode: Text.FixedSize
            size: 19 * root.menu.unit * (1 + root.share) / 2
            horizontalAlignment: Text.AlignLeft
        }
    }

    MenuText {
        id: price
        anchors { right: parent.right; rightMargin: root.indent; verticalCenter: parent.verticalCenter }
        text: Entries.text(root.entry, "price")
        color: root.isMarked ? root.menu.textColor : root.menu.titleColor
        size: 32 * root.menu.unit * root.share
        isBold: true
    }
}
