// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class QJSEngine;

/// Ends scripts that run on and on: while it exists, an engine may run for so long; then its scripts are cut
/// off wherever they are. Constructed and destroyed in the engine's thread.
class ScriptWatch
{
public:
    ScriptWatch(QJSEngine& engine, std::chrono::milliseconds deadline);
    /// Lets the engine run scripts again.
    ~ScriptWatch();
    ScriptWatch(const ScriptWatch&) = delete;
    ScriptWatch& operator=(const ScriptWatch&) = delete;

    /// Whether the deadline has passed and scripts were cut off.
    bool hasStruck() const;

private:
    void watch(std::chrono::milliseconds deadline);

    QJSEngine& m_engine;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isOver = false;
    std::thread m_thread; // the last member: it uses those above
};
