// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../fonts.js" as Fonts

/// A name in a menu, in two lines at the most.
Text {
    /// The font in full size, and the share of it that the name stands in.
    property font face
    property real share: 1

    font: Fonts.sized(face, face.pixelSize * share)
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    maximumLineCount: 2
    elide: Text.ElideRight
}
