// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Fields for text, and how forms line them up.
Card {
    id: root

    title: qsTr("Fields")

    FormRow {
        label: qsTr("Empty")
        Input { width: parent.width; placeholderText: qsTr("Name of the player") }
    }

    FormRow {
        label: qsTr("With icon")
        Input { width: parent.width; faIcon: "fa-search"; text: qsTr("Lobby"); clearable: true }
    }

    FormRow {
        label: qsTr("Password")
        Input { width: parent.width; faIcon: "fa-lock"; text: "secret"; echoMode: TextInput.Password }
    }

    FormRow {
        label: qsTr("Error")
        Input { width: parent.width; text: "Lobby"; error: qsTr("There is a project of this name already.") }
    }

    FormRow {
        label: qsTr("Read only")
        Input { width: parent.width; readOnly: true; text: "lobby-screen_1735689600000" }
    }

    FormRow {
        label: qsTr("Disabled")
        Input { width: parent.width; enabled: false; text: qsTr("Not now") }
    }

    Row {
        width: parent.width
        spacing: Theme.unit

        Repeater {
            model: ["xsmall", "small", "base", "large", "xlarge"]

            Input {
                anchors.verticalCenter: parent.verticalCenter
                width: (root.contentWidth - 4 * Theme.unit) / 5
                size: modelData
                text: modelData
            }
        }
    }

    StateRow {
        label: qsTr("Text areas: filled, empty, error")

        TextArea {
            width: root.contentWidth
            height: 9 * Theme.unit
            text: qsTr("Welcome to our house.\nBreakfast is served from seven to ten.\nThe pool is open all day.\n"
                       + "Please ask at the desk for towels.")
        }

        TextArea {
            width: (root.contentWidth - 1.5 * Theme.unit) / 2
            height: 7 * Theme.unit
            placeholderText: qsTr("What should the screen say?")
        }

        TextArea {
            width: (root.contentWidth - 1.5 * Theme.unit) / 2
            height: 7 * Theme.unit
            hasError: true
            text: qsTr("Far too long")
        }
    }
}
