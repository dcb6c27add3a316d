// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/reordering.h"

#include "qmldoc/edits/indentation.h"
#include "qmldoc/textplace.h"

#include <algorithm>

namespace {

using Member = Outline::Member;

// The characters [begin, end) of the passage that change places with others. Not `isWhole`: others share its
// lines.
struct Place
{
    int begin;
    int end;
    bool isWhole;
};

std::vector<int> objectsIn(const Outline& outline, int parent)
{
    std::vector<int> objects;
    for (int i = parent + 1; i < outline.member(parent).next; i = outline.member(i).next)
        if (outline.member(i).kind == Member::Object)
            objects.push_back(i);
    return objects;
}

// `objects` as they are to follow each other.
std::vector<int> reordered(std::vector<int> objects, const std::vector<int>& moving, int before)
{
    const auto moves = [&](int i) { return std::find(moving.cbegin(), moving.cend(), i) != moving.cend(); };
    objects.erase(std::remove_if(objects.begin(), objects.end(), moves), objects.end());
    const auto at = before < 0 ? objects.cend() : std::lower_bound(objects.cbegin(), objects.cend(), before);
    objects.insert(at, moving.cbegin(), moving.cend());
    return objects;
}

// Where the comments begin that stand on lines of their own right above `object`; `object` without any.
// Nothing but blanks and comments is between `from` and it.
int beginWithComments(const Passage& passage, int from, int object)
{
    const QString& text = passage.text();
    int first = object;
    int last = from;
    for (int at = from; at < object; ++at) {
        const int end = endOfComment(text, at);
        if (end == at)
            continue;
        if (first == object || lineEnds(text, last, at) > 1)
            first = passage.lineBegin(at) >= 0 ? at : object;
        last = end;
        at = end - 1;
    }
    return lineEnds(text, last, object) > 1 ? object : first;
}

// Where the comments end that follow on the line; -1 when anything else does.
int endWithComments(const QString& text, int position)
{
    int last = position;
    for (int at = position; at < text.size() && !isLineEnd(text.at(at)); ++at) {
        const int end = endOfComment(text, at);
        if (end == at && !text.at(at).isSpace())
            return -1;
        if (end > at) {
            last = end;
            at = end - 1;
        }
    }
    return lineEnds(text, position, last) > 0 ? -1 : last;
}

// The place of an object in a body or list; `from` is where what precedes it ends.
Place placeOf(const Passage& passage, int object, int from)
{
    const Member& member = passage.outline().member(object);
    const bool isInList = passage.outline().member(member.parent).kind == Member::ListBinding;
    const int behind = tokenAt(passage.text(), member.end);
    const bool hasComma = isInList && passage.text().at(behind) == ',';
    const int begin = beginWithComments(passage, from, member.begin);
    const int end = endWithComments(passage.text(), hasComma ? behind + 1 : member.end);
    const bool isWhole = passage.lineBegin(begin) >= 0 && end >= 0;
    return {begin, isInList ? member.end : end, isWhole};
}

// The places of the objects `objects`, in their order, all in one body or list.
std::vector<Place> placesOf(const Passage& passage, const std::vector<int>& objects)
{
    const Outline& outline = passage.outline();
    const int parent = outline.member(objects.front()).parent;
    std::vector<Place> places;
    int from = outline.member(parent).bodyBegin;
    for (int i = parent + 1; i <= objects.back(); i = outline.member(i).next) {
        if (std::binary_search(objects.cbegin(), objects.cend(), i))
            places.push_back(placeOf(passage, i, from));
        from = outline.member(i).end;
    }
    if (!std::all_of(places.cbegin(), places.cend(), [](const Place& place) { return place.isWhole; }))
        for (size_t i = 0; i < objects.size(); ++i)
            places[i] = {outline.member(objects[i]).begin, outline.member(objects[i]).end, false};
    return places;
}

// Puts what stands at `from` in place of what stands at `to`.
SourceEdit exchange(const Passage& passage, const Place& to, const Place& from)
{
    QString code = passage.text().mid(from.begin, from.end - from.begin);
    const QString indentation = passage.lineIndentation(to.begin);
    if (to.isWhole && indentation != passage.lineIndentation(from.begin))
        code = indented(code, indentation);
    SourceEdit edit{to.begin, to.end, code, 0, 1};
    edit.movedBegin = from.begin;
    edit.movedEnd = from.end;
    return edit;
}

} // namespace

std::vector<SourceEdit> reorderingEdits(const Passage& passage, const std::vector<int>& moving, int before)
{
    const Outline& outline = passage.outline();
    std::vector<int> objects = objectsIn(outline, outline.member(moving.front()).parent);
    std::vector<int> wanted = reordered(objects, moving, before);
    const auto first =
        std::mismatch(objects.cbegin(), objects.cend(), wanted.cbegin()).first - objects.cbegin();
    const auto last =
        std::mismatch(objects.crbegin(), objects.crend(), wanted.crbegin()).first - objects.crbegin();
    if (first == int(objects.size()))
        return {};
    objects = {objects.cbegin() + first, objects.cend() - last};
    wanted = {wanted.cbegin() + first, wanted.cend() - last};
    const std::vector<Place> places = placesOf(passage, objects);
    std::vector<SourceEdit> edits;
    for (size_t i = 0; i < objects.size(); ++i) {
        const auto from = std::lower_bound(objects.cbegin(), objects.cend(), wanted[i]) - objects.cbegin();
        edits.push_back(exchange(passage, places[i], places[size_t(from)]));
    }
    return edits;
}
