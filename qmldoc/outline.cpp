// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/outline.h"

#include "qmldoc/limits.h"
#include "qmldoc/sourcelocation.h"
#include "qmldoc/textplace.h"

#include <QCoreApplication>

#include <private/qqmljsast_p.h>

#include <algorithm>

using namespace QQmlJS;
using namespace QQmlJS::AST;

namespace {

const QStringRef& lastName(const UiQualifiedId* id)
{
    while (id->next)
        id = id->next;
    return id->name;
}

QString dotted(const UiQualifiedId* id)
{
    QString name = id->name.toString();
    while ((id = id->next))
        name += '.' + id->name;
    return name;
}

} // namespace

/// Walks a syntax tree by hand: Qt's visitors take three times as long.
class OutlineBuilder
{
public:
    OutlineBuilder(Outline& outline)
        : m_outline(outline)
    {
    }

    void document(const UiProgram* program)
    {
        for (const UiHeaderItemList* list = program->headers; list; list = list->next)
            headLine(list->headerItem);
        members(program->members, -1);
    }

private:
    using Member = Outline::Member;

    void headLine(Node* node)
    {
        Outline::HeadLine line;
        if (const auto* import = cast<UiImport*>(node)) {
            line.module = import->importUri ? dotted(import->importUri) : '"' + import->fileName + '"';
            line.qualifier = import->importId.toString();
        }
        line.end = end(node->lastSourceLocation());
        m_outline.m_head.push_back(line);
    }

    void members(const UiObjectMemberList* list, int parent)
    {
        for (; list; list = list->next) {
            if (list->next) // while this member is looked at: a big tree is in no cache
                __builtin_prefetch(list->next->member);
            member(list->member, parent);
        }
    }

    void member(UiObjectMember* node, int parent)
    {
        const int i = int(m_outline.m_members.size());
        m_outline.m_members.emplace_back();
        m_outline.m_members.back().parent = parent;
        m_outline.m_members.back().begin = begin(node->firstSourceLocation());
        switch (node->kind) {
        case Node::Kind_UiObjectDefinition:
            object(i, static_cast<const UiObjectDefinition*>(node));
            break;
        case Node::Kind_UiPublicMember:
            declaration(i, static_cast<const UiPublicMember*>(node));
            break;
        case Node::Kind_UiScriptBinding:
            scriptBinding(i, static_cast<const UiScriptBinding*>(node));
            break;
        case Node::Kind_UiObjectBinding:
            objectBinding(i, static_cast<const UiObjectBinding*>(node));
            break;
        case Node::Kind_UiArrayBinding:
            listBinding(i, static_cast<const UiArrayBinding*>(node));
            break;
        case Node::Kind_UiInlineComponent:
            inlineComponent(i, static_cast<const UiInlineComponent*>(node));
            break;
        case Node::Kind_UiSourceElement:
            function(i, static_cast<const UiSourceElement*>(node));
            break;
        default:
            at(i).end = end(node->lastSourceLocation());
        }
        at(i).next = int(m_outline.m_members.size());
    }

    void object(int i, const UiObjectDefinition* node)
    {
        const UiQualifiedId* type = node->qualifiedTypeNameId;
        const bool isHolder =
            type->name == QLatin1String("Component") || type->name == QLatin1String("anchors");
        at(i).kind = Member::Object;
        at(i).isNumbered = !isHolder && m_holders == 0;
        at(i).takesMembers = lastName(type).at(0).isUpper() && lastName(type) != QLatin1String("ListElement");
        at(i).nameBegin = at(i).begin;
        at(i).nameEnd = end(type->identifierToken);
        m_holders += isHolder;
        body(i, node->initializer);
        m_holders -= isHolder;
        if (at(i).isNumbered)
            m_outline.m_items.push_back(i);
    }

    void body(int i, const UiObjectInitializer* node)
    {
        at(i).bodyBegin = end(node->lbraceToken);
        at(i).end = end(node->rbraceToken);
        if (m_depth == limits::maxDepth)
            return fail(node->lbraceToken);
        ++m_depth;
        members(node->members, i);
        --m_depth;
    }

    void declaration(int i, const UiPublicMember* node)
    {
        at(i).kind = Member::Declaration;
        at(i).isSignal = node->type == UiPublicMember::Signal;
        at(i).isAlias = node->memberType && node->memberType->name == QLatin1String("alias");
        at(i).nameBegin = begin(node->identifierToken);
        at(i).nameEnd = end(node->identifierToken);
        at(i).end = end(node->lastSourceLocation());
        at(i).valueBegin = at(i).end;
        if (node->statement)
            at(i).valueBegin = tokenAt(m_outline.m_text, end(node->colonToken));
        if (!node->binding)
            return;
        const int value = int(m_outline.m_members.size());
        member(node->binding, i);
        at(i).valueBegin = at(value).begin = at(value).valueBegin;
    }

    void inlineComponent(int i, const UiInlineComponent* node)
    {
        at(i).kind = Member::InlineComponent;
        at(i).nameBegin = tokenAt(m_outline.m_text, end(node->componentToken));
        at(i).nameEnd = at(i).nameBegin + node->name.size();
        at(i).end = end(node->lastSourceLocation());
        member(node->component, i);
    }

    void scriptBinding(int i, const UiScriptBinding* node)
    {
        at(i).kind = Member::ScriptBinding;
        bound(i, node->colonToken, node->statement->lastSourceLocation());
    }

    void objectBinding(int i, const UiObjectBinding* node)
    {
        at(i).kind = Member::ObjectBinding;
        bound(i, node->colonToken, node->initializer->rbraceToken);
        if (node->hasOnToken)
            at(i).nameBegin = at(i).nameEnd = at(i).begin;
        at(i).valueBegin = begin(node->qualifiedTypeNameId->identifierToken);
        body(i, node->initializer);
    }

    void listBinding(int i, const UiArrayBinding* node)
    {
        at(i).kind = Member::ListBinding;
        bound(i, node->colonToken, node->rbracketToken);
        at(i).bodyBegin = end(node->lbracketToken);
        for (const UiArrayMemberList* list = node->members; list; list = list->next)
            member(list->member, i);
    }

    void function(int i, const UiSourceElement* node)
    {
        at(i).kind = Member::Function;
        at(i).end = end(node->lastSourceLocation());
        if (const FunctionExpression* definition = node->sourceElement->asFunctionDefinition()) {
            at(i).nameBegin = begin(definition->identifierToken);
            at(i).nameEnd = end(definition->identifierToken);
        }
    }

    void bound(int i, const SourceLocation& colon, const SourceLocation& last)
    {
        at(i).nameBegin = at(i).begin;
        at(i).nameEnd = begin(colon);
        // Not where the tree says that the script begins: that misses the opening parenthesis of an arrow
        // function.
        at(i).valueBegin = tokenAt(m_outline.m_text, end(colon));
        at(i).end = end(last);
    }

    void fail(const SourceLocation& at)
    {
        m_outline.m_error = {QCoreApplication::translate("SyntaxTree", "The objects are nested too deep"),
                             int(at.startLine), int(at.startColumn), begin(at)};
    }

    Member& at(int i) { return m_outline.m_members[size_t(i)]; }

    Outline& m_outline;
    int m_depth = 0;
    int m_holders = 0; // Component and anchors objects that are open
};

Outline::Outline(const QString& text)
{
    const SyntaxTree tree(text);
    m_text = tree.text();
    m_error = tree.error();
    if (!isValid())
        return;
    OutlineBuilder(*this).document(tree.program());
    if (!isValid()) {
        m_head.clear();
        m_members.clear();
        m_items.clear();
    }
}

int Outline::nextProperty(int object, int i) const
{
    const auto isProperty = [this](int i) {
        return member(i).kind == Member::Declaration || member(i).kind == Member::ScriptBinding;
    };
    const auto isClosed = [&](int i) { return isProperty(i) || member(i).kind == Member::Object; };
    i = i == object || !isClosed(i) ? i + 1 : member(i).next;
    while (i < member(object).next && !isProperty(i))
        i = isClosed(i) ? member(i).next : i + 1;
    return i < member(object).next ? i : -1;
}

int Outline::objectAround(int begin, int end) const
{
    const auto next =
        std::lower_bound(m_members.cbegin(), m_members.cend(), begin,
                         [](const Member& member, int offset) { return member.begin < offset; });
    int i = int(next - m_members.cbegin()) - 1;
    while (i >= 0 && !(member(i).kind == Member::Object && end < member(i).end))
        i = member(i).parent;
    return i;
}

int endOfComment(const QString& text, int position)
{
    const QStringRef opening = text.midRef(position, 2);
    if (opening == QLatin1String("/*"))
        return std::max(text.indexOf(QLatin1String("*/"), position + 2), position) + 2;
    if (opening == QLatin1String("//"))
        position = int(std::find_if(text.cbegin() + position, text.cend(), isLineEnd) - text.cbegin());
    return position;
}

int tokenAt(const QString& text, int position)
{
    for (;;) {
        while (position < text.size() && text.at(position).isSpace())
            ++position;
        const int next = endOfComment(text, position);
        if (next == position)
            return position;
        position = next;
    }
}

QString Outline::name(const Member& member) const
{
    return SyntaxTree::identifier(m_text.mid(member.nameBegin, member.nameEnd - member.nameBegin));
}
