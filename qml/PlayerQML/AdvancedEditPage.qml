// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The project's files as source.
ComingPage {
    objectName: "AdvancedEditPage"
    title: qsTr("Edit QML Source (%1)").arg(CAPI.getSSetting("lastProject"))
    faIcon: "fa-code"
    headline: qsTr("The source editor is on its way")
    text: qsTr("Here you will open the files of the project as text.")
}
