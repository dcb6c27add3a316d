// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// The entries of an EntriesRow as a table over the window: a line an entry, a column a member. Tab goes to the right,
/// Enter down; from the last entry it adds another one.
BGUI.ModalPopup {
    id: root

    /// The EntriesRow.
    property Item row

    readonly property var fields: row.fields
    readonly property int count: row.entries ? row.entries.length : 0
    readonly property real toolsWidth: 3 * tool.width
    readonly property real shares: fields.reduce((sum, field) => sum + shareOf(field), 0)

    function shareOf(field) {
        return field.share || (field.kind === "number" ? 1 : 2);
    }

    function widthOf(field, width) {
        const gaps = fields.length * BGUI.Theme.unit;
        return Math.floor((width - toolsWidth - gaps) * shareOf(field) / shares);
    }

    function goTo(place, column) {
        list.forceLayout();
        list.positionViewAtIndex(place, ListView.Contain);
        list.itemAtIndex(place).cellAt(column).forceActiveFocus(Qt.TabFocusReason);
    }

    function add() {
        row.append();
        goTo(count - 1, 0);
    }

    function goDown(place, column) {
        if (place < count - 1)
            goTo(place + 1, column);
        else
            add();
    }

    objectName: "entriesTable"
    width: parent ? Math.min(parent.width - 4 * BGUI.Theme.unit, 120 * BGUI.Theme.unit) : 0
    height: parent ? Math.min(parent.height - 4 * BGUI.Theme.unit, list.y + list.contentHeight + 14 * BGUI.Theme.unit)
                   : 0
    padding: 3 * BGUI.Theme.unit
    closePolicy: T.Popup.CloseOnEscape
    onOpened: {
        if (count > 0)
            goTo(0, 0);
    }

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: FocusScope {
        id: sheet
        focus: true

        // Only tells how wide the tools are.
        BGUI.ActionButton {
            id: tool
            visible: false
            size: root.row.size
        }

        BGUI.Label {
            id: title
            size: "h3"
            text: root.row.label
        }

        Row {
            id: heads
            y: title.height + 2 * BGUI.Theme.unit
            spacing: BGUI.Theme.unit

            Repeater {
                model: root.fields

                BGUI.Label {
                    width: root.widthOf(modelData, sheet.width)
                    size: "small"
                    strong: true
                    muted: true
                    text: modelData.label
                    elide: Text.ElideRight
                }
            }
        }

        ListView {
            id: list
            anchors.fill: parent
            anchors.topMargin: heads.y + heads.height
            anchors.bottomMargin: foot.height + 2 * BGUI.Theme.unit
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            topMargin: BGUI.Theme.unit / 2
            spacing: BGUI.Theme.unit / 2
            model: root.count
            T.ScrollBar.vertical: BGUI.ScrollBar {}

            delegate: EntryLine {
                width: list.width
                table: root
                place: index
            }
        }

        Row {
            id: foot
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            spacing: BGUI.Theme.unit

            BGUI.Button {
                objectName: "addEntry"
                size: root.row.size
                faIcon: "fa-plus"
                text: qsTr("Add")
                onClicked: root.add()
            }

            BGUI.Button {
                size: root.row.size
                type: "primary"
                text: qsTr("Done")
                onClicked: root.close()
            }
        }
    }
}
