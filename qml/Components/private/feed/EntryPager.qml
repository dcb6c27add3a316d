// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Shows a list in pages of whole rows, one page after the other, again and again; nothing is ever cut at an edge. The
/// last page is full too: it repeats what it takes from the one before.
Item {
    id: root

    property var entries: []
    /// The least height of a row, and what lies between two, in pixels.
    property real rowHeight: 100
    property real spacing: 8
    /// Milliseconds that a page stays.
    property int showTime: 10000
    property bool running: false
    /// A row; it has `entry`, and gets its width and height.
    property Component delegate

    readonly property int rows:
        Math.max(1, Math.min(20, Math.floor((height + spacing) / Math.max(1, rowHeight + spacing))))
    readonly property int pages: Math.max(1, Math.ceil(entries.length / rows))
    property int page: 0
    readonly property int first: Math.max(0, Math.min(page * rows, entries.length - rows))

    onPagesChanged: page = Math.min(page, pages - 1)

    Column {
        id: column
        width: parent.width
        spacing: root.spacing

        Repeater {
            model: root.rows

            Loader {
                id: row
                readonly property var entry: root.entries[root.first + index]

                // A row that is about to go keeps its last entry.
                function hand() {
                    if (row.item && row.entry !== undefined)
                        row.item.entry = row.entry;
                }

                width: column.width
                height: (root.height - root.spacing * (root.rows - 1)) / root.rows
                active: entry !== undefined
                sourceComponent: root.delegate
                onLoaded: hand()
                onEntryChanged: hand()
            }
        }
    }

    Timer {
        interval: Math.max(1000, root.showTime)
        running: root.running && root.pages > 1
        repeat: true
        onTriggered: turn.restart()
    }

    SequentialAnimation {
        id: turn

        ParallelAnimation {
            NumberAnimation { target: column; property: "opacity"; to: 0; duration: 300; easing.type: Easing.InCubic }
            NumberAnimation { target: column; property: "y"; to: -24; duration: 300; easing.type: Easing.InCubic }
        }
        ScriptAction {
            script: {
                root.page = (root.page + 1) % root.pages;
                column.y = 24;
            }
        }
        ParallelAnimation {
            NumberAnimation { target: column; property: "opacity"; to: 1; duration: 500; easing.type: Easing.OutCubic }
            NumberAnimation { target: column; property: "y"; to: 0; duration: 500; easing.type: Easing.OutCubic }
        }
    }
}
