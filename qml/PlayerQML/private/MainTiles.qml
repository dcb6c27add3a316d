// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The main page's large buttons, in a row or, where `upright`, one above the other. They and their type
/// grow with the page. The arrow keys go from one to the next.
FocusScope {
    id: root

    property bool canEdit: true
    property bool canPlay: false
    property bool upright: false

    signal openChosen()
    signal editChosen()
    signal playChosen()
    signal dashboardChosen()

    readonly property real gap: 3 * BGUI.Theme.unit
    readonly property int count: 1 + 2 * canEdit + canPlay
    readonly property int columns: upright ? 1 : Math.min(3, count)
    readonly property int rows: Math.ceil(count / columns)
    readonly property real roomAcross: (width - (columns - 1) * gap) / columns
    readonly property real roomDown: (height - (rows - 1) * gap) / rows
    // A row's tiles keep their shape, those above each other fill the place.
    readonly property real tileWidth: upright ? roomAcross : Math.min(roomAcross, roomDown / 0.75)
    readonly property real tileHeight: upright ? roomDown : 0.75 * tileWidth

    function step(by) {
        const reachable = Array.from(grid.children).filter(tile => tile.visible);
        const next = reachable[reachable.findIndex(tile => tile.activeFocus) + by];
        if (next)
            next.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onLeftPressed: step(-1)
    Keys.onUpPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onDownPressed: step(1)

    Grid {
        id: grid
        anchors.centerIn: parent
        columns: root.columns
        spacing: root.gap

        MainTile {
            focus: true
            width: root.tileWidth
            height: root.tileHeight
            text: "Open"
            faIcon: "fa-folder-open"
            onClicked: root.openChosen()
        }

        MainTile {
            visible: root.canEdit
            width: root.tileWidth
            height: root.tileHeight
            text: "Edit"
            faIcon: "fa-pencil"
            onClicked: root.editChosen()
        }

        MainTile {
            visible: root.canPlay
            width: root.tileWidth
            height: root.tileHeight
            text: "Play"
            faIcon: "fa-play"
            onClicked: root.playChosen()
        }

        MainTile {
            visible: root.canEdit
            width: root.tileWidth
            height: root.tileHeight
            text: "Dashboard"
            faIcon: "fa-inbox"
            onClicked: root.dashboardChosen()
        }
    }
}
