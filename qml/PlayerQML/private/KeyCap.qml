// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The name of a key, drawn as one.
Rectangle {
    property alias text: label.text

    height: 4 * BGUI.Theme.unit
    radius: BGUI.Theme.radius("base")
    color: BGUI.Theme.sunken
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    BGUI.Label {
        id: label
        anchors.centerIn: parent
        font.family: BGUI.Theme.codeFamily
    }
}
