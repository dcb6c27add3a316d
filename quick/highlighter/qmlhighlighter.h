// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/highlighter/qmltokenizer.h"

#include <QColor>
#include <QMap>
#include <QStringMatcher>
#include <QSyntaxHighlighter>

#include <array>

/// Colours QML and JavaScript in a text document, line by line as it changes, and leaves a QMLBlockData with
/// every line that holds brackets. Owned by its document. GUI thread.
class QMLHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit QMLHighlighter(QTextDocument* document);

    /// Colour by key: a TokenClass, or 11 for the background of marked text.
    const QMap<int, QColor>& colors() const { return m_colors; }

    /// The text that is marked wherever it occurs within a line; empty marks nothing.
    QString markString() const { return m_mark.pattern(); }
    /// How markString() is searched.
    Qt::CaseSensitivity markCaseSensitivity() const { return m_mark.caseSensitivity(); }
    /// Marks `text` from now on and colours the document anew.
    void setMark(const QString& text, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

protected:
    void highlightBlock(const QString& text) override;

private:
    void markOccurrences(const QString& text);
    void storeBrackets();

    QMap<int, QColor> m_colors;
    std::array<QTextCharFormat, 17> m_formats; // by TokenClass
    QTextCharFormat m_markFormat;
    QStringMatcher m_mark{QString(), Qt::CaseInsensitive};
    LineTokens m_line;
};
