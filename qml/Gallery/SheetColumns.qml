// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Sheets in as many columns as fit: each goes below the shortest column so far. Lists made by a Repeater count too.
Item {
    id: root

    // How narrow a column may be, in units, and how many there are at most.
    property real narrowest: 62
    property int most: 3
    property real gap: 2 * Theme.unit
    readonly property int columns: Math.max(1, Math.min(most, Math.floor(width / (narrowest * Theme.unit))))
    readonly property real columnWidth: (width - (columns - 1) * gap) / columns

    property var watched: []

    function watch() {
        for (let i = 0; i < children.length; ++i) {
            if (watched.indexOf(children[i]) < 0)
                children[i].heightChanged.connect(arrange);
        }
        watched = Array.from(children);
        arrange();
    }

    function arrange() {
        const bottoms = new Array(columns).fill(0);
        watched.filter(sheet => sheet && sheet.height > 0).forEach(sheet => {
            const column = bottoms.indexOf(Math.min(...bottoms));
            sheet.x = column * (columnWidth + gap);
            sheet.y = bottoms[column];
            sheet.width = columnWidth;
            bottoms[column] += sheet.height + gap;
        });
        height = Math.max(0, Math.max(...bottoms) - gap);
    }

    onChildrenChanged: Qt.callLater(watch)
    onColumnWidthChanged: arrange()
    Component.onCompleted: watch()
}
