// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A line of the standby picture.
Text {
    width: parent.width
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    elide: Text.ElideRight
    maximumLineCount: 6
    color: "white"
    font.family: BGUI.Theme.fontFamily
}
