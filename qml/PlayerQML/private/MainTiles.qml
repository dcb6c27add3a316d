// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The main page's large buttons, three in a row. The arrow keys go from one to the next.
FocusScope {
    id: root

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
        spacing: root.gap

        MainTile {
            focus: true
            width: root.tileSize
            text: "Open"
            faIcon: "fa-folder-open"
            onClicked: root.openChosen()
        }

        MainTile {
            visible: root.canEdit
            width: root.tileSize
            text: "Edit"
            faIcon: "fa-pencil"
            onClicked: root.editChosen()
        }

        MainTile {
            visible: root.canPlay
            width: root.tileSize
            text: "Play"
            faIcon: "fa-play"
            onClicked: root.playChosen()
        }

        MainTile {
            visible: root.canEdit
            width: root.tileSize
            text: "Dashboard"
            faIcon: "fa-inbox"
            onClicked: root.dashboardChosen()
        }
    }
}
