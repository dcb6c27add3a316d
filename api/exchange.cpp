// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/exchange.h"

#include "api/capi.h"
#include "api/localnetwork.h"

void Exchange::classBegin()
{
    m_capi = CAPI::of(this);
    if (!m_capi)
        return;
    connect(m_capi, &CAPI::playerConnectionStarted, this, &Exchange::playersChanged);
    connect(m_capi, &CAPI::playerConnectionFinished, this, &Exchange::playersChanged);
}

QStringList Exchange::players() const
{
    return m_capi ? network()->players() : QStringList();
}

QString Exchange::addressOf(const QString& player) const
{
    return m_capi ? network()->addressOf(player) : QString();
}

ProjectExchange* Exchange::status() const
{
    return m_capi ? &network()->projectExchange() : nullptr;
}

bool Exchange::send(const QString& player, const QString& project)
{
    return m_capi && network()->exchange(player, ProjectExchange::Direction::Send, project);
}

bool Exchange::fetch(const QString& player, const QString& project)
{
    return m_capi && network()->exchange(player, ProjectExchange::Direction::Fetch, project);
}

void Exchange::cancel()
{
    if (m_capi)
        network()->projectExchange().cancel();
}

LocalNetwork* Exchange::network() const
{
    return &m_capi->localNetwork();
}
