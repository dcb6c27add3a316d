// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "entries.js" as Entries

/// The list of a MenuSlideshow: title, and the entries with a mark that moves from one to the next. Of a long list the
/// part around the marked entry shows.
Item {
    id: root

    /// The MenuSlideshow.
    property Item menu
    readonly property real room: height - title.height
    /// Lines that fit; all of them where possible.
    readonly property int lines: Math.max(1, Math.min(menu.count, Math.floor(room / Math.max(1, 70 * menu.unit))))
    readonly property real lineHeight: Math.max(1, Math.min(92 * menu.unit, room / lines))

    Text {
        id: title
        width: parent.width
        height: text === "" ? 0 : 96 * root.menu.unit
        text: root.menu.title
        color: root.menu.titleColor
        font.family: "Lobster Two"
        font.bold: true
        font.italic: true
        font.pixelSize: Math.max(1, Math.round(64 * root.menu.unit))
        elide: Text.ElideRight
        verticalAlignment: Text.AlignTop
    }

    ListView {
        anchors { left: parent.left; right: parent.right; top: title.bottom }
        height: root.lineHeight * root.lines
        clip: root.menu.count > root.lines
        interactive: false
        model: root.menu.model
        currentIndex: Math.min(root.menu.currentIndex, count - 1)
        highlightMoveDuration: 500
        highlightResizeDuration: 0
        preferredHighlightBegin: root.lineHeight * Math.floor(root.lines / 2)
        preferredHighlightEnd: preferredHighlightBegin + root.lineHeight
        highlightRangeMode: ListView.ApplyRange
        highlight: Rectangle {
            radius: 10 * root.menu.unit
            color: root.menu.markColor
        }
        delegate: MenuLine {
            width: ListView.view.width
            height: root.lineHeight
            menu: root.menu
            entry: Entries.of(model)
        }
    }
}
