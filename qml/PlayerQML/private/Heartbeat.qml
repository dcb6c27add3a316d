// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../SharedVars.js" as SS
import "limits.js" as Limits

/// Tells the account's database once a minute that this player is alive, and with sharing on sends a screenshot
/// every twentieth time. The answer sets CAPI.iConnected.
Timer {
    id: root

    property RequestTimer timeOut: RequestTimer {}
    property int sharedTicks: 0

    readonly property int screenshotWidth: 300

    function sendScreenshotWhenDue() {
        if (!CAPI.getBSetting("shareFolder"))
            return;
        if (sharedTicks % Limits.screenshotPeriod === 0)
            CAPI.uploadScreenshot(screenshotWidth);
        ++sharedTicks;
    }

    function takeAnswer(success) {
        CAPI.iConnected = success;
        if (success)
            SS.checkUpSubscriptions();
    }

    interval: Limits.firstHeartbeat
    repeat: true
    onTriggered: {
        interval = Limits.heartbeatPeriod;
        timeOut.abort();
        SS.heartbeat(CAPI.getSSetting("userEmail"), CAPI.getSSetting("playerUID"), takeAnswer, timeOut);
        sendScreenshotWhenDue();
    }
}
