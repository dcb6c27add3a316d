// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/exchangetype.h"

#include "api/localnetwork.h"

#include <QQmlContext>
#include <QQmlEngine>

void ExchangeType::componentComplete()
{
    const QVariant property = qmlEngine(this)->rootContext()->contextProperty(QStringLiteral("CAPI"));
    m_capi = qobject_cast<CAPI*>(property.value<QObject*>());
    if (!m_capi)
        return;
    connect(m_capi, &CAPI::playerConnectionStarted, this, &ExchangeType::playersChanged);
    connect(m_capi, &CAPI::playerConnectionFinished, this, &ExchangeType::playersChanged);
    emit playersChanged();
    emit statusChanged();
}

QStringList ExchangeType::players() const
{
    return m_capi ? network()->players() : QStringList();
}

ProjectExchange* ExchangeType::status() const
{
    return m_capi ? &network()->projectExchange() : nullptr;
}

bool ExchangeType::send(const QString& player, const QString& project)
{
    return m_capi && network()->exchange(player, ProjectExchange::Direction::Send, project);
}

bool ExchangeType::fetch(const QString& player, const QString& project)
{
    return m_capi && network()->exchange(player, ProjectExchange::Direction::Fetch, project);
}

void ExchangeType::cancel()
{
    if (m_capi)
        network()->projectExchange().cancel();
}

LocalNetwork* ExchangeType::network() const
{
    return &m_capi->localNetwork();
}
