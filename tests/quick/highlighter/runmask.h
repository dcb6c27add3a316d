// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/highlighter/qmltokenizer.h"

#include <QString>

/// A line's tokens as text of the line's length: a letter for the class of each coloured character, a capital
/// where its run begins, brackets as they are, a dot for the rest.
inline QString runMask(const QString& line, const LineTokens& tokens)
{
    static const QHash<int, char> letters{{2, 'c'}, {3, 'n'}, {4, 's'},  {5, 'o'},
                                          {6, 'k'}, {7, 'b'}, {15, 't'}, {16, 'p'}};
    QString mask(line.size(), QLatin1Char('.'));
    for (const TokenRun& run : tokens.runs) {
        const QLatin1Char letter(letters.value(int(run.kind), '?'));
        mask.replace(run.start, run.length, QString(run.length, letter));
        mask[run.start] = QChar(letter).toUpper();
    }
    for (int bracket : tokens.brackets)
        mask[bracket] = line[bracket];
    return mask;
}
