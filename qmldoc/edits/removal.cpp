// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/removal.h"

#include "qmldoc/textplace.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace {

using Member = Outline::Member;

std::vector<int> childrenOf(const Outline& outline, int parent)
{
    std::vector<int> children;
    for (int i = parent + 1; i < outline.member(parent).next; i = outline.member(i).next)
        children.push_back(i);
    return children;
}

// Where the comma stands behind `member`, one of a list.
int commaBehind(const Outline& outline, const Member& member)
{
    return tokenAt(outline.text(), member.end);
}

// Takes out all that a list holds.
SourceEdit emptied(const Outline& outline, int list)
{
    const Member& member = outline.member(list);
    const Member& owner = outline.member(member.parent);
    if (owner.kind == Member::Declaration)
        return {owner.nameEnd, member.end, QString()};
    QString rest;
    int begin = member.valueBegin;
    for (const int child : childrenOf(outline, list)) {
        rest += outline.text().midRef(begin, outline.member(child).begin - begin);
        begin = outline.member(child).end;
        const int comma = commaBehind(outline, outline.member(child));
        if (outline.text().at(comma) == ',') {
            rest += outline.text().midRef(begin, comma - begin);
            begin = comma + 1;
        }
    }
    return {member.valueBegin, member.end, rest + outline.text().midRef(begin, member.end - begin)};
}

// Takes out the characters [begin, end) and [other, otherEnd) behind them, and the blanks between; a comment
// stays.
void takeBoth(const QString& text, int begin, int end, int other, int otherEnd,
              std::vector<SourceEdit>& edits)
{
    const bool isBlank = text.midRef(end, other - end).trimmed().isEmpty();
    edits.push_back({begin, isBlank ? otherEnd : end, QString()});
    if (!isBlank)
        edits.push_back({other, otherEnd, QString()});
}

// Takes `gone` out of a list that keeps others.
void shorten(const Outline& outline, int list, const std::set<int>& gone, std::vector<SourceEdit>& edits)
{
    const std::vector<int> children = childrenOf(outline, list);
    const auto isGone = [&](int i) { return gone.count(i) > 0; };
    const auto lastKept = std::find_if_not(children.crbegin(), children.crend(), isGone).base();
    for (auto child = children.cbegin(); child != children.cend(); ++child) {
        if (!isGone(*child))
            continue;
        const Member& member = outline.member(*child);
        const int comma = commaBehind(outline, child < lastKept ? member : outline.member(*(child - 1)));
        if (child < lastKept)
            takeBoth(outline.text(), member.begin, member.end, comma, comma + 1, edits);
        else
            takeBoth(outline.text(), comma, comma + 1, member.begin, member.end, edits);
    }
}

// Takes an object out of a body; with the line end behind it if it has its lines for itself.
SourceEdit takenOut(const Passage& passage, const Member& object, Lines lines)
{
    const QString& text = passage.text();
    const int lineBegin = lines == Lines::EmptyGo ? passage.lineBegin(object.begin) : -1;
    int end = object.end;
    while (end < text.size() && (text.at(end) == ' ' || text.at(end) == '\t'))
        ++end;
    if (lineBegin >= 0 && end < text.size() && isLineEnd(text.at(end)))
        return {lineBegin, end + (text.midRef(end, 2) == QLatin1String("\r\n") ? 2 : 1), QString()};
    const bool hasBlank = lines == Lines::EmptyGo && text.at(object.begin - 1) == ' ';
    return {object.begin - hasBlank, object.end, QString()};
}

} // namespace

QString removalFault(const Passage& passage, const std::vector<int>& objects)
{
    for (const int object : objects) {
        if (object < 0)
            return QCoreApplication::translate("SourceEdits", "The source is not as the editor knows it.");
        const int parent = passage.outline().member(object).parent;
        if (parent < 0)
            return QCoreApplication::translate("SourceEdits", "The document cannot do without this object.");
        if (passage.outline().member(parent).kind == Member::InlineComponent)
            return QCoreApplication::translate("SourceEdits", "A component cannot do without this object.");
    }
    return QString();
}

std::vector<SourceEdit> removalEdits(const Passage& passage, const std::vector<int>& objects, Lines lines)
{
    const Outline& outline = passage.outline();
    const std::set<int> gone(objects.cbegin(), objects.cend());
    std::set<int> lists;
    std::vector<SourceEdit> edits;
    for (const int object : gone) {
        const int parent = outline.member(object).parent;
        if (outline.member(parent).kind == Member::ListBinding)
            lists.insert(parent);
        else
            edits.push_back(takenOut(passage, outline.member(object), lines));
    }
    for (const int list : lists) {
        const std::vector<int> children = childrenOf(outline, list);
        if (std::all_of(children.cbegin(), children.cend(), [&](int i) { return gone.count(i) > 0; }))
            edits.push_back(emptied(outline, list));
        else
            shorten(outline, list, gone, edits);
    }
    return edits;
}
