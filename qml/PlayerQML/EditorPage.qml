// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The editor for touch.
ComingPage {
    objectName: "EditorPage"
    title: qsTr("Editor")
    faIcon: "fa-pencil-square-o"
    headline: qsTr("The touch editor is on its way")
    text: qsTr("Here you will arrange a project by touch. "
               + "Until then, change the project's main.qml on a computer and import it.")
}
