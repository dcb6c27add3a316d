// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files

/// Looks for a file over the whole window. Before a file of the project would be replaced by another of the same name,
/// it asks.
BGUI.ModalPopup {
    id: root

    property string size: "base"
    property alias nameFilters: browser.nameFilters
    property alias folder: browser.folder

    /// The user chose that file.
    signal picked(url file)

    function offer(file) {
        question.file = file;
        if (Files.wouldReplace(file))
            question.open();
        else
            take();
    }

    function take() {
        root.close();
        root.picked(question.file);
    }

    width: parent ? Math.min(parent.width - 4 * BGUI.Theme.unit, 100 * BGUI.Theme.unit) : 0
    height: parent ? Math.min(parent.height - 4 * BGUI.Theme.unit, 75 * BGUI.Theme.unit) : 0
    closePolicy: T.Popup.CloseOnEscape

    contentItem: BGUI.FileBrowser {
        id: browser
        focus: true
        size: root.size
        folder: Files.startFolder()
        onFileSelected: root.offer(file)
        onCanceled: root.close()
    }

    BGUI.MessageBox {
        id: question
        property url file
        title: qsTr("Replace the project's file?")
        text: qsTr("The project has another file of the name %1. Every item that shows it will show the new one.")
              .arg(Files.targetOf(file).replace(Files.folder + "/", ""))
        acceptText: qsTr("Replace")
        rejectText: qsTr("Cancel")
        type: "danger"
        onAccepted: root.take()
    }
}
