// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// Looks for the archive of a project, from the current project's folder on.
StackPage {
    id: root

    // The user chose that archive; the page has closed.
    signal chosen(url archive)

    objectName: "ImportPage"

    BGUI.FileBrowser {
        anchors.fill: parent
        focus: true
        title: qsTr("Import a project")
        nameFilters: ["*.zip"]
        folder: "file://" + CAPI.getBaseFolder()
        onCanceled: root.back()
        onFileSelected: {
            root.back();
            root.chosen(file);
        }
    }
}
