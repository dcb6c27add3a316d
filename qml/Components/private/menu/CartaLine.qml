// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "entries.js" as Entries
import "../fonts.js" as Fonts

/// One entry of a CartaMenu: name, dots, price, and the details below. Where the name takes two lines, the dots and the
/// price stand on the second, and so does the mark of an entry that has one.
Item {
    id: root

    /// The CartaMenu and the entry of its model.
    property Item menu
    property var entry
    /// The share of their full size that its texts stand in, and the most that it may be high, in pixels.
    property real share: 1
    property real most: Infinity
    readonly property string name: Entries.text(entry, "name", "name")
    /// The font of the name in full size, and the length that it has with the price and the price has, in pixels.
    readonly property alias face: title.face
    readonly property real line: width - (price.text === "" ? 0 : 24 * menu.unit)
    readonly property real beside: price.width + (mark.text === "" ? 0 : mark.width + gap)
    readonly property real gap: 10 * menu.unit

    function sized(font, share) {
        return Fonts.sized(font, font.pixelSize * menu.unit * share);
    }

    width: Math.max(0, menu.width - menu.leftMargin - menu.rightMargin)
    height: title.height + (details.text === "" ? 0 : details.height + 2)

    NameText {
        id: title
        // Place of the last line: its upper edge and its length in pixels.
        property real lastTop: 0
        property real lastLength: 0

        anchors.left: parent.left
        // A little more than it was measured for, as letters come in whole pixels.
        width: Math.max(0, root.line - root.beside + 4 * root.menu.unit)
        face: root.sized(root.menu.nameFont, 1)
        share: root.share
        text: root.name
        color: root.menu.nameColor
        horizontalAlignment: Text.AlignLeft
        onLineLaidOut: {
            lastTop = line.y;
            lastLength = line.implicitWidth;
        }
    }

    Text {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: title.lastLength + root.gap
        y: title.lastTop + title.baselineOffset - baselineOffset
        text: faIcons[Entries.text(root.entry, "icon")] || ""
        color: root.menu.iconColor
        font.family: "FontAwesome"
        font.pixelSize: Math.max(1, title.font.pixelSize * 0.7)
    }

    Leader {
        anchors { left: mark.text === "" ? parent.left : mark.right; right: price.left }
        anchors.leftMargin: (mark.text === "" ? title.lastLength : 0) + root.gap
        anchors.rightMargin: root.gap
        y: title.lastTop + title.baselineOffset - height
        visible: price.text !== ""
        size: title.font.pixelSize
        color: root.menu.detailsColor
    }

    Text {
        id: price
        anchors.right: parent.right
        y: title.lastTop + title.baselineOffset - baselineOffset
        width: Math.min(implicitWidth, root.width / 2)
        text: Entries.text(root.entry, "price")
        color: root.menu.priceColor
        font: root.sized(root.menu.priceFont, root.share)
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }

    Text {
        id: details
        anchors { left: parent.left; right: parent.right; top: title.bottom }
        anchors.topMargin: 2
        text: root.menu.showDetails ? Entries.text(root.entry, "details") : ""
        color: root.menu.detailsColor
        font: root.sized(root.menu.detailsFont, (1 + root.share) / 2)
        wrapMode: Text.WordWrap
        maximumLineCount: Math.max(1, Math.min(99, Math.floor((root.most - title.height) / (1.5 * font.pixelSize))))
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
    }
}
