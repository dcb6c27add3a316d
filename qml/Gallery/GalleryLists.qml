// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// A page's header and the rows of a list.
Card {
    id: root

    title: qsTr("Headers and lists")

    PageHeader {
        width: parent.width
        title: qsTr("Projects")
        subtitle: qsTr("On this player")

        ActionButton { size: "large"; faIcon: "fa-download"; toolTip: qsTr("Import"); onDark: true }
        ActionButton { size: "large"; faIcon: "fa-cog"; toolTip: qsTr("Settings"); onDark: true }
    }

    Column {
        width: parent.width

        ListRow {
            width: parent.width
            faIcon: "fa-folder"
            text: qsTr("Lobby")
            detail: qsTr("12 files, changed today")
            highlighted: true

            ActionButton { faIcon: "fa-times"; toolTip: qsTr("Remove") }
        }

        ListRow {
            width: parent.width
            faIcon: "fa-folder"
            text: qsTr("A project whose name is much longer than any list could ever show in one line without a cut")
            detail: qsTr("3 files")

            ActionButton { faIcon: "fa-times"; toolTip: qsTr("Remove") }
        }

        ListRow {
            width: parent.width
            faIcon: "fa-folder"
            text: qsTr("Pressed")
            down: true
        }

        ListRow {
            width: parent.width
            faIcon: "fa-folder"
            text: qsTr("Disabled")
            enabled: false
        }

        ListRow {
            width: parent.width
            size: "large"
            faIcon: "fa-desktop"
            text: qsTr("For fingers")
        }
    }
}
