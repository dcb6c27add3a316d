// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/qmldocument.h"

#include "qmldoc/editortext.h"
#include "qmldoc/logging.h"

#include <algorithm>

namespace {

const QString noSource;

QString inLatin1(const QString& name)
{
    const bool isAscii = std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.unicode() < 0x80; });
    return isAscii ? name : QString::fromLatin1(name.toLatin1());
}

// A copy of a map that has the keys costs no comparisons.
QVariantMap propertyRecord(const Outline::Member& property, const QString& source)
{
    static const QVariantMap empty{
        {QStringLiteral("pfirst"), 0}, {QStringLiteral("plast"), 0}, {QStringLiteral("value"), QString()}};
    QVariantMap record = empty;
    auto entry = record.begin();
    *entry++ = property.begin;
    *entry++ = property.end;
    *entry = source.mid(property.valueBegin, property.end - property.valueBegin);
    return record;
}

} // namespace

QmlDocument::QmlDocument()
    : m_source(&noSource)
{
}

bool QmlDocument::parse(const QString& source, int firstElement)
{
    m_generatedText = source;
    m_source = &source;
    Outline outline(source);
    m_error = outline.error();
    if (!outline.isValid()) {
        qCInfo(lcQmlDoc, "not a QML document: %d:%d: %s", m_error.line, m_error.column,
               qUtf8Printable(m_error.message));
        return false;
    }
    m_outline = std::move(outline);
    m_generatedText = editorText(source, m_outline, firstElement);
    return true;
}

QVariantList QmlDocument::itemMap()
{
    QVariantList map;
    map.reserve(objectCount());
    for (int i = 0; i < objectCount(); ++i)
        map.append(record(i));
    return map;
}

QVariantMap QmlDocument::record(int i)
{
    static const QVariantMap empty{{QStringLiteral("pfirst"), 0},
                                   {QStringLiteral("pfirstL"), 0},
                                   {QStringLiteral("plast"), 0},
                                   {QStringLiteral("properties"), QVariantMap()},
                                   {QStringLiteral("typename"), QString()}};
    const Outline::Member& object = m_outline.member(m_outline.items()[size_t(i)]);
    QVariantMap record = empty;
    auto entry = record.begin();
    *entry++ = object.begin;
    *entry++ = object.bodyBegin;
    *entry++ = object.end;
    *entry++ = propertiesOfObject(i);
    *entry = inLatin1(m_outline.name(object));
    return record;
}

QVariantMap QmlDocument::propertiesOfObject(int i)
{
    m_generatedText.clear();
    QVariantMap properties;
    const int object = m_outline.items()[size_t(i)];
    for (int at = object; (at = m_outline.nextProperty(object, at)) >= 0;) {
        const Outline::Member& property = m_outline.member(at);
        properties.insert(propertyName(property), propertyRecord(property, *m_source));
    }
    return properties;
}

QString QmlDocument::propertyName(const Outline::Member& property) const
{
    if (property.kind == Outline::Member::Declaration)
        return m_outline.name(property);
    const QStringRef text = m_source->midRef(property.begin, property.end - property.begin);
    return text.left(text.indexOf(QLatin1Char(':'))).toString().remove(QLatin1Char(' '));
}
