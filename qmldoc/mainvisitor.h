// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <private/qqmljsastvisitor_p.h>

#include <vector>

/// Collects the objects of a document that the editor numbers, in the order of their closing braces: all but
/// "Component" and "anchors" objects and what these hold, and all but objects that are the value of a
/// binding.
class MainVisitor : public QQmlJS::AST::Visitor
{
public:
    using Visitor::endVisit;
    using Visitor::visit;

    /// The numbered objects, innermost first; owned by the syntax tree.
    const std::vector<QQmlJS::AST::UiObjectDefinition*>& objects() const { return m_objects; }
    /// Whether the document nests too deep to be walked; objects() are then not all.
    bool isTooDeep() const { return m_tooDeep; }

    bool visit(QQmlJS::AST::UiObjectDefinition* object) override;
    void endVisit(QQmlJS::AST::UiObjectDefinition* object) override;
    bool visit(QQmlJS::AST::UiPublicMember* member) override;
    bool visit(QQmlJS::AST::UiScriptBinding*) override { return false; }
    bool visit(QQmlJS::AST::UiSourceElement*) override { return false; }
    void throwRecursionDepthError() override { m_tooDeep = true; }

private:
    std::vector<QQmlJS::AST::UiObjectDefinition*> m_objects;
    bool m_skipping = false; // between the visits of an object that is not numbered
    bool m_tooDeep = false;
};
