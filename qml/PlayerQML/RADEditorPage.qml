// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The editor for mouse and keyboard.
ComingPage {
    objectName: "RADEditorPage"
    title: qsTr("Editor")
    faIcon: "fa-pencil-square-o"
    headline: qsTr("The visual editor is on its way")
    text: qsTr("Here you will arrange a project by mouse and keyboard. "
               + "Until then, change the project's main.qml with a text editor; "
               + "the player shows it at the next start.")
}
