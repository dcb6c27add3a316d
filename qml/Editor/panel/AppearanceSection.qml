// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// When a live item enters and exits.
Section {
    title: qsTr("Entering and exiting")

    TimeRow {
        name: "enterTime"
        label: qsTr("Enters after")
    }
    TimeRow {
        name: "exitTime"
        label: qsTr("Exits after")
    }
}
