// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/qmldocument.h"

#include "qmldoc/editortext.h"
#include "qmldoc/itemrecord.h"
#include "qmldoc/logging.h"

namespace {

const QString noSource;

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
    if (!outline.isValid()) {
        const SyntaxError& error = outline.error();
        qCInfo(lcQmlDoc, "not a QML document: %d:%d: %s", error.line, error.column,
               qUtf8Printable(error.message));
        return false;
    }
    m_outline = std::move(outline);
    m_generatedText = editorText(source, m_outline, firstElement);
    return true;
}

QVariantList QmlDocument::itemMap()
{
    m_generatedText.clear();
    QVariantList map;
    map.reserve(objectCount());
    for (const int item : m_outline.items())
        map.append(itemRecord(m_outline, item, *m_source));
    return map;
}

QVariantMap QmlDocument::propertiesOfObject(int i)
{
    m_generatedText.clear();
    return itemProperties(m_outline, m_outline.items()[size_t(i)], *m_source);
}
