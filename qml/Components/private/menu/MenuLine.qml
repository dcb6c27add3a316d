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
    readonly property real indent: 18 * menu.unit
    readonly property bool isMarked: ListView.isCurrentItem

    Column {
        anchors { left: parent.left; right: price.left; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: root.indent
        anchors.rightMargin: root.indent

        MenuText {
            width: parent.width
            text: Entries.text(root.entry, "name", "name")
            color: root.menu.textColor
            size: 30 * root.menu.unit
            isBold: true
        }

        MenuText {
            width: parent.width
            text: Entries.text(root.entry, "details")
            color: root.isMarked ? root.menu.textColor : root.menu.detailsColor
            fontSizeMode: Text.FixedSize
            size: 19 * root.menu.unit
        }
    }

    MenuText {
        id: price
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: root.indent
        text: Entries.text(root.entry, "price")
        color: root.isMarked ? root.menu.textColor : root.menu.titleColor
        size: 32 * root.menu.unit
        isBold: true
    }
}
