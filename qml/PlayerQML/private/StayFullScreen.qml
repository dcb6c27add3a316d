// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// Asks for the full screen again and again for two minutes: the window system may restore the window shortly after
/// start.
Timer {
    property int rounds: 0

    interval: Limits.fullScreenInterval
    repeat: true
    running: true
    triggeredOnStart: true
    onTriggered: {
        CAPI.setFullScreen(true);
        if (++rounds === Limits.fullScreenRounds)
            stop();
    }
}
