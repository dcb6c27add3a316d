// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

namespace QQmlJS {
class Engine;
namespace AST {
class UiProgram;
}
} // namespace QQmlJS

/// Why and where a text is no QML document. A value.
struct SyntaxError
{
    QString message; ///< in words, without a full stop; empty when there is no error
    int line = 1;    ///< 1-based; an end of line is LF, CR, CRLF, U+2028 or U+2029
    int column = 1;  ///< 1-based, in UTF-16 code units
    int offset = 0;  ///< 0-based, in UTF-16 code units
};

/// The syntax tree of a QML document: the one place that runs the parser of Qt's QML front end.
///
/// A text that is too long is not parsed; a byte-order mark is taken for a blank, so that offsets are those
/// of the text. Not thread-safe; each tree on its own may live in any thread.
class SyntaxTree
{
public:
    explicit SyntaxTree(const QString& text);
    ~SyntaxTree();
    Q_DISABLE_COPY(SyntaxTree)

    /// The root; null when the text is no document. Owned by the tree. Qt's visitors stop at 1365 nested
    /// objects and say so only by throwRecursionDepthError(): what they have seen then is cut.
    QQmlJS::AST::UiProgram* program() const { return m_program; }
    /// What is wrong with the text; its message is empty when nothing is.
    const SyntaxError& error() const { return m_error; }
    /// The text as it was parsed: offsets in the tree are offsets into it.
    const QString& text() const { return m_text; }

    /// The name that `text`, one identifier as it stands in a source, stands for: escapes are worked out.
    static QString identifier(const QString& text);
    /// Whether `text` is one identifier and no word of the language.
    static bool isIdentifier(const QString& text);
    /// The text that `text` quotes, if it is one quoted text with or without a semicolon; else null.
    static QString stringLiteral(const QString& text);

private:
    QString m_text;
    std::unique_ptr<QQmlJS::Engine> m_engine; // owns the nodes
    QQmlJS::AST::UiProgram* m_program = nullptr;
    SyntaxError m_error;
};
