// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../SharedVars.js" as SS
import "limits.js" as Limits

/// Tells the account's database once a minute that this player is alive, and with sharing on sends a screenshot
/// every twentieth time. The answer sets CAPI.iConnected. Without an account nothing is sent.
Timer {
    id: root

    property RequestTimer timeOut: RequestTimer {}
    property int sharedTicks: 0

    readonly property int screenshotWidth: 300

    // The cloud has answered well.
    signal answered()

    function sendScreenshotWhenDue() {
        if (!CAPI.getBSetting("shareFolder"))
            return;
        if (sharedTicks % Limits.screenshotPeriod === 0)
            CAPI.uploadScreenshot(screenshotWidth);
        ++sharedTicks;
    }

    function takeAnswer(success) {
        CAPI.iConnected = success;
        if (!success)
            return;
        SS.checkUpSubscriptions();
        answered();
    }

    interval: Limits.firstHeartbeat
    repeat: true
    onTriggered: {
        interval = Limits.heartbeatPeriod;
        timeOut.abort();
        const user = CAPI.getSSetting("userEmail");
        if (user === "")
            return;
        SS.heartbeat(user, CAPI.getSSetting("playerUID"), takeAnswer, timeOut);
        sendScreenshotWhenDue();
    }
}
