// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// The file browser, in a small place.
Card {
    id: root

    title: qsTr("Files")

    FileBrowser {
        width: parent.width
        height: 48 * Theme.unit
        title: qsTr("Import a project")
    }
}
