// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/scriptwatch.h"

#include <QJSEngine>

ScriptWatch::ScriptWatch(QJSEngine& engine, std::chrono::milliseconds deadline)
    : m_engine(engine)
    , m_thread([this, deadline] { watch(deadline); })
{
}

ScriptWatch::~ScriptWatch()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_wake.notify_one();
    m_thread.join();
    m_engine.setInterrupted(false);
}

bool ScriptWatch::hasStruck() const
{
    return m_engine.isInterrupted();
}

void ScriptWatch::watch(std::chrono::milliseconds deadline)
{
    std::unique_lock lock(m_mutex);
    if (!m_wake.wait_for(lock, deadline, [this] { return m_isOver; }))
        m_engine.setInterrupted(true); // may be called from any thread
}
