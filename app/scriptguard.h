// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/limits.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class QJSEngine;

/// Cuts scripts off that keep the event loop from going on, so that no project and no command freezes the
/// program for good: after `deadline` without a turn of the loop. Lives in the engine's thread, the
/// application's.
class ScriptGuard : public QObject
{
    Q_OBJECT

public:
    explicit ScriptGuard(QJSEngine& engine, std::chrono::milliseconds deadline = limits::scriptDeadline);
    ~ScriptGuard() override;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void watch(std::chrono::milliseconds step);

    QJSEngine& m_engine;
    std::atomic_int m_silentSteps{0}; // counted, not timed: a program that was halted has not been silent
    std::mutex m_mutex;               // guards the next two, and the engine's interruption
    std::condition_variable m_wake;
    bool m_isOver = false;
    std::thread m_thread; // the last member: it uses those above
};
