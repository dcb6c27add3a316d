// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// How to begin, and what the keys do.
FormPage {
    id: root

    readonly property var keys: [
        {"name": "Esc", "effect": qsTr("Goes back; on the main page quits the program")},
        {"name": "Tab", "effect": qsTr("Goes from control to control; Space or Enter presses")},
        {"name": "F1", "effect": qsTr("On the main page opens this page")},
        {"name": "Ctrl+E", "effect": qsTr("On the main page saves a project as a zip archive")},
        {"name": "Ctrl+I", "effect": qsTr("In the list of projects imports a zip archive")},
        {"name": "Del", "effect": qsTr("In the list of projects deletes the selected one")}
    ]

    objectName: "HelpPage"
    title: qsTr("Help")

    Sheet {
        BGUI.Label {
            width: parent.width
            size: "h2"
            text: "Wellcome to Nuvex"
        }

        BGUI.Label {
            width: parent.width
            size: "large"
            lineHeight: 1.3
            text: qsTr("A project is a folder with a main.qml and its pictures, videos and fonts. Open one, and "
                       + "this player shows it full screen at every start. What it does at the start is set in "
                       + "the settings.")
        }

        Repeater {
            model: root.keys

            Row {
                width: parent.width
                spacing: 2 * BGUI.Theme.unit

                KeyCap {
                    width: 9 * BGUI.Theme.unit
                    text: modelData.name
                }

                BGUI.Label {
                    width: parent.width - 11 * BGUI.Theme.unit
                    anchors.verticalCenter: parent.verticalCenter
                    text: modelData.effect
                }
            }
        }

        Item {
            width: parent.width
            height: BGUI.Theme.unit
        }

        BGUI.Button {
            focus: true
            size: "large"
            type: "primary"
            text: qsTr("Go back")
            onClicked: root.back()
        }
    }
}
