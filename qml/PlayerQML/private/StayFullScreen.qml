// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Asks for the full screen again and again for two minutes: the window system may restore the window shortly after
/// start.
Timer {
    property int rounds: 0

    interval: 5000
    repeat: true
    running: true
    triggeredOnStart: true
    onTriggered: {
        CAPI.setFullScreen(true);
        if (++rounds === 24)
            stop();
    }
}
