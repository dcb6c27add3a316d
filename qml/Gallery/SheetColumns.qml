// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import Nuvex.GUI 1.0

/// Sheets in as many columns as fit: each goes below the shortest column so far. Lists made by a Repeater count too.
/// Specimens are filled when they come into sight, one at a time, so that the window goes on painting between them.
Item {
    id: root

    // How narrow a column may be, in units, and how many there are at most.
    property real narrowest: 62
    property int most: 3
    property real gap: 2 * Theme.unit
    readonly property int columns: Math.max(1, Math.min(most, Math.floor(width / (narrowest * Theme.unit))))
    readonly property real columnWidth: (width - (columns - 1) * gap) / columns
    /// What scrolls the sheets.
    property Flickable pane: null

    property var watched: []
    // Whether a specimen that is in sight may be empty.
    property bool isWaiting: true

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
        isWaiting = true;
    }

    function isInSight(sheet) {
        const top = sheet.mapToItem(pane, 0, 0).y;
        return top < pane.height && top + sheet.height > 0;
    }

    function fillNext() {
        const specimens = watched.filter(sheet => sheet && sheet.isFilled !== undefined);
        const next = specimens.find(sheet => !sheet.isFilled && isInSight(sheet));
        isWaiting = next !== undefined;
        if (next && specimens.every(sheet => !sheet.isFilled || sheet.shown))
            next.isFilled = true;
    }

    onChildrenChanged: Qt.callLater(watch)
    onColumnWidthChanged: arrange()
    Component.onCompleted: watch()

    Connections {
        target: root.pane
        function onContentYChanged() {
            root.isWaiting = true;
        }
        function onHeightChanged() {
            root.isWaiting = true;
        }
    }

    Connections {
        target: root.Window.window
        enabled: root.isWaiting && root.pane !== null
        function onFrameSwapped() {
            root.fillNext();
        }
    }
}
