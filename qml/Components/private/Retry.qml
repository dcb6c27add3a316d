// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Qt.labs.folderlistmodel 2.15
import "limits.js" as Limits

/// Watches over a media address that failed, and says when a new attempt makes sense: a file that came back or
/// changed, a server that answers again. The pauses double from one second to one minute.
Timer {
    id: root

    /// The address, and whether it has failed; the watch runs while it has.
    property url source
    property bool failed: false
    property string watched: ""
    // What was at the address at the last look, and whether that is still to be found out.
    property string lastSeen: ""
    property bool isFirstLook: false
    property real pause: Limits.firstRetry
    readonly property bool isFile: /^file:/.test(source)

    // One for each look: where a server or a network drive keeps silent, the next look ends the one before.
    property Loader line: Loader {
        active: false
        sourceComponent: root.isFile ? fileLook : serverLook
    }

    // Looks beside the screen's thread, and only at size and time.
    property Component fileLook: FolderListModel {
        folder: String(root.source).replace(/\/[^\/]*$/, "")
        nameFilters: [decodeURIComponent(String(root.source).replace(/^.*\//, "")).replace(/[\[*?]/g, "[$&]")]
        showDirs: false
        showHidden: true
        caseSensitive: true
        onStatusChanged: {
            if (status === FolderListModel.Ready)
                Qt.callLater(root.compare, count > 0 ? get(0, "fileSize") + " of " + get(0, "fileModified").getTime() : "");
        }
    }

    property Component serverLook: WorkerScript {
        source: "look.js"
        onMessage: Qt.callLater(root.compare, messageObject)
        Component.onCompleted: sendMessage(String(root.source))
    }

    /// The address is worth another attempt.
    signal worthTrying()

    /// To be called when the address has worked: the next failure starts a new watch.
    function forget() {
        root.watched = "";
    }

    function begin() {
        if (root.watched !== String(root.source)) {
            root.watched = String(root.source);
            root.pause = Limits.firstRetry;
            root.lastSeen = "";
        }
        // A file that failed is to change before it is tried again; a server only has to answer.
        root.isFirstLook = root.isFile;
        if (root.isFile)
            ask();
    }

    function look() {
        root.pause = Math.min(root.pause * 2, Limits.longestRetry);
        root.isFirstLook = false;
        if (/^(file|https?):/.test(root.source))
            ask();
    }

    function ask() {
        root.line.active = false;
        root.line.active = true;
    }

    function compare(mark) {
        if (!root.line.active)
            return;
        const isNews = mark !== "" && mark !== root.lastSeen && !root.isFirstLook;
        root.lastSeen = mark;
        root.line.active = false;
        if (isNews)
            root.worthTrying();
    }

    interval: root.pause * (1 + 0.2 * Math.random())
    running: root.failed
    repeat: true
    onFailedChanged: {
        root.line.active = false;
        if (root.failed)
            begin();
    }
    onTriggered: look()
}
