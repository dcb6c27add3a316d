// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// The QML type "QMLSyntaxHighlighter": gives text areas a QMLHighlighter and lets the code editors use it.
/// A text area is any object whose property "textDocument" is a QQuickTextDocument; any other object is named
/// in the log and nothing happens. GUI thread.
class SyntaxHighlighter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Puts a new highlighter, which its document owns, on the text area's document.
    Q_INVOKABLE void setHighlighter(QObject* textArea);
    /// Marks `text` wherever it occurs in a text area that has a highlighter; empty text ends marking.
    Q_INVOKABLE void setMark(QObject* textArea, const QString& text, bool caseSensitive = false);
    /// Position of the bracket that belongs to the one at `position`, or -1; see matchingBracket().
    Q_INVOKABLE int matchingBracket(QObject* textArea, int position);
    /// The text area's text with each character as it is, lines ended by "\n"; its own "text" has blanks
    /// in place of no-break spaces. Empty without a text area.
    Q_INVOKABLE QString exactText(QObject* textArea);
};
