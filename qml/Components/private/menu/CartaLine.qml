// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "entries.js" as Entries
import "../fonts.js" as Fonts

/// One entry of a CartaMenu: name, dots, price, and the details below.
Column {
    id: root

    /// The CartaMenu and the entry of its model.
    property Item menu
    property var entry
    // A line that is cut off at the lower edge waits for the next page.
    readonly property bool fits: y + height <= menu.contentY + menu.height || height > menu.height

    opacity: fits ? 1 : 0
    width: Math.max(0, menu.width - menu.leftMargin - menu.rightMargin)
    spacing: 2

    Behavior on opacity {
        NumberAnimation { duration: 400 }
    }

    Item {
        width: parent.width
        height: Math.max(name.height, price.height)

        Text {
            id: name
            width: Math.max(0, Math.min(implicitWidth, parent.width - price.width - 40 * root.menu.unit))
            text: Entries.text(root.entry, "name", "name")
            color: root.menu.nameColor
            font: Fonts.sized(root.menu.nameFont, root.menu.nameFont.pixelSize * root.menu.unit)
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }

        Leader {
            anchors { left: name.right; right: price.left; baseline: name.baseline }
            anchors.margins: 10 * root.menu.unit
            baselineOffset: height
            visible: price.text !== ""
            size: name.font.pixelSize
            color: root.menu.detailsColor
        }

        Text {
            id: price
            anchors { right: parent.right; baseline: name.baseline }
            text: Entries.text(root.entry, "price")
            color: root.menu.priceColor
            font: Fonts.sized(root.menu.priceFont, root.menu.priceFont.pixelSize * root.menu.unit)
            textFormat: Text.PlainText
        }
    }

    Text {
        width: parent.width
        visible: root.menu.showDetails && text !== ""
        text: Entries.text(root.entry, "details")
        color: root.menu.detailsColor
        font: Fonts.sized(root.menu.detailsFont, root.menu.detailsFont.pixelSize * root.menu.unit)
        wrapMode: Text.WordWrap
        textFormat: Text.PlainText
    }
}
