// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The time, centred in its area.
Label {
    id: root

    property string format: "hh:mm"
    property date time: new Date()

    text: time.toLocaleString(Qt.locale("en_GB"), format)
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter

    Timer {
        interval: 1000
        running: true
        repeat: true
        onTriggered: root.time = new Date()
    }
}
