// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// Watches over a media address that failed, and says when a new attempt makes sense: a file that came back or
/// changed, a server that answers again. The pauses double from one second to one minute.
Timer {
    id: root

    /// The address, and whether it has failed; the watch runs while it has.
    property url source
    property bool failed: false
    property string watched: ""
    property string lastSeen: ""
    property real pause: Limits.firstRetry

    /// The address is worth another attempt.
    signal worthTrying()

    /// To be called when the address has worked: the next failure starts a new watch.
    function forget() {
        root.watched = "";
    }

    function isFile() {
        return String(root.source).indexOf("file:") === 0;
    }

    // What is at the address now; "" while there is nothing.
    function fileMark() {
        var path = String(root.source);
        return CAPI.fileExist(path) ? "file of " + CAPI.readTextFile(path).length : "";
    }

    function begin() {
        if (root.watched !== String(root.source)) {
            root.watched = String(root.source);
            root.pause = Limits.firstRetry;
            root.lastSeen = "";
        }
        if (isFile())
            root.lastSeen = fileMark();
    }

    function look() {
        root.pause = Math.min(root.pause * 2, Limits.longestRetry);
        if (isFile())
            compare(fileMark());
        else if (/^https?:/.test(root.source))
            askServer();
    }

    function compare(mark) {
        var isNews = mark !== "" && mark !== root.lastSeen;
        root.lastSeen = mark;
        if (isNews)
            root.worthTrying();
    }

    function askServer() {
        var request = new XMLHttpRequest();
        request.onreadystatechange = function() {
            if (request.readyState !== XMLHttpRequest.DONE || !root || !root.failed)
                return;
            compare(request.status === 200 ? "served " + request.getResponseHeader("Last-Modified")
                                                       + request.getResponseHeader("Content-Length") : "");
        };
        request.open("HEAD", root.source);
        request.send();
    }

    interval: root.pause * (1 + 0.2 * Math.random())
    running: root.failed
    repeat: true
    onFailedChanged: {
        if (root.failed)
            begin();
    }
    onTriggered: look()
}
