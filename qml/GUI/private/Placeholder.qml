// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What a text field says while it is empty.
Text {
    id: root

    property Item control

    x: control.leftPadding
    y: control.topPadding
    height: control.height - control.topPadding - control.bottomPadding
    text: control.placeholderText
    textFormat: Text.PlainText
    verticalAlignment: control.verticalAlignment
    elide: Text.ElideRight
    color: control.placeholderTextColor
    font: control.font
}
