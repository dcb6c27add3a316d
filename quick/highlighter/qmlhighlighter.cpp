// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/qmlhighlighter.h"

#include "quick/highlighter/qmlblockdata.h"

namespace {

constexpr int markBackground = 11;

QMap<int, QColor> colorTable()
{
    return {
        {int(TokenClass::Plain), QColor(QStringLiteral("#141312"))},
        {int(TokenClass::Comment), QColor(QStringLiteral("#949392"))},
        {int(TokenClass::Number), QColor(QStringLiteral("#b08000"))},
        {int(TokenClass::String), QColor(QStringLiteral("#bf0303"))},
        {int(TokenClass::Operator), QColor(QStringLiteral("#141312"))},
        {int(TokenClass::Keyword), QColor(QStringLiteral("#0095ff"))},
        {int(TokenClass::BuiltIn), QColor(QStringLiteral("#0055af"))},
        {markBackground, QColor(QStringLiteral("#bf0303"))},
        {int(TokenClass::Type), QColor(QStringLiteral("#008000"))},
        {int(TokenClass::Property), QColor(QStringLiteral("#0057ae"))},
    };
}

} // namespace

QMLHighlighter::QMLHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
    , m_colors(colorTable())
{
    for (auto color = m_colors.cbegin(); color != m_colors.cend(); ++color)
        m_formats[size_t(color.key())].setForeground(color.value());
    m_markFormat.setForeground(m_colors[int(TokenClass::Plain)]);
    m_markFormat.setBackground(m_colors[markBackground]);
}

void QMLHighlighter::setMark(const QString& text, Qt::CaseSensitivity sensitivity)
{
    m_mark = QStringMatcher(text, sensitivity);
    rehighlight();
}

void QMLHighlighter::highlightBlock(const QString& text)
{
    tokenizeQmlLine(text, previousBlockState(), m_line);
    for (const TokenRun& run : qAsConst(m_line.runs))
        setFormat(run.start, run.length, m_formats[size_t(run.kind)]);
    markOccurrences(text);
    storeBrackets();
    setCurrentBlockState(m_line.state);
}

void QMLHighlighter::markOccurrences(const QString& text)
{
    const int length = m_mark.pattern().length();
    if (length == 0)
        return;
    int marked = 0; // occurrences may overlap; each character is marked once
    for (int at = m_mark.indexIn(text); at >= 0; at = m_mark.indexIn(text, at + 1)) {
        const int start = qMax(at, marked);
        marked = at + length;
        setFormat(start, marked - start, m_markFormat);
    }
}

void QMLHighlighter::storeBrackets()
{
    if (m_line.brackets.isEmpty())
        return;
    auto* data = dynamic_cast<QMLBlockData*>(currentBlockUserData());
    if (!data) {
        data = new QMLBlockData;
        setCurrentBlockUserData(data);
    }
    data->brackets = m_line.brackets;
}
