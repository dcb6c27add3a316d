// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "clock.js" as Clock

/// The time of day for a clock that shows it in steps of `period` milliseconds, renewed at the beginning of each step
/// while it runs. Every step is timed by the clock itself, so that errors do not add up.
Timer {
    id: root

    property int period: 1000
    /// The time as of the last step.
    property date time: new Date()

    function update() {
        const now = new Date();
        root.time = now;
        root.interval = Clock.untilNext(now.getTime(), Math.max(1, root.period));
    }

    repeat: true
    onRunningChanged: {
        if (running)
            update();
    }
    onPeriodChanged: update()
    onTriggered: update()
}
