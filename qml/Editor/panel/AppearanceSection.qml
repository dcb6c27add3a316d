// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// When a live item enters and exits.
Section {
    title: qsTr("Entrance and exit")

    TimeRow {
        name: "enterTime"
        label: qsTr("Enter after")
    }
    TimeRow {
        name: "exitTime"
        label: qsTr("Exit after")
    }
}
