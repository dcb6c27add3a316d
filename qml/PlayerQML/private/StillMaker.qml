// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import "limits.js" as Limits

/// Takes the stills of projects that are not on the screen: each is there for a moment, at rest, where nobody sees it.
Item {
    id: root

    property var waiting: []

    /// The project's turn is over; its still is a new one if its document could be shown.
    signal made(string project)

    function make(projects) {
        waiting = waiting.concat(projects);
        if (still.project === "")
            next();
    }

    function next() {
        const last = still.project;
        live.clear();
        still.project = waiting.length > 0 ? waiting[0] : "";
        waiting = waiting.slice(1);
        if (last !== "")
            made(last);
        if (still.project === "")
            return;
        const folder = CAPI.getWorkDirectory() + "/" + still.project;
        CAPI.trimComponentCache(); // its own types may be others now
        if (live.load(CAPI.readTextFile(folder + "/main.qml"), folder, root))
            loading.start();
        else
            Qt.callLater(next);
    }

    x: -100000 // out of the window
    Component.onDestruction: live.clear()

    LiveDocument { id: live }

    ProjectStill { id: still }

    Timer {
        id: loading
        interval: Limits.stillLoads
        onTriggered: {
            still.take(live.root);
            taking.start();
        }
    }

    Timer {
        id: taking
        interval: Limits.stillIsTaken
        onTriggered: root.next()
    }
}
