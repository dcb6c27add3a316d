// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// Passes once, `limit` milliseconds after its start by the clock. A Timer counts in frames while something animates,
/// and those can come faster than they should.
Timer {
    id: root

    property int limit
    property double startedAt

    signal passed()

    function look() {
        const waited = Date.now() - startedAt;
        // The clock was set back.
        if (waited < 0)
            startedAt = Date.now();
        if (waited < limit)
            return;
        stop();
        passed();
    }

    interval: Math.min(limit, Limits.clockLook)
    repeat: true
    onTriggered: look()
    onRunningChanged: {
        if (running)
            startedAt = Date.now();
    }
}
