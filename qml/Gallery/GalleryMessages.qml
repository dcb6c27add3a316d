// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0
import "../GUI/private"

/// What the program says: notices, progress, busy and empty places, questions.
Card {
    id: root

    title: qsTr("Messages")

    Notice { type: "info"; text: qsTr("No cloud is set up on this player.") }
    Notice { type: "success"; closable: true; text: qsTr("Project exported to Lobby.zip.") }
    Notice {
        type: "warning"
        text: qsTr("The disk is nearly full: 120 MB are left. Remove projects that nobody needs.")
    }
    Notice { type: "danger"; closable: true; text: qsTr("The archive is damaged. Nothing was changed.") }

    StateRow {
        label: qsTr("Progress: known, unknown")

        ProgressBar { value: 0.62 }
        ProgressBar { indeterminate: true }
        Spinner {}
    }

    Item {
        width: parent.width
        height: 23 * Theme.unit

        CustomBuzyInd { text: qsTr("Importing Lobby.zip"); running: true; progress: 0.62 }
    }

    StateRow {
        label: qsTr("A message box, and how long work ends")

        Button { text: qsTr("Ask"); onClicked: question.open() }
        Button { text: qsTr("Succeed"); onClicked: busy.finish(qsTr("Saved")) }
        Button { text: qsTr("Fail"); onClicked: busy.finish(qsTr("The disk is full"), true) }
    }

    EmptyState {
        width: parent.width
        faIcon: "fa-folder-open-o"
        title: qsTr("No projects yet")
        text: qsTr("Import an archive, or make a project in the editor.")

        Button { type: "primary"; text: qsTr("Import") }
    }

    EmptyState {
        width: parent.width
        isError: true
        faIcon: "fa-exclamation-triangle"
        title: qsTr("This folder cannot be opened")
    }

    MessageBox {
        id: question
        type: "danger"
        title: qsTr("Remove the project?")
        text: qsTr("The folder Lobby and everything in it is removed from this player.")
        acceptText: qsTr("Remove")
        rejectText: qsTr("Keep")
    }

    CustomBuzyInd {
        id: busy
        parent: root
    }
}
