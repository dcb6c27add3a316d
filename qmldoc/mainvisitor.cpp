// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/mainvisitor.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace {

bool isNumbered(const UiObjectDefinition* object)
{
    const QStringRef& type = object->qualifiedTypeNameId->name;
    return type != QLatin1String("Component") && type != QLatin1String("anchors");
}

} // namespace

bool MainVisitor::visit(UiObjectDefinition* object)
{
    m_skipping = !isNumbered(object);
    return !m_skipping;
}

// Nothing is visited between the two visits of an object that is skipped.
void MainVisitor::endVisit(UiObjectDefinition* object)
{
    if (!m_skipping)
        m_objects.push_back(object);
    m_skipping = false;
}

// Scripts hold no objects: walking them would cost time, and their depth would count.
bool MainVisitor::visit(UiPublicMember* member)
{
    Node::accept(member->binding, this);
    return false;
}
