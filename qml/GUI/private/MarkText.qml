// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// The text beside a check box, radio or switch.
Text {
    id: root

    property Item control

    leftPadding: control.text === "" ? control.indicator.width : control.indicator.width + control.spacing
    text: control.text
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    elide: Text.ElideRight
    color: Theme.ink
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(control.size)
}
