// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// One icon of the icon font in a square of its own, so that icons of different widths line up.
Text {
    id: root

    // Name as in the icon table ("fa-play"). Unknown names show a question mark, the empty name nothing.
    property string faIcon
    property string size: "base"

    text: Theme.glyph(faIcon)
    textFormat: Text.PlainText
    color: Theme.ink
    font.family: Theme.iconFamily
    font.pixelSize: Theme.fontSize(size)
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
