// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/imports.h"

#include "api/capi.h"
#include "api/importqueue.h"

void Imports::classBegin()
{
    CAPI* capi = CAPI::of(this);
    if (!capi)
        return;
    m_queue = &capi->imports();
    connect(m_queue, &ImportQueue::runningChanged, this, &Imports::runningChanged);
    connect(m_queue, &ImportQueue::progressChanged, this, &Imports::progressChanged);
    connect(m_queue, &ImportQueue::finished, this, &Imports::finished);
}

bool Imports::isRunning() const
{
    return m_queue && m_queue->isRunning();
}

QString Imports::archive() const
{
    return m_queue ? m_queue->archive() : QString();
}

double Imports::progress() const
{
    return m_queue ? m_queue->progress() : 0;
}

void Imports::start(const QString& archive)
{
    const CAPI* capi = CAPI::of(this);
    if (capi && m_queue)
        m_queue->start(capi->resolvedPath(archive));
}

void Imports::cancel()
{
    if (m_queue)
        m_queue->cancel();
}
