// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// An entry of an EntriesRow: its name with the tools of the list and, when it is open, its members.
Rectangle {
    id: root

    /// The EntriesRow, and the entry's place in it.
    property Item row
    property int place: 0
    readonly property var entry: row.entries && row.entries[place] || ({})
    readonly property bool isOpen: row.open === place

    height: column.height
    radius: BGUI.Theme.radius("base")
    color: BGUI.Theme.surface
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    Column {
        id: column
        width: parent.width

        BGUI.ListRow {
            width: parent.width
            size: root.row.size
            text: String(root.entry[root.row.fields[0].name] || qsTr("Entry %1").arg(root.place + 1))
            onClicked: root.row.open = root.isOpen ? -1 : root.place

            BGUI.ActionButton {
                objectName: "up"
                size: root.row.size
                faIcon: "fa-angle-up"
                toolTip: qsTr("Up")
                enabled: root.place > 0
                onClicked: root.row.move(root.place, -1)
            }
            BGUI.ActionButton {
                objectName: "down"
                size: root.row.size
                faIcon: "fa-angle-down"
                toolTip: qsTr("Down")
                enabled: root.place < root.row.entries.length - 1
                onClicked: root.row.move(root.place, 1)
            }
            BGUI.ActionButton {
                objectName: "remove"
                size: root.row.size
                faIcon: "fa-trash-o"
                toolTip: qsTr("Remove")
                onClicked: root.row.remove(root.place)
            }
        }

        Column {
            x: BGUI.Theme.unit
            width: parent.width - 2 * x
            visible: root.isOpen
            spacing: BGUI.Theme.unit
            bottomPadding: BGUI.Theme.unit

            Repeater {
                model: root.isOpen ? root.row.fields : []

                EntryField {
                    width: parent.width
                    card: root
                    field: modelData
                }
            }
        }
    }
}
