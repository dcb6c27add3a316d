// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Parts two groups of the toolbar.
Item {
    width: 2 * BGUI.Theme.unit
    height: 3 * BGUI.Theme.unit
    anchors.verticalCenter: parent ? parent.verticalCenter : undefined

    Rectangle {
        anchors.centerIn: parent
        width: Math.max(1, dp)
        height: parent.height
        color: BGUI.Theme.barInk
        opacity: 0.2
    }
}
