// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Feeds any bytes, as lines of text, to the tokenizer of the QML highlighter and checks what holds for every
// line.

#include "quick/highlighter/qmltokenizer.h"

#include <QStringList>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkRuns(const QString& line, const LineTokens& tokens)
{
    int end = 0;
    for (const TokenRun& run : tokens.runs) {
        require(run.start >= end && run.length > 0 && run.kind != TokenClass::Plain);
        end = run.start + run.length;
    }
    require(end <= line.size());
}

void checkBrackets(const QString& line, const LineTokens& tokens)
{
    int previous = -1;
    for (int bracket : tokens.brackets) {
        require(bracket > previous && bracket < line.size());
        require(QStringLiteral("(){}[]").contains(line[bracket]));
        for (const TokenRun& run : tokens.runs)
            require(bracket < run.start || bracket >= run.start + run.length);
        previous = bracket;
    }
}

void checkState(int before, const LineTokens& tokens)
{
    const int state = tokens.state & 0xF;
    require(state == int(LineState::Start) || state == int(LineState::Comment));
    const int depth = before < 0 ? 0 : before >> lineStateBits;
    require(std::abs((tokens.state >> lineStateBits) - depth) <= tokens.brackets.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    LineTokens tokens;
    tokens.state =
        size > 0 ? int(data[0] * 0x01010101U) : -1; // the first byte also makes a state to begin with
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const int before = tokens.state;
        tokenizeQmlLine(line, before, tokens);
        checkRuns(line, tokens);
        checkBrackets(line, tokens);
        checkState(before, tokens);
    }
    return 0;
}
