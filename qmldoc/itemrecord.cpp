// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/itemrecord.h"

#include <algorithm>

namespace {

QString inLatin1(const QString& name)
{
    const bool isAscii = std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.unicode() < 0x80; });
    return isAscii ? name : QString::fromLatin1(name.toLatin1());
}

// A copy of a map that has the keys costs no comparisons.
QVariantMap propertyRecord(const Outline::Member& property, const QString& source, int shift)
{
    static const QVariantMap empty{
        {QStringLiteral("pfirst"), 0}, {QStringLiteral("plast"), 0}, {QStringLiteral("value"), QString()}};
    QVariantMap record = empty;
    auto entry = record.begin();
    *entry++ = property.begin + shift;
    *entry++ = property.end + shift;
    *entry = source.mid(property.valueBegin, property.end - property.valueBegin);
    return record;
}

} // namespace

QVariantMap itemRecord(const Outline& outline, int object, const QString& source, int shift)
{
    static const QVariantMap empty{{QStringLiteral("pfirst"), 0},
                                   {QStringLiteral("pfirstL"), 0},
                                   {QStringLiteral("plast"), 0},
                                   {QStringLiteral("properties"), QVariantMap()},
                                   {QStringLiteral("typename"), QString()}};
    const Outline::Member& member = outline.member(object);
    QVariantMap record = empty;
    auto entry = record.begin();
    *entry++ = member.begin + shift;
    *entry++ = member.bodyBegin + shift;
    *entry++ = member.end + shift;
    *entry++ = itemProperties(outline, object, source, shift);
    *entry = inLatin1(outline.name(member));
    return record;
}

QVariantMap itemProperties(const Outline& outline, int object, const QString& source, int shift)
{
    QVariantMap properties;
    for (int i = object; (i = outline.nextProperty(object, i)) >= 0;) {
        const Outline::Member& property = outline.member(i);
        properties.insert(propertyName(outline, property, source), propertyRecord(property, source, shift));
    }
    return properties;
}

QString propertyName(const Outline& outline, const Outline::Member& property, const QString& source)
{
    if (property.kind == Outline::Member::Declaration)
        return outline.name(property);
    const QStringRef text = source.midRef(property.begin, property.end - property.begin);
    return text.left(text.indexOf(QLatin1Char(':'))).toString().remove(QLatin1Char(' '));
}
