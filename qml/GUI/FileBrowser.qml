// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/format.js" as Format

/// Looks for a file. Arrow keys move, Enter opens, Backspace goes to the folder above, typing jumps to a name, Escape
/// cancels. At the touch sizes a tap opens a folder, else a double click.
FocusScope {
    id: root

    property string title: qsTr("Choose a file")
    property string size: "base"
    property url folder: "file:///"
    // Patterns of the files to show, as "*.zip"; folders are always shown.
    property var nameFilters: ["*"]
    property alias showHidden: list.showHidden

    readonly property url currentFile: list.currentFile
    readonly property string folderAbove: Format.folderAbove(folder)

    // The user chose that file.
    signal fileSelected(url file)
    signal canceled()

    function goUp() {
        if (folderAbove !== "")
            folder = folderAbove;
    }

    implicitWidth: 80 * Theme.unit
    implicitHeight: 60 * Theme.unit

    Keys.onEscapePressed: canceled()
    Keys.onBackPressed: canceled()
    Keys.onPressed: {
        if (event.key === Qt.Key_Backspace) {
            goUp();
            event.accepted = true;
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }

    PageHeader {
        id: header
        title: root.title
        subtitle: root.nameFilters.join("  ")
        onBack: root.canceled()
    }

    Rectangle {
        id: way
        anchors.top: header.bottom
        width: parent.width
        height: up.height + 2 * Theme.unit
        color: Theme.ground

        ActionButton {
            id: up
            x: Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.folderAbove !== ""
            size: root.size
            faIcon: "fa-level-up"
            toolTip: qsTr("Folder above")
            onClicked: root.goUp()
        }

        PathBar {
            anchors.left: up.right
            anchors.right: parent.right
            anchors.margins: Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            size: root.size
            folder: root.folder
            onChosen: root.folder = folder
        }
    }

    FolderList {
        id: list
        anchors.top: way.bottom
        anchors.bottom: footer.top
        width: parent.width
        size: root.size
        folder: root.folder
        nameFilters: root.nameFilters
        onOpened: isFolder ? root.folder = entry : root.fileSelected(entry)
    }

    EmptyState {
        anchors.centerIn: list
        width: list.width - 4 * Theme.unit
        visible: list.count === 0 && !list.isLoading
        isError: !list.isReadable
        faIcon: isError ? "fa-exclamation-triangle" : "fa-folder-open-o"
        title: isError ? qsTr("This folder cannot be opened") : qsTr("Nothing to choose here")
        text: isError ? "" : qsTr("No folders, and no files of this kind: %1").arg(root.nameFilters.join(", "))
    }

    Spinner {
        anchors.centerIn: list
        visible: list.isLoading && list.count === 0
    }

    FileBrowserFooter {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        size: root.size
        file: root.currentFile
        onAccepted: root.fileSelected(root.currentFile)
        onCanceled: root.canceled()
    }
}
