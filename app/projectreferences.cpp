// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/projectreferences.h"

#include <private/qqmljsast_p.h>
#include <private/qqmljsastvisitor_p.h>
#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

#include <QSet>

using namespace QQmlJS;

namespace {

QString lastComponent(const AST::UiQualifiedId* id)
{
    while (id->next)
        id = id->next;
    return id->name.toString();
}

bool isMediaProperty(const QString& name)
{
    static const QSet<QString> names{"source", "image", "icon", "poster", "backgroundImage"};
    return names.contains(name);
}

const AST::StringLiteral* literalOf(AST::Statement* statement)
{
    const auto* expression = AST::cast<AST::ExpressionStatement*>(statement);
    return expression ? AST::cast<AST::StringLiteral*>(expression->expression) : nullptr;
}

class ReferenceVisitor : public AST::Visitor
{
public:
    bool visit(AST::UiScriptBinding* binding) override
    {
        if (const AST::StringLiteral* literal = literalOf(binding->statement))
            add(lastComponent(binding->qualifiedId), *literal);
        return true;
    }
    void throwRecursionDepthError() override {}

    QVector<ProjectReference> found;

private:
    void add(const QString& property, const AST::StringLiteral& literal)
    {
        const int line = int(literal.literalToken.startLine);
        if (isMediaProperty(property))
            found.append({ProjectReference::Media, literal.value.toString(), line});
        else if (property == QLatin1String("family"))
            found.append({ProjectReference::Font, literal.value.toString(), line});
    }
};

} // namespace

QVector<ProjectReference> projectReferences(const QString& source)
{
    Engine engine;
    Lexer lexer(&engine);
    lexer.setCode(source, 1, true);
    Parser parser(&engine);
    if (!parser.parse())
        return {};
    ReferenceVisitor visitor;
    parser.ast()->accept(&visitor);
    return visitor.found;
}
