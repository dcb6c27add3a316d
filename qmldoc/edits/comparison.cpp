// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/comparison.h"

#include <algorithm>

namespace {

using Member = Outline::Member;

// What `name: value` is depends on the value.
bool isBinding(const Member& member)
{
    return member.kind == Member::ScriptBinding || member.kind == Member::ObjectBinding ||
           member.kind == Member::ListBinding;
}

} // namespace

Comparison::Comparison(const Outline& before, const Outline& after, const std::vector<SourceEdit>& edits)
    : m_before(before)
    , m_after(after)
    , m_edits(edits)
{
    int shift = 0;
    for (const SourceEdit& edit : edits) {
        m_begins.push_back(edit.begin + shift);
        shift += edit.text.size() - (edit.end - edit.begin);
    }
}

bool Comparison::isAsMeant() const
{
    std::vector<Brought> brought(m_edits.size());
    auto old = m_before.members().cbegin();
    const auto skipReplaced = [&] {
        while (old != m_before.members().cend() && moved(old->begin) < 0)
            ++old;
    };
    for (const Member& member : m_after.members()) {
        const int edit = editAt(member.begin);
        if (edit < 0) {
            skipReplaced();
            if (old == m_before.members().cend() || !isSame(*old++, member))
                return false;
        } else if (isOutermost(member, edit)) {
            ++(member.kind == Member::Object ? brought[size_t(edit)].objects : brought[size_t(edit)].members);
        }
    }
    skipReplaced();
    return old == m_before.members().cend() && bringsWhatItSays(brought);
}

bool Comparison::bringsWhatItSays(const std::vector<Brought>& brought) const
{
    size_t headLines = m_before.head().size();
    for (size_t i = 0; i < m_edits.size(); ++i) {
        headLines += size_t(m_edits[i].headLines);
        if (brought[i].members != m_edits[i].members || brought[i].objects != m_edits[i].objects)
            return false;
    }
    return headLines == m_after.head().size();
}

bool Comparison::isSame(const Member& before, const Member& after) const
{
    const bool isSameKind = before.kind == after.kind || (isBinding(before) && isBinding(after));
    return isSameKind && moved(before.begin) == after.begin && isSameBody(before, after);
}

bool Comparison::isSameBody(const Member& before, const Member& after) const
{
    const int opening = before.bodyBegin < 0 ? -1 : moved(before.bodyBegin - 1);
    if (opening < 0)
        return after.bodyBegin < 0 || editAt(after.bodyBegin - 1) >= 0;
    return after.bodyBegin - 1 == opening && after.end - 1 == moved(before.end - 1);
}

// Whether a member that an edit brought stands in no other that it brought, nor in a value of its own.
bool Comparison::isOutermost(const Member& member, int edit) const
{
    if (member.parent < 0)
        return true;
    const Member& parent = m_after.member(member.parent);
    const bool isInside =
        editAt(parent.begin) == edit || (parent.bodyBegin >= 0 && editAt(parent.bodyBegin - 1) == edit);
    return !isInside && parent.kind != Member::Declaration;
}

int Comparison::itemAround(int edit) const
{
    const int begin = m_begins[size_t(edit)];
    const int end = begin + m_edits[size_t(edit)].text.size();
    int object = m_after.objectAround(begin, end);
    while (object >= 0 && !m_after.member(object).isNumbered)
        object = m_after.member(object).parent;
    return object;
}

int Comparison::editAt(int offset) const
{
    const auto next = std::upper_bound(m_begins.cbegin(), m_begins.cend(), offset);
    const int edit = int(next - m_begins.cbegin()) - 1;
    const bool isIn = edit >= 0 && offset < m_begins[size_t(edit)] + m_edits[size_t(edit)].text.size();
    return isIn ? edit : -1;
}

// Where the character at `offset` of the text before stands after; -1 when it was replaced.
int Comparison::moved(int offset) const
{
    const auto next =
        std::upper_bound(m_edits.cbegin(), m_edits.cend(), offset,
                         [](int offset, const SourceEdit& edit) { return offset < edit.begin; });
    if (next == m_edits.cbegin())
        return offset;
    const SourceEdit& last = *(next - 1);
    const int begin = m_begins[size_t(next - m_edits.cbegin()) - 1];
    return offset < last.end ? -1 : offset - last.end + begin + last.text.size();
}
