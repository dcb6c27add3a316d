// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// One line of a menu: shrinks, then ends in dots, rather than leave its place. Takes no room while it is empty.
Text {
    /// Size of the text in pixels.
    property real size: 24
    property bool isBold: false

    visible: text !== ""
    font.family: isBold ? "Manrope" : "Open Sans"
    font.bold: isBold
    font.pixelSize: Math.max(1, Math.round(size))
    minimumPixelSize: Math.max(1, Math.round(size * 0.6))
    fontSizeMode: Text.HorizontalFit
    elide: Text.ElideRight
    maximumLineCount: 1
    textFormat: Text.PlainText
}
