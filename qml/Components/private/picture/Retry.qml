// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Qt.labs.folderlistmodel 2.15
import "../limits.js" as Limits

/// Watches over a media address that failed, and says when a new attempt makes sense: a file that came back or
/// changed, a server that answers again. The pauses double from one second to one minute.
Timer {
    id: root

    /// The address, whether it has failed, and whether that is seen; the watch runs while both are so.
    property url source
    property bool failed: false
    property bool isSeen: true
    readonly property bool isWatching: failed && isSeen
    property string watched: ""
    // What was at the address at the last look, and whether that is still to be found out.
    property string lastSeen: ""
    property bool isFirstLook: false
    // Since when it was tried, in milliseconds since 1970: what was written since is news at the first look already.
    property real triedAt: Date.now()
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
            if (status !== FolderListModel.Ready)
                return;
            const written = count > 0 ? get(0, "fileModified").getTime() : NaN;
            Qt.callLater(root.compare, count > 0 ? get(0, "fileSize") + " of " + written : "", written);
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
        root.triedAt = Date.now();
    }

    // A file that failed is to change before it is tried again; a server only has to answer. Called by both handlers
    // below, as either may run first.
    function noteFailure() {
        if (root.watched === String(root.source))
            return;
        root.watched = String(root.source);
        root.pause = Limits.firstRetry;
        root.lastSeen = "";
        root.isFirstLook = root.isFile;
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

    // `mark` tells what is there, "" for nothing; `written` when that was written, where it is known.
    function compare(mark, written) {
        if (!root.line.active)
            return;
        const isOld = root.isFirstLook && !(written >= root.triedAt - Limits.fileClockTick);
        const isNews = mark !== "" && mark !== root.lastSeen && !isOld;
        root.lastSeen = mark;
        root.line.active = false;
        if (isNews)
            root.worthTrying();
    }

    interval: root.pause * (1 + 0.2 * Math.random())
    running: root.isWatching
    repeat: true
    onSourceChanged: root.triedAt = Date.now()
    onFailedChanged: {
        if (root.failed)
            noteFailure();
    }
    onIsWatchingChanged: {
        root.line.active = false;
        if (!root.isWatching)
            return;
        noteFailure();
        if (root.isFile)
            ask();
    }
    onTriggered: look()
}
