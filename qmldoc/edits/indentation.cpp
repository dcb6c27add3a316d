// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/indentation.h"

#include "qmldoc/sourcelocation.h"
#include "qmldoc/syntaxtree.h"
#include "qmldoc/textplace.h"

#include <private/qqmljsast_p.h>
#include <private/qqmljsastvisitor_p.h>

#include <algorithm>

using namespace QQmlJS;

namespace {

// Collects the places of quoted texts and templates, in scripts too, that go over several lines.
class LiteralCollector : public AST::Visitor
{
public:
    LiteralCollector(const QString& code)
        : m_code(code)
    {
    }

    bool holds(int offset) const
    {
        return m_tooDeep || std::any_of(m_tokens.cbegin(), m_tokens.cend(), [&](const SourceLocation& token) {
                   return begin(token) < offset && offset < end(token);
               });
    }

    bool visit(AST::StringLiteral* literal) override { return add(literal->literalToken); }
    bool visit(AST::TemplateLiteral* literal) override
    {
        AST::Node::accept(literal->expression, this); // which Qt's visitors leave out
        return add(literal->literalToken);
    }
    void throwRecursionDepthError() override { m_tooDeep = true; }

private:
    bool add(const SourceLocation& token)
    {
        if (lineEnds(m_code, begin(token), end(token)) > 0)
            m_tokens.push_back(token);
        return true;
    }

    const QString& m_code;
    std::vector<SourceLocation> m_tokens;
    bool m_tooDeep = false;
};

// The blanks before the closing brace; null when it does not begin its line.
QString closingIndentation(const QString& code)
{
    const int closing = code.lastIndexOf('}');
    int begin = closing;
    while (begin > 0 && (code.at(begin - 1) == ' ' || code.at(begin - 1) == '\t'))
        --begin;
    return begin > 0 && isLineEnd(code.at(begin - 1)) ? code.mid(begin, closing - begin) : QString();
}

} // namespace

QString indented(const QString& code, const QString& indentation)
{
    const QString old = closingIndentation(code);
    if (old.isNull())
        return code;
    const SyntaxTree tree(code);
    LiteralCollector literals(code);
    AST::Node::accept(tree.program(), &literals);
    QString result;
    for (int begin = 0, next = 0; begin < code.size(); begin = next) {
        next = begin + 1;
        while (next < code.size() && !isLineEnd(code.at(next - 1)))
            ++next;
        const bool moves = begin > 0 && code.midRef(begin).startsWith(old) && !literals.holds(begin);
        const QStringRef line = code.midRef(begin, next - begin);
        result += moves && !line.trimmed().isEmpty() ? indentation + line.mid(old.size()) : line.toString();
    }
    return result;
}
