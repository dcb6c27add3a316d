// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <private/qqmljsastvisitor_p.h>

#include <QVariantMap>

/// Collects the properties of one object: its declarations and bindings, and those inside its object
/// bindings, but none of the objects nested in it.
///
/// The syntax tree gives the positions, in the text that was `parsed`; values and names of bindings are cut
/// from `source` at these positions. The strings must outlive the visitor.
class GetPropertiesVisitor : public QQmlJS::AST::Visitor
{
public:
    using Visitor::visit;

    GetPropertiesVisitor(const QString& parsed, const QString& source, QVariantMap& properties);

    bool visit(QQmlJS::AST::UiObjectDefinition*) override;
    bool visit(QQmlJS::AST::UiPublicMember* member) override;
    bool visit(QQmlJS::AST::UiScriptBinding* binding) override;
    bool visit(QQmlJS::AST::UiSourceElement*) override { return false; }
    void throwRecursionDepthError() override {}

private:
    int firstTokenAfter(int position) const;
    int valueBegin(const QQmlJS::AST::UiPublicMember* member) const;
    void add(const QString& name, int begin, int valueBegin, int end);

    const QString& m_parsed;
    const QString& m_source;
    QVariantMap& m_properties;
    int m_depth = 0;
};
