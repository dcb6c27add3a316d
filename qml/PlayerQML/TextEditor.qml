// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// One file of the project as text.
ComingPage {
    objectName: "TextEditor"
    title: qsTr("Text Editor")
    faIcon: "fa-file-text-o"
    headline: qsTr("The text editor is on its way")
    text: qsTr("Here you will read and change a file of the project.")
}
