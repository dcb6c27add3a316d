// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../limits.js" as Limits
import "entries.js" as Entries
import "pages.js" as Pages

/// The list of a MenuSlideshow: title, and the entries with a mark that moves from one to the next. Long names make
/// their lines higher, or, where that is too much, all letters smaller. Of a list that is longer still the part around
/// the marked entry shows.
Item {
    id: root

    /// The MenuSlideshow.
    property Item menu
    /// The share of their full size that all lines stand in, and whether they read from right to left.
    property real share: 1
    property bool fromRight: false
    /// The heights of the lines, and that of the part of them that is shown.
    property var heights: []
    property real shown: 0

    readonly property real room: Math.max(0, height - title.height)
    // What the lines depend on.
    readonly property var basis: [menu.model, menu.count, width, room, menu.unit]

    function layOut() {
        const entries = Entries.list(root.menu.model, Limits.menuEntries);
        root.fromRight = ruler.readsFromRight(entries.length > 0 ? Entries.text(entries[0], "name", "name") : "");
        const most = entries.reduce((least, entry) => Math.min(least, shareOf(entry)), 1);
        const whole = ruler.shares.find(share => share <= most && isWhole(share, entries));
        root.share = whole || most;
        const needed = heightsAt(root.share, entries);
        root.heights = whole ? needed.map(height => height + spare(needed)) : needed.map(() => partHeight(needed));
        root.shown = whole ? Pages.sum(root.heights, 0) : root.room;
    }

    function shareOf(entry) {
        trial.share = 1;
        trial.entry = entry;
        return ruler.shareOf(trial.name, trial.line, trial.beside, Infinity);
    }

    // Whether all lines fit at `share`; long lists are not even measured.
    function isWhole(share, entries) {
        return entries.length * 70 * root.menu.unit * share <= root.room
            && Pages.sum(heightsAt(share, entries), 0) <= root.room;
    }

    function heightsAt(share, entries) {
        trial.share = share;
        return entries.map(function(entry) {
            trial.entry = entry;
            return trial.needed;
        });
    }

    // What each line gets of the room that is left.
    function spare(needed) {
        return Math.min(22 * root.menu.unit, (root.room - Pages.sum(needed, 0)) / needed.length);
    }

    // The height of all lines of a list that shows a part: whole lines.
    function partHeight(needed) {
        return Math.max(1, root.room / Math.max(1, Math.floor(root.room / Math.max.apply(null, needed))));
    }

    onBasisChanged: Qt.callLater(layOut)
    Component.onCompleted: layOut()

    MenuLine {
        id: trial
        width: root.width
        menu: root.menu
        visible: false
    }

    NameRuler {
        id: ruler
        face: trial.face
    }

    MenuName {
        id: title
        line: parent.width
        height: text === "" ? 0 : 96 * root.menu.unit
        room: 96 * root.menu.unit
        text: root.menu.title
        color: root.menu.titleColor
        face.family: "Lobster Two"
        face.bold: true
        face.italic: true
        face.pixelSize: Math.max(1, Math.round(64 * root.menu.unit))
    }

    ListView {
        anchors { left: parent.left; right: parent.right; top: title.bottom }
        height: root.shown
        clip: root.shown === root.room
        interactive: false
        model: root.menu.model
        currentIndex: Math.min(root.menu.currentIndex, count - 1)
        highlightMoveDuration: 500
        highlightResizeDuration: 500
        preferredHighlightBegin: (height - (currentItem ? currentItem.height : 0)) / 2
        preferredHighlightEnd: preferredHighlightBegin + (currentItem ? currentItem.height : 0)
        highlightRangeMode: ListView.ApplyRange
        highlight: Rectangle {
            radius: 10 * root.menu.unit
            color: root.menu.markColor
        }
        delegate: MenuLine {
            width: ListView.view.width
            height: root.heights[Math.min(index, root.heights.length - 1)] || 1
            menu: root.menu
            entry: Entries.of(model)
            share: root.share
            LayoutMirroring.enabled: root.fromRight
            LayoutMirroring.childrenInherit: true
        }
    }
}
