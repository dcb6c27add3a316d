.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Fonts in another size.

/// `font` with letters of `pixelSize` pixels, at least one.
function sized(font, pixelSize) {
    return Qt.font({
        family: font.family, bold: font.bold, weight: font.weight, italic: font.italic, underline: font.underline,
        strikeout: font.strikeout, capitalization: font.capitalization, letterSpacing: font.letterSpacing,
        wordSpacing: font.wordSpacing, pixelSize: Math.max(1, Math.round(pixelSize))
    });
}
