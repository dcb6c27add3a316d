// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "private"

/// Looks for the archive of a project, from the current project's folder on, and begins to import it. How that goes
/// on shows the page of projects.
StackPage {
    id: root

    function urlOf(path) {
        return "file://" + path.split("/").map(encodeURIComponent).join("/");
    }

    objectName: "ImportPage"

    BGUI.FileBrowser {
        anchors.fill: parent
        focus: true
        title: qsTr("Import a project")
        nameFilters: ["*.zip"]
        folder: root.urlOf(CAPI.getBaseFolder())
        onCanceled: root.back()
        onFileSelected: {
            imports.start(file);
            root.back();
        }
    }

    Imports {
        id: imports
    }
}
