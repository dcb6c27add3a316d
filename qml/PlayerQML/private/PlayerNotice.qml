// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A short message at the top left of the wall, readable on whatever is shown below it.
Rectangle {
    id: root

    property alias text: label.text

    x: BGUI.Theme.unit
    y: BGUI.Theme.unit
    width: label.implicitWidth + 3 * BGUI.Theme.unit
    height: label.implicitHeight + BGUI.Theme.unit
    radius: BGUI.Theme.radius("large")
    visible: text !== ""
    color: "#c0000000"

    Text {
        id: label
        objectName: "playerMessage"
        anchors.centerIn: parent
        textFormat: Text.PlainText
        color: "white"
        font.family: BGUI.Theme.fontFamily
        font.pixelSize: BGUI.Theme.fontSize("large")
        font.italic: true
    }
}
