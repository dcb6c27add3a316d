// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/nameuses.h"

#include "qmldoc/sourcelocation.h"
#include "qmldoc/syntaxtree.h"

#include <private/qqmljsast_p.h>
#include <private/qqmljsastvisitor_p.h>

#include <algorithm>

using namespace QQmlJS;
using namespace QQmlJS::AST;

namespace {

class NameVisitor : public Visitor
{
public:
    using Visitor::visit;

    NameVisitor(const QString& name, std::vector<NameUse>& uses)
        : m_name(name)
        , m_uses(uses)
    {
    }

    bool isCut() const { return m_isCut; }
    void throwRecursionDepthError() override { m_isCut = true; }

    bool visit(UiScriptBinding* binding) override
    {
        if (binding->qualifiedId->next || binding->qualifiedId->name != QLatin1String("id"))
            return true;
        const auto* statement = cast<ExpressionStatement*>(binding->statement);
        if (const auto* id = statement ? cast<IdentifierExpression*>(statement->expression) : nullptr)
            add(NameUse::Id, id->name, id->identifierToken);
        else if (const auto* text = statement ? cast<StringLiteral*>(statement->expression) : nullptr)
            addQuoted(*text);
        return false;
    }

    bool visit(IdentifierExpression* expression) override
    {
        return add(NameUse::Reference, expression->name, expression->identifierToken);
    }

    bool visit(FieldMemberExpression* expression) override { return owner(expression->base); }

    bool visit(ArrayMemberExpression* expression) override
    {
        owner(expression->base);
        Node::accept(expression->expression, this);
        return false;
    }

    bool visit(PatternProperty* property) override
    {
        const auto* value = cast<IdentifierExpression*>(property->initializer);
        if (!value || begin(value->identifierToken) != begin(property->name->propertyNameToken))
            return visit(static_cast<PatternElement*>(property));
        add(NameUse::Shorthand, value->name, value->identifierToken);
        return false;
    }

    bool visit(PatternElement* element) override
    {
        return add(NameUse::Declared, element->bindingIdentifier, element->identifierToken);
    }

    bool visit(FunctionDeclaration* function) override
    {
        return add(NameUse::Declared, function->name, function->identifierToken);
    }

    bool visit(FunctionExpression* function) override
    {
        return add(NameUse::Declared, function->name, function->identifierToken);
    }

    bool visit(ClassDeclaration* declaration) override
    {
        return add(NameUse::Declared, declaration->name, declaration->identifierToken);
    }

    bool visit(UiPublicMember* member) override
    {
        add(NameUse::Declared, member->name, member->identifierToken);
        for (const UiParameterList* parameter = member->parameters; parameter; parameter = parameter->next)
            add(NameUse::Declared, parameter->name, parameter->identifierToken);
        return true;
    }

    // Qt's visitors leave out what templates hold.
    bool visit(TemplateLiteral* literal) override
    {
        Node::accept(literal->expression, this);
        return true;
    }

private:
    bool add(NameUse::Kind kind, const QStringRef& name, const SourceLocation& at)
    {
        if (name == m_name)
            m_uses.push_back({kind, begin(at), int(at.startLine)});
        return true;
    }

    // An id may stand in quotes.
    void addQuoted(const StringLiteral& id)
    {
        if (id.value == m_name && int(id.literalToken.length) == m_name.size() + 2)
            m_uses.push_back({NameUse::Id, begin(id.literalToken) + 1, int(id.literalToken.startLine)});
    }

    bool owner(ExpressionNode* base)
    {
        if (const auto* identifier = cast<IdentifierExpression*>(base))
            add(NameUse::Owner, identifier->name, identifier->identifierToken);
        else
            Node::accept(base, this);
        return false;
    }

    const QString& m_name;
    std::vector<NameUse>& m_uses;
    bool m_isCut = false;
};

} // namespace

bool findNameUses(const QString& text, const QString& name, std::vector<NameUse>& uses)
{
    const SyntaxTree tree(text);
    NameVisitor visitor(name, uses);
    Node::accept(tree.program(), &visitor);
    std::sort(uses.begin(), uses.end(),
              [](const NameUse& one, const NameUse& other) { return one.offset < other.offset; });
    const auto isSame = [](const NameUse& one, const NameUse& other) { return one.offset == other.offset; };
    uses.erase(std::unique(uses.begin(), uses.end(), isSame), uses.end());
    return tree.program() && !visitor.isCut();
}
