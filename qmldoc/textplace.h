// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A place in a text as messages name it: 1-based, the column in UTF-16 code units.
///
/// Lines are those of the QML engine: they end with LF, CR, CRLF, U+2028 or U+2029.
struct TextPlace
{
    int line = 1;
    int column = 1;
};

/// The place of the character at `offset`; that of the end for any offset behind it.
TextPlace textPlace(const QString& text, int offset);

/// Offset of `place`; that of the line's end, or of the text's, for a place behind it.
int textOffset(const QString& text, TextPlace place);

/// Number of line ends among the characters [begin, end).
int lineEnds(const QString& text, int begin, int end);

/// Whether `c` ends a line. CRLF is one end.
inline bool isLineEnd(QChar c)
{
    return c == '\n' || c == '\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}
