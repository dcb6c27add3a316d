// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/spot.h"

#include "qmldoc/edits/indentation.h"

namespace {

// The indentation of what a body holds.
QString innerIndentation(const Passage& passage, int parent)
{
    const Outline& outline = passage.outline();
    for (int i = parent + 1; i < outline.member(parent).next; i = outline.member(i).next) {
        if (passage.lineBegin(outline.member(i).begin) >= 0)
            return passage.lineIndentation(outline.member(i).begin);
    }
    return passage.lineIndentation(outline.member(parent).begin) + "    ";
}

} // namespace

SourceEdit Spot::edit(const QString& code, bool isFirst, bool isLast) const
{
    const QString text = before + indented(code, indentation) + behind + (isLast ? behindLast : QString());
    return {isFirst ? begin : end, end, text, 0, 1};
}

Spot spotBefore(const Passage& passage, int sibling)
{
    const int begin = passage.outline().member(sibling).begin;
    const int line = passage.lineBegin(begin);
    const QString indentation = passage.lineIndentation(begin);
    if (line < 0)
        return {begin, begin, QString(), " ", QString(), indentation};
    return {line, line, indentation, passage.lineEnd(), QString(), indentation};
}

Spot spotAtEnd(const Passage& passage, int parent)
{
    const int brace = passage.outline().member(parent).end - 1;
    const int line = passage.lineBegin(brace);
    const QString indentation = innerIndentation(passage, parent);
    const QString lineEnd = passage.lineEnd();
    if (line >= 0)
        return {line, line, indentation, lineEnd, QString(), indentation};
    int begin = brace;
    while (passage.text().at(begin - 1).isSpace())
        --begin;
    const QString behindLast = lineEnd + passage.lineIndentation(brace);
    return {begin, brace, lineEnd + indentation, QString(), behindLast, indentation};
}
