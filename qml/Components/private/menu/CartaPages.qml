// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../limits.js" as Limits
import "../presence.js" as Presence
import "entries.js" as Entries
import "pages.js" as Pages

/// The pages of a CartaMenu: whole lines, shared out once and again when the list or its place changes. Where all lines
/// fit there is one page, which stays. Else the lines of a page fade out before those of the next one fade in.
Item {
    id: root

    /// The CartaMenu.
    property ListView menu
    /// The share of their full size that all lines stand in.
    property real share: 1
    /// Whether the list reads from right to left, as its first name does.
    property bool fromRight: false
    /// The first line of each page, the number of lines on all of them, the page that is shown and the opacity of its
    /// lines.
    property var starts: [0]
    property int lines: 0
    property int page: 0
    property real shade: 1
    /// Room below the last line, so that the last page, too, can begin below the title.
    property real tail: 0

    readonly property real room: Math.max(0, menu.height - (menu.headerItem ? menu.headerItem.height : 0))
    // What the pages depend on.
    readonly property var basis: [menu.count, menu.model, room, menu.width, menu.unit, menu.spacing, menu.bottomMargin,
                                  menu.leftMargin, menu.rightMargin, menu.showDetails,
                                  menu.nameFont, menu.priceFont, menu.detailsFont]

    /// Whether `line` is on the page that is shown.
    function has(line) {
        return line >= root.starts[root.page] && line < (root.starts[root.page + 1] || root.lines);
    }

    function layOut() {
        const entries = Entries.list(root.menu.model, Limits.menuEntries);
        root.fromRight = ruler.readsFromRight(entries.length > 0 ? Entries.text(entries[0], "name", "name") : "");
        root.share = entries.reduce((least, entry) => Math.min(least, shareOf(entry)), 1);
        root.lines = entries.length;
        const heights = entries.map(heightOf);
        const all = Pages.sum(heights, root.menu.spacing);
        const most = Math.max(1, root.room - root.menu.bottomMargin);
        root.starts = all <= root.room ? [0] : Pages.starts(heights, root.menu.spacing, most);
        const last = heights.slice(root.starts[root.starts.length - 1]);
        root.tail = root.starts.length > 1 ? Math.max(0, root.room - Pages.sum(last, root.menu.spacing)) : 0;
        turn.stop();
        root.shade = 1;
        show(Math.min(root.page, root.starts.length - 1));
    }

    function shareOf(entry) {
        trial.share = 1;
        trial.entry = entry;
        return ruler.shareOf(trial.name, trial.line, trial.beside, root.room);
    }

    function heightOf(entry) {
        trial.share = root.share;
        trial.entry = entry;
        return trial.height;
    }

    function show(page) {
        root.page = page;
        root.menu.forceLayout();
        root.menu.positionViewAtBeginning();
        // The list knows only about where a line is that it has not placed yet, and exactly after the first call.
        for (let i = 0; page > 0 && i < 2; ++i)
            root.menu.positionViewAtIndex(root.starts[page], ListView.Beginning);
    }

    onBasisChanged: Qt.callLater(layOut)
    Component.onCompleted: layOut()

    Connections {
        target: root.menu.model && root.menu.model.dataChanged ? root.menu.model : null
        function onDataChanged() {
            Qt.callLater(root.layOut);
        }
    }

    CartaLine {
        id: trial
        menu: root.menu
        most: root.room
        visible: false
    }

    NameRuler {
        id: ruler
        face: trial.face
    }

    Timer {
        interval: Math.max(500, root.menu.pageTime)
        repeat: true
        running: root.starts.length > 1 && root.menu.pageTime > 0 && root.menu.visible && !turn.running
                 && Presence.presenceOf(root.menu) === Presence.shown
        onTriggered: turn.start()
    }

    SequentialAnimation {
        id: turn

        NumberAnimation {
            target: root
            property: "shade"
            to: 0
            duration: 400
            easing.type: Easing.InQuad
        }
        ScriptAction {
            script: root.show((root.page + 1) % root.starts.length)
        }
        NumberAnimation {
            target: root
            property: "shade"
            from: 0
            to: 1
            duration: 600
            easing.type: Easing.OutQuad
        }
    }
}
