// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <atomic>

/// What work on another thread shares with whoever asked for it: whether it is to stop, and how far it has
/// come. The work looks at it in each of its loops. Any thread.
class JobControl
{
public:
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }
    /// Cancels, and leaves even what is to be tidied up then to the next start: the program ends.
    void abandon()
    {
        m_abandoned = true;
        cancel();
    }
    bool isAbandoned() const { return m_abandoned; }

    /// The size of the whole work, in bytes or whatever it counts.
    void setTotal(qint64 total) { m_total = total; }
    void advance(qint64 amount) { m_done += amount; }
    /// 0 to 1; 0 while the total is not known.
    double progress() const { return m_total > 0 ? qMin(1.0, double(m_done) / double(m_total)) : 0; }

private:
    std::atomic_bool m_cancelled{false};
    std::atomic_bool m_abandoned{false};
    std::atomic<qint64> m_total{0};
    std::atomic<qint64> m_done{0};
};
