// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/highlighter/tokenclass.h"

#include <QStringView>
#include <QVector>

/// What a line ends in. Only Comment outlives its line.
enum class LineState {
    Start = 0,
    Number = 1,
    Identifier = 2,
    String = 3,
    Comment = 4,
    Regex = 5,
};

/// A stretch of one line to colour.
struct TokenRun
{
    int start;  ///< offset into the line, UTF-16 code units
    int length; ///< at least 1
    TokenClass kind;
};

/// What the tokenizer finds in one line. Handing the same object to the next line saves its allocations.
struct LineTokens
{
    QVector<TokenRun> runs; ///< ascending and apart from each other; brackets and unknown names have none
    QVector<int> brackets;  ///< ascending offsets of ( ) { } [ ] outside literals and comments
    int state = 0;          ///< to be handed to the next line, see lineState()
};

/// Number of bits of a line's state that hold the LineState; the rest is the brace depth.
constexpr int lineStateBits = 4;

/// The state of a line that ends in `state` with `depth` more opening than closing braces before it. A depth
/// that does not fit is cut to what fits.
int lineState(int depth, LineState state);

/// Splits `line`, which holds no line end, into coloured runs and brackets. `previousState` is the state of
/// the line before; a negative one stands for the start of a document. Deliberately simple: a slash that
/// opens no comment opens a regular expression up to the next slash, also where a division is meant, and a
/// literal that is not closed on its line stays uncoloured. Linear in the line's length. Any thread.
void tokenizeQmlLine(QStringView line, int previousState, LineTokens& tokens);
