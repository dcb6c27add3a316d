// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// An entry in an EntriesTable: its members side by side, then what can be done to it.
Row {
    id: root

    /// The EntriesTable, and the entry's place in it.
    property var table
    property int place: 0
    readonly property Item owner: table.row

    function cellAt(column) {
        return cells.itemAt(column);
    }

    spacing: BGUI.Theme.unit

    Repeater {
        id: cells
        model: root.table.fields

        EntryValue {
            width: root.table.widthOf(modelData, root.width)
            row: root.owner
            place: root.place
            field: modelData
            onAccepted: root.table.goDown(root.place, index)
        }
    }

    Row {
        BGUI.ActionButton {
            objectName: "up %1".arg(root.place + 1)
            size: root.owner.size
            faIcon: "fa-angle-up"
            toolTip: qsTr("Up")
            enabled: root.place > 0
            onClicked: root.owner.move(root.place, -1)
        }

        BGUI.ActionButton {
            objectName: "down %1".arg(root.place + 1)
            size: root.owner.size
            faIcon: "fa-angle-down"
            toolTip: qsTr("Down")
            enabled: root.place < root.table.count - 1
            onClicked: root.owner.move(root.place, 1)
        }

        BGUI.ActionButton {
            objectName: "remove %1".arg(root.place + 1)
            size: root.owner.size
            faIcon: "fa-trash-o"
            toolTip: qsTr("Remove")
            onClicked: root.owner.remove(root.place)
        }
    }
}
