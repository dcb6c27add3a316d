// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/textplace.h"

#include <algorithm>

namespace {

// Where the line ends that begins at `position`.
int endOfLine(const QString& text, int position)
{
    return int(std::find_if(text.cbegin() + position, text.cend(), isLineEnd) - text.cbegin());
}

bool isCrLf(const QString& text, int position)
{
    return text.midRef(position, 2) == QLatin1String("\r\n");
}

} // namespace

int lineEnds(const QString& text, int begin, int end)
{
    int count = 0;
    for (int i = begin; i < end; ++i)
        count += isLineEnd(text.at(i)) && !(i > begin && isCrLf(text, i - 1));
    return count;
}

TextPlace textPlace(const QString& text, int offset)
{
    const auto at = text.cbegin() + std::clamp(offset, 0, text.size());
    const auto lineEnd = std::find_if(std::make_reverse_iterator(at), text.crend(), isLineEnd);
    return {1 + lineEnds(text, 0, int(at - text.cbegin())), 1 + int(at - lineEnd.base())};
}

int textOffset(const QString& text, TextPlace place)
{
    int begin = 0;
    for (int line = 1; line < place.line; ++line) {
        const int end = endOfLine(text, begin);
        begin = std::min(end + (isCrLf(text, end) ? 2 : 1), text.size());
    }
    return std::clamp(begin + place.column - 1, begin, endOfLine(text, begin));
}
