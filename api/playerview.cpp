// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/playerview.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace {

QObject* playerIn(const QQuickView* view)
{
    const QObject* root = view ? view->rootObject() : nullptr;
    return root ? root->findChild<QObject*>(QStringLiteral("thePlayer")) : nullptr;
}

} // namespace

bool PlayerView::showsDocument() const
{
    const QObject* player = playerIn(m_view);
    return player && player->property("item").value<QObject*>();
}

void PlayerView::unload() const
{
    if (QObject* player = playerIn(m_view))
        player->setProperty("source", QUrl());
    forgetCompiled();
}

void PlayerView::forgetCompiled() const
{
    if (!m_view)
        return;
    QObject* root = m_view->rootObject();
    QVariant mayForget = true;
    if (root && root->metaObject()->indexOfMethod("prepareForgetting()") >= 0)
        QMetaObject::invokeMethod(root, "prepareForgetting", Q_RETURN_ARG(QVariant, mayForget));
    if (mayForget.toBool())
        m_view->engine()->clearComponentCache();
}
