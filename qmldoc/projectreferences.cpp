// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/projectreferences.h"

#include "qmldoc/outline.h"
#include "qmldoc/textplace.h"

#include <QSet>

namespace {

bool isMediaProperty(const QString& name)
{
    static const QSet<QString> names{"source", "image", "icon", "poster", "backgroundImage"};
    return names.contains(name);
}

// The last part of a dotted name.
QString lastName(const QString& name)
{
    return name.mid(name.lastIndexOf(QLatin1Char('.')) + 1).trimmed();
}

// The literal that the binding gives the property; null when it is something else.
QString literal(const Outline::Member& binding, const QString& source)
{
    return SyntaxTree::stringLiteral(source.mid(binding.valueBegin, binding.end - binding.valueBegin));
}

} // namespace

QVector<ProjectReference> projectReferences(const QString& source)
{
    const Outline outline(source);
    QVector<ProjectReference> found;
    int line = 1;
    int counted = 0;
    for (const Outline::Member& member : outline.members()) {
        if (member.kind != Outline::Member::ScriptBinding)
            continue;
        const QString name = lastName(outline.name(member));
        const bool isFont = name == QLatin1String("family");
        if (!isFont && !isMediaProperty(name))
            continue;
        line += lineEnds(source, counted, member.valueBegin);
        counted = member.valueBegin;
        const QString value = literal(member, source);
        if (!value.isNull())
            found.append({isFont ? ProjectReference::Font : ProjectReference::Media, value, line});
    }
    return found;
}
