// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/syntaxtree.h"

#include "qmldoc/limits.h"

#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

#include <QCoreApplication>

using namespace QQmlJS;

namespace {

// `text` as the lexer, which knows no byte-order mark, takes it. Offsets stay.
QString withoutByteOrderMark(const QString& text)
{
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? QLatin1Char(' ') + text.midRef(1) : text;
}

SyntaxError errorOf(const Parser& parser)
{
    const SourceLocation at = parser.diagnosticMessage().loc;
    return {parser.errorMessage(), int(at.startLine), int(at.startColumn), int(at.offset)};
}

} // namespace

SyntaxTree::SyntaxTree(const QString& text)
    : m_text(withoutByteOrderMark(text))
    , m_engine(std::make_unique<Engine>())
{
    if (text.size() > limits::maxSourceLength) {
        m_error.message = QCoreApplication::translate("SyntaxTree", "The document is too long: %1 characters")
                              .arg(text.size());
        return;
    }
    Lexer lexer(m_engine.get());
    lexer.setCode(m_text, 1, true);
    Parser parser(m_engine.get());
    if (parser.parse())
        m_program = parser.ast();
    else
        m_error = errorOf(parser);
}

SyntaxTree::~SyntaxTree() = default;

QString SyntaxTree::identifier(const QString& text)
{
    if (!text.contains(QLatin1Char('\\')))
        return text;
    Engine engine;
    Lexer lexer(&engine);
    lexer.setCode(text, 1, true);
    lexer.lex();
    return lexer.tokenSpell().toString();
}

bool SyntaxTree::isIdentifier(const QString& text)
{
    Engine engine;
    Lexer lexer(&engine);
    lexer.setCode(text, 1, true);
    return lexer.lex() == Lexer::T_IDENTIFIER && lexer.lex() == Lexer::EOF_SYMBOL;
}

QString SyntaxTree::stringLiteral(const QString& text)
{
    Engine engine;
    Lexer lexer(&engine);
    lexer.setCode(text, 1, true);
    const int kind = lexer.lex();
    if (kind != Lexer::T_STRING_LITERAL && kind != Lexer::T_MULTILINE_STRING_LITERAL)
        return QString();
    const QString literal = lexer.tokenSpell().toString();
    const int next = lexer.lex();
    const bool isAll =
        next == Lexer::EOF_SYMBOL || (next == Lexer::T_SEMICOLON && lexer.lex() == Lexer::EOF_SYMBOL);
    return isAll ? QLatin1String("") + literal : QString();
}
