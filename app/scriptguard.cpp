// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/scriptguard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QJSEngine>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lcScriptGuard, "nuvex.app")

constexpr int stepsToDeadline = 20;

} // namespace

ScriptGuard::ScriptGuard(QJSEngine& engine, std::chrono::milliseconds deadline)
    : m_engine(engine)
    , m_thread([this, step = deadline / stepsToDeadline] { watch(step); })
{
    QCoreApplication::instance()->installEventFilter(this);
    startTimer(deadline / stepsToDeadline);
}

ScriptGuard::~ScriptGuard()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_wake.notify_one();
    m_thread.join();
    m_engine.setInterrupted(false);
}

// Every event of the thread comes by. The first one after a script was cut off finds the engine ready again,
// so that its own scripts are not lost.
bool ScriptGuard::eventFilter(QObject* receiver, QEvent* event)
{
    if (m_silentSteps >= stepsToDeadline) {
        const std::lock_guard lock(m_mutex); // not between the two that watch() does
        m_silentSteps = 0;
        m_engine.setInterrupted(false);
        qCWarning(lcScriptGuard) << "A script that did not end was cut off";
    } else if (receiver == this && event->type() == QEvent::Timer) {
        m_silentSteps = 0;
    }
    return false;
}

void ScriptGuard::watch(std::chrono::milliseconds step)
{
    std::unique_lock lock(m_mutex);
    while (!m_wake.wait_for(lock, step, [this] { return m_isOver; })) {
        if (++m_silentSteps >= stepsToDeadline)
            m_engine.setInterrupted(true); // may be called from any thread
    }
}
