// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Qt.labs.folderlistmodel 2.15
import ".."

/// The folders and files of one folder. Letters typed jump to the name that begins with them.
ListView {
    id: root

    property url folder
    property alias nameFilters: entries.nameFilters
    property alias showHidden: entries.showHidden
    property string size: "base"

    readonly property bool isTouch: Theme.reach(size, 0) > 0
    readonly property bool isReadable: entries.status !== FolderListModel.Null
    readonly property bool isLoading: entries.status === FolderListModel.Loading
    readonly property url currentFile: currentIndex >= 0 && currentIndex < count && !isFolder(currentIndex)
                                       ? entries.get(currentIndex, "fileUrl") : ""
    property string typed

    // An entry was opened: a folder, or a file that is chosen.
    signal opened(url entry, bool isFolder)

    function isFolder(index) {
        return entries.isFolder(index);
    }

    function open(index) {
        if (index >= 0 && index < count)
            opened(entries.get(index, "fileUrl"), isFolder(index));
    }

    function jumpTo(text) {
        typed += text.toLowerCase();
        forget.restart();
        for (let i = 0; i < count; ++i) {
            if (entries.get(i, "fileName").toLowerCase().startsWith(typed)) {
                currentIndex = i;
                return;
            }
        }
    }

    function step(by) {
        currentIndex = Math.max(0, Math.min(count - 1, currentIndex + by));
    }

    function handleKey(event) {
        const page = Math.max(1, Math.floor(height / Theme.touchTarget));
        const steps = {};
        steps[Qt.Key_PageUp] = -page;
        steps[Qt.Key_PageDown] = page;
        steps[Qt.Key_Home] = -count;
        steps[Qt.Key_End] = count;
        if (steps[event.key] !== undefined)
            step(steps[event.key]);
        else if (event.text > " " && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)))
            jumpTo(event.text);
        else
            event.accepted = false;
    }

    clip: true
    focus: true
    activeFocusOnTab: true
    keyNavigationEnabled: true
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: 0
    Accessible.role: Accessible.List

    T.ScrollBar.vertical: ScrollBar {}

    Keys.onReturnPressed: open(currentIndex)
    Keys.onEnterPressed: open(currentIndex)
    Keys.onPressed: { event.accepted = true; handleKey(event); }

    Timer {
        id: forget
        interval: 1000
        onTriggered: root.typed = ""
    }

    model: FolderListModel {
        id: entries

        property bool isCompleted: false

        // The model decodes the path twice, but not when it looks at its first folder.
        folder: isCompleted ? String(root.folder).replace(/%/g, "%25") : root.folder
        Component.onCompleted: isCompleted = true
        showDirsFirst: true
        showDotAndDotDot: false
        sortCaseSensitive: false
        caseSensitive: false
        onFolderChanged: root.currentIndex = 0
    }

    delegate: FileRow {
        size: root.size
        highlighted: ListView.isCurrentItem
        onClicked: {
            root.forceActiveFocus();
            root.currentIndex = index;
            if (root.isTouch && fileIsDir)
                root.open(index);
        }
        onDoubleClicked: root.open(index)
    }
}
