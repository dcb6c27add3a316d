// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// Aborts a request that takes too long; handed to the cloud calls of the shared script, which set `request`, start it
/// and stop it. A request that is still under way ends with its owner.
ClockTimer {
    id: root

    property var request: null

    function abort() {
        stop();
        if (request)
            request.abort();
    }

    limit: Limits.requestDeadline
    onPassed: abort()
    Component.onDestruction: abort()
}
