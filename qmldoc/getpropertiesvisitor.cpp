// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/getpropertiesvisitor.h"

#include <private/qqmljsast_p.h>

#include <algorithm>

using namespace QQmlJS::AST;

namespace {

int begin(const QQmlJS::SourceLocation& location)
{
    return int(location.begin());
}

int end(const QQmlJS::SourceLocation& location)
{
    return int(location.end());
}

bool isLineEnd(QChar c)
{
    return c == '\n' || c == '\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// Where the comment that begins at `position` ends; `position` when none does.
int endOfComment(const QString& text, int position)
{
    const QStringRef opening = text.midRef(position, 2);
    if (opening == QLatin1String("/*"))
        return std::max(text.indexOf(QLatin1String("*/"), position + 2), position) + 2;
    if (opening == QLatin1String("//"))
        position = int(std::find_if(text.cbegin() + position, text.cend(), isLineEnd) - text.cbegin());
    return position;
}

} // namespace

GetPropertiesVisitor::GetPropertiesVisitor(const QString& parsed, const QString& source,
                                           QVariantMap& properties)
    : m_parsed(parsed)
    , m_source(source)
    , m_properties(properties)
{
}

bool GetPropertiesVisitor::visit(UiObjectDefinition*)
{
    return ++m_depth < 2;
}

bool GetPropertiesVisitor::visit(UiPublicMember* member)
{
    add(member->name.toString(), begin(member->firstSourceLocation()), valueBegin(member),
        end(member->lastSourceLocation()));
    return false;
}

bool GetPropertiesVisitor::visit(UiScriptBinding* binding)
{
    const int first = begin(binding->firstSourceLocation());
    const int last = end(binding->lastSourceLocation());
    const QStringRef text = m_source.midRef(first, last - first);
    const QString name = text.left(text.indexOf(QLatin1Char(':'))).toString().remove(QLatin1Char(' '));
    add(name, first, firstTokenAfter(end(binding->colonToken)), last);
    return false;
}

// The first location that the syntax tree gives for a script is wrong for some: it misses the opening
// parenthesis of an arrow function.
int GetPropertiesVisitor::firstTokenAfter(int position) const
{
    for (;;) {
        while (position < m_parsed.size() && m_parsed.at(position).isSpace())
            ++position;
        const int next = endOfComment(m_parsed, position);
        if (next == position)
            return position;
        position = next;
    }
}

int GetPropertiesVisitor::valueBegin(const UiPublicMember* member) const
{
    if (member->statement)
        return firstTokenAfter(end(member->colonToken));
    if (const auto* object = cast<UiObjectBinding*>(member->binding))
        return begin(object->qualifiedTypeNameId->identifierToken);
    if (const auto* array = cast<UiArrayBinding*>(member->binding))
        return begin(array->lbracketToken);
    return end(member->lastSourceLocation());
}

// A copy of a map that has the keys costs no comparisons.
void GetPropertiesVisitor::add(const QString& name, int begin, int valueBegin, int end)
{
    static const QVariantMap empty{
        {QStringLiteral("pfirst"), 0}, {QStringLiteral("plast"), 0}, {QStringLiteral("value"), QString()}};
    QVariantMap property = empty;
    auto entry = property.begin();
    *entry++ = begin;
    *entry++ = end;
    *entry = m_source.mid(valueBegin, end - valueBegin);
    m_properties.insert(name, property);
}
