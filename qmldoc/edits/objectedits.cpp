// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/objectedits.h"

#include "qmldoc/edits/removal.h"
#include "qmldoc/edits/reordering.h"
#include "qmldoc/edits/spot.h"
#include "qmldoc/textplace.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Member = Outline::Member;

Change refused(const char* reason)
{
    return Change::refused(QCoreApplication::translate("SourceEdits", reason));
}

Change notAsKnown()
{
    return refused("The source is not as the editor knows it.");
}

bool contains(const std::vector<int>& list, int value)
{
    return std::find(list.cbegin(), list.cend(), value) != list.cend();
}

// Number of objects that `code` is the source of; -1 when it holds anything else.
int countObjects(const QString& code)
{
    const Outline outline("A{" + code + "\n}");
    int count = 0;
    for (int i = 1; i < int(outline.members().size()); i = outline.member(i).next, ++count) {
        if (outline.member(i).kind != Member::Object)
            return -1;
    }
    return outline.isValid() ? count : -1;
}

// The indices of the objects that begin at `offsets` of the source, each once and without those within
// another of them; an unknown one is -1.
std::vector<int> outermost(const Passage& passage, const std::vector<int>& offsets)
{
    std::vector<int> all(offsets.size());
    std::transform(offsets.cbegin(), offsets.cend(), all.begin(),
                   [&](int offset) { return passage.objectAt(offset); });
    std::vector<int> kept;
    for (const int i : all) {
        const bool isWithinOther = std::any_of(all.cbegin(), all.cend(), [&](int other) {
            return other >= 0 && other < i && i < passage.outline().member(other).next;
        });
        if (!isWithinOther && !contains(kept, i))
            kept.push_back(i);
    }
    return kept;
}

// The first object at or behind `sibling` in its body that is none of `moving`; -1 when there is none.
int firstStaying(const Outline& outline, int sibling, const std::vector<int>& moving)
{
    const int end = sibling < 0 ? sibling : outline.member(outline.member(sibling).parent).next;
    while (sibling < end && (outline.member(sibling).kind != Member::Object || contains(moving, sibling)))
        sibling = outline.member(sibling).next;
    return sibling < end ? sibling : -1;
}

// Whether the document has the import `line`, in whatever version.
bool isImported(const Outline& outline, const QString& line)
{
    const Outline wanted(line + "\nA{}");
    return wanted.head().size() == 1 &&
           std::any_of(outline.head().cbegin(), outline.head().cend(), [&](const Outline::HeadLine& head) {
               return head.module == wanted.head()[0].module && head.qualifier == wanted.head()[0].qualifier;
           });
}

// Where import lines go: behind the last one and what is noted on its line.
int endOfImports(const Outline& outline)
{
    const int end = outline.head().back().end;
    const auto begin = outline.text().cbegin() + end;
    const auto next = outline.text().cbegin() + tokenAt(outline.text(), end);
    const int noted = int(std::find_if(begin, next, isLineEnd) - begin);
    return outline.text().midRef(end, noted).contains(QLatin1String("/*")) ? end : end + noted;
}

// What gives the document the imports that it lacks, if there are any.
std::vector<SourceEdit> importEdits(const Passage& passage, const QStringList& lines)
{
    const Outline& outline = passage.outline();
    const bool isFirst = outline.head().empty();
    SourceEdit edit;
    edit.begin = edit.end = isFirst ? tokenAt(outline.text(), 0) : endOfImports(outline);
    for (const QString& line : lines) {
        if (isImported(outline, line))
            continue;
        edit.text += isFirst ? line + passage.lineEnd() : passage.lineEnd() + line;
        ++edit.headLines;
    }
    return edit.headLines > 0 ? std::vector<SourceEdit>{edit} : std::vector<SourceEdit>();
}

// Whether the objects `moving` stay in the body of `target`, or in one list in it.
bool isOneBody(const Outline& outline, const std::vector<int>& moving, int target, int before)
{
    const auto holder = [&](int i) { return i < 0 ? target : outline.member(i).parent; };
    const int body = holder(before);
    const bool isOfTarget = body == target || holder(body) == target;
    return isOfTarget && !moving.empty() &&
           std::all_of(moving.cbegin(), moving.cend(), [&](int i) { return holder(i) == body; });
}

// The edits that take the objects `moving` out of their bodies and put them into that of `target`.
std::vector<SourceEdit> transferEdits(const Passage& passage, const std::vector<int>& moving, int target,
                                      int before)
{
    const Outline& outline = passage.outline();
    const int sibling = firstStaying(outline, before, moving);
    const Spot spot = sibling < 0 ? spotAtEnd(passage, target) : spotBefore(passage, sibling);
    std::vector<SourceEdit> edits = removalEdits(passage, moving, Lines::EmptyGo);
    for (const int i : moving) {
        const QString code =
            passage.text().mid(outline.member(i).begin, outline.member(i).end - outline.member(i).begin);
        edits.push_back(spot.edit(code, i == moving.front(), i == moving.back()));
        edits.back().movedBegin = outline.member(i).begin;
        edits.back().movedEnd = outline.member(i).end;
    }
    return edits;
}

} // namespace

Change addObjects(const Passage& passage, int parent, const QString& code, const QStringList& imports)
{
    const int object = passage.objectAt(parent);
    const int count = countObjects(code);
    if (object < 0)
        return notAsKnown();
    if (count < 1)
        return refused("This is not the source of an object.");
    const int brace = passage.outline().member(object).end - 1;
    std::vector<SourceEdit> edits = importEdits(passage, imports);
    edits.push_back({brace, brace, passage.withLineEnds(code), 0, count});
    const Change asItStands = passage.settledChange(edits);
    edits.back().text.prepend(passage.lineEnd());
    return asItStands.isPossible() ? asItStands : passage.settledChange(edits);
}

Change insertObject(const Passage& passage, int parent, int before, const QString& code,
                    const QStringList& imports)
{
    const int object = passage.objectAt(parent);
    const int sibling = before < 0 ? -1 : passage.objectAt(before);
    if (object < 0)
        return notAsKnown();
    if (before >= 0 && (sibling < 0 || passage.outline().member(sibling).parent != object))
        return refused("The place is not in that object.");
    if (countObjects(code) != 1)
        return refused("This is not the source of one object.");
    const Spot spot = sibling < 0 ? spotAtEnd(passage, object) : spotBefore(passage, sibling);
    std::vector<SourceEdit> edits = importEdits(passage, imports);
    edits.push_back(spot.edit(passage.withLineEnds(code.trimmed()), true, true));
    return passage.settledChange(edits);
}

Change removeObjects(const Passage& passage, const std::vector<int>& objects)
{
    const std::vector<int> members = outermost(passage, objects);
    const QString fault = removalFault(passage, members);
    return fault.isEmpty() ? passage.settledChange(removalEdits(passage, members, Lines::Kept))
                           : Change::refused(fault);
}

Change moveObjects(const Passage& passage, const std::vector<int>& objects, int parent, int before)
{
    const Outline& outline = passage.outline();
    const std::vector<int> moving = outermost(passage, objects);
    const int target = passage.objectAt(parent);
    const int wanted = before < 0 ? -1 : passage.objectAt(before);
    const QString fault = removalFault(passage, moving);
    if (!fault.isEmpty())
        return Change::refused(fault);
    if (target < 0)
        return notAsKnown();
    if (before >= 0 && wanted < 0)
        return notAsKnown();
    if (isOneBody(outline, moving, target, wanted))
        return passage.settledChange(reorderingEdits(passage, moving, wanted));
    if (wanted >= 0 && outline.member(wanted).parent != target)
        return refused("The place is not in that object.");
    if (std::any_of(moving.cbegin(), moving.cend(),
                    [&](int i) { return i <= target && target < outline.member(i).next; }))
        return refused("An object cannot be moved into itself.");
    return passage.settledChange(transferEdits(passage, moving, target, wanted));
}

Change replaceObject(const Passage& passage, int object, const QString& code)
{
    const int index = passage.objectAt(object);
    if (index < 0)
        return notAsKnown();
    const Member& member = passage.outline().member(index);
    return passage.settledChange({{member.begin, member.end, passage.withLineEnds(code), 0, 1}});
}
