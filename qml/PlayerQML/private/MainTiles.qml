// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

// The main page's large buttons, three in a row. The arrow keys go from one to the next.
FocusScope {
    id: tiles

    property bool canEdit: true
    property bool canPlay: false

    signal openChosen()
    signal editChosen()
    signal playChosen()
    signal dashboardChosen()

    readonly property real gap: 3 * BGUI.Theme.unit
    readonly property real tileSize: Math.min(40 * BGUI.Theme.unit, (width - 4 * gap) / 3, height - 2 * gap)

    function step(by) {
        const reachable = Array.from(grid.children).filter(tile => tile.visible);
        const next = reachable[reachable.findIndex(tile => tile.activeFocus) + by];
        if (next)
            next.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    Grid {
        id: grid
        anchors.centerIn: parent
        columns: 3
        spacing: tiles.gap

        MainTile {
            focus: true
            width: tiles.tileSize
            text: "Open"
            faIcon: "fa-folder-open"
            onClicked: tiles.openChosen()
        }

        MainTile {
            visible: tiles.canEdit
            width: tiles.tileSize
            text: "Edit"
            faIcon: "fa-pencil"
            onClicked: tiles.editChosen()
        }

        MainTile {
            visible: tiles.canPlay
            width: tiles.tileSize
            text: "Play"
            faIcon: "fa-play"
            onClicked: tiles.playChosen()
        }

        MainTile {
            visible: tiles.canEdit
            width: tiles.tileSize
            text: "Dashboard"
            faIcon: "fa-inbox"
            onClicked: tiles.dashboardChosen()
        }
    }
}
