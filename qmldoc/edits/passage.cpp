// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/passage.h"

#include "qmldoc/edits/comparison.h"
#include "qmldoc/itemrecord.h"
#include "qmldoc/limits.h"
#include "qmldoc/textplace.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

Change refused(const char* reason)
{
    return Change::refused(QCoreApplication::translate("SourceEdits", reason));
}

bool isBefore(const SourceEdit& one, const SourceEdit& other)
{
    return one.begin != other.begin ? one.begin < other.begin : one.end < other.end;
}

bool beginsBefore(const Outline::Member& member, int offset)
{
    return member.begin < offset;
}

// The sorted edits overlap.
bool overlap(const std::vector<SourceEdit>& edits)
{
    const auto reachesInto = [](const SourceEdit& one, const SourceEdit& next) {
        return one.end > next.begin;
    };
    return std::adjacent_find(edits.cbegin(), edits.cend(), reachesInto) != edits.cend();
}

bool isBlank(QChar c)
{
    return c == ' ' || c == '\t';
}

// Fills in the records of the objects that the edits touch and bring, as they are in `after`, the outline of
// `text`.
void addRecords(Change& change, const Comparison& comparison, const Outline& after, const QString& text,
                int shift)
{
    change.objects.resize(change.edits.size());
    for (const int item : after.items()) {
        const int edit = comparison.editAt(after.member(item).end - 1);
        if (edit >= 0)
            change.objects[size_t(edit)].append(itemRecord(after, item, text, shift));
    }
    QSet<int> touched;
    for (size_t i = 0; i < change.edits.size(); ++i)
        touched.insert(comparison.itemAround(int(i)));
    touched.remove(-1);
    for (const int item : qAsConst(touched))
        change.records.append(itemRecord(after, item, text, shift));
}

} // namespace

Passage::Passage(const QString& source, int begin, int end)
    : m_source(source)
    , m_begin(begin)
    , m_text(source.mid(begin, end - begin))
    , m_outline(m_text)
{
}

int Passage::objectAt(int offset) const
{
    const auto& members = m_outline.members();
    const int begin = offset - m_begin;
    auto found = std::lower_bound(members.cbegin(), members.cend(), begin, beginsBefore);
    while (found != members.cend() && found->begin == begin && found->kind != Outline::Member::Object)
        ++found;
    return found != members.cend() && found->begin == begin ? int(found - members.cbegin()) : -1;
}

QString Passage::lineEnd() const
{
    const auto end =
        std::find_if(m_source.cbegin(), m_source.cend(), [](QChar c) { return c == '\n' || c == '\r'; });
    const int at = int(end - m_source.cbegin());
    if (m_source.midRef(at, 2) == QLatin1String("\r\n"))
        return QStringLiteral("\r\n");
    return end != m_source.cend() && *end == '\r' ? QStringLiteral("\r") : QStringLiteral("\n");
}

QString Passage::withLineEnds(const QString& text) const
{
    static const QRegularExpression pattern(QStringLiteral("\r\n|\n|\r"));
    return text.contains(pattern) ? QString(text).replace(pattern, lineEnd()) : text;
}

QString Passage::indentation(int offset) const
{
    const auto isStart = [](QChar c) { return isLineEnd(c) || c == ';' || c == '{'; };
    const auto at = m_source.cbegin() + m_begin + offset;
    const auto start = std::find_if(std::make_reverse_iterator(at), m_source.crend(), isStart).base();
    QString blanks(start, int(at - start));
    std::replace_if(
        blanks.begin(), blanks.end(), [](QChar c) { return !c.isSpace(); }, QLatin1Char(' '));
    return blanks;
}

QString Passage::lineIndentation(int offset) const
{
    const auto at = m_source.cbegin() + m_begin + offset;
    const auto begin = std::find_if(std::make_reverse_iterator(at), m_source.crend(), isLineEnd).base();
    const auto end = std::find_if_not(begin, m_source.cend(), isBlank);
    return QString(begin, int(end - begin));
}

int Passage::lineBegin(int offset) const
{
    int begin = offset;
    while (begin > 0 && isBlank(m_text.at(begin - 1)))
        --begin;
    return begin > 0 && isLineEnd(m_text.at(begin - 1)) ? begin : -1;
}

Change Passage::change(std::vector<SourceEdit> edits) const
{
    if (!m_outline.isValid())
        return refused("The source is not as the editor knows it.");
    std::stable_sort(edits.begin(), edits.end(), isBefore);
    if (overlap(edits))
        return refused("Two of these changes concern the same place.");
    const QString text = edited(m_text, edits);
    if (m_source.size() + text.size() - m_text.size() > limits::maxSourceLength)
        return refused("The document would become too long.");
    const Outline after(text);
    if (!after.isValid())
        return Change::refused(QCoreApplication::translate("SourceEdits", "This cannot be written here: %1.")
                                   .arg(after.error().message));
    const Comparison comparison(m_outline, after, edits);
    if (!comparison.isAsMeant())
        return refused("This would change more than it is meant to.");
    Change change{QString(), edits, {}, {}};
    addRecords(change, comparison, after, text, m_begin);
    for (SourceEdit& edit : change.edits) {
        edit.begin += m_begin;
        edit.end += m_begin;
        edit.movedBegin += edit.movedBegin < 0 ? 0 : m_begin;
        edit.movedEnd += edit.movedEnd < 0 ? 0 : m_begin;
    }
    return change;
}

Change Passage::settledChange(std::vector<SourceEdit> edits) const
{
    Change asTheyAre = change(edits);
    if (asTheyAre.isPossible())
        return asTheyAre;
    for (SourceEdit& edit : edits)
        if (!isPossibleAlone(edit))
            edit.text += lineEnd();
    return change(edits);
}

// Judged by the text of the innermost object around the edit: there may be thousands of them.
bool Passage::isPossibleAlone(SourceEdit edit) const
{
    const int object = m_outline.objectAround(edit.begin, edit.end);
    if (object <= 0)
        return change({edit}).isPossible();
    const Outline::Member& member = m_outline.member(object);
    edit.begin -= member.begin;
    edit.end -= member.begin;
    return Passage(m_text, member.begin, member.end).change({edit}).isPossible();
}
