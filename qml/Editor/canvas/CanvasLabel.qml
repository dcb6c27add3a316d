// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A short text on a plate, over the canvas.
Rectangle {
    id: root

    property alias text: label.text

    width: label.implicitWidth + BGUI.Theme.unit
    height: label.implicitHeight + BGUI.Theme.unit / 2
    radius: BGUI.Theme.radius("xsmall")
    color: "#2a6496"

    Text {
        id: label
        anchors.centerIn: parent
        color: "white"
        textFormat: Text.PlainText
        font.family: BGUI.Theme.fontFamily
        font.pixelSize: BGUI.Theme.fontSize("xsmall")
    }
}
