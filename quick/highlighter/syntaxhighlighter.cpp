// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/syntaxhighlighter.h"

#include "quick/highlighter/bracketmatcher.h"
#include "quick/highlighter/qmlhighlighter.h"
#include "quick/logging.h"

#include <QQuickTextDocument>
#include <QVariant>

namespace {

QTextDocument* documentOf(const QObject* textArea)
{
    if (!textArea) {
        qCWarning(lcQuick) << "No text area to highlight";
        return nullptr;
    }
    auto* document = qobject_cast<QQuickTextDocument*>(textArea->property("textDocument").value<QObject*>());
    if (!document || !document->textDocument()) {
        qCWarning(lcQuick) << "Not a text area with a text document:" << textArea;
        return nullptr;
    }
    return document->textDocument();
}

} // namespace

void SyntaxHighlighter::setHighlighter(QObject* textArea)
{
    if (QTextDocument* document = documentOf(textArea))
        new QMLHighlighter(document);
}

void SyntaxHighlighter::setMark(QObject* textArea, const QString& text, bool caseSensitive)
{
    const QTextDocument* document = documentOf(textArea);
    if (!document)
        return;
    for (auto* highlighter : document->findChildren<QMLHighlighter*>(QString(), Qt::FindDirectChildrenOnly))
        highlighter->setMark(text, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
}

int SyntaxHighlighter::matchingBracket(QObject* textArea, int position)
{
    const QTextDocument* document = documentOf(textArea);
    return document ? ::matchingBracket(*document, position) : -1;
}

QString SyntaxHighlighter::exactText(QObject* textArea)
{
    const QTextDocument* document = documentOf(textArea);
    return document ? document->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')) : QString();
}
