// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/jobcontrol.h"
#include "base/outcome.h"

#include <QFuture>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

/// One piece of work at a time on a thread of the global pool, seen from the GUI thread.
class BackgroundJob : public QObject
{
    Q_OBJECT

public:
    /// The work. It looks at the control in its loops; what it captures by reference must outlive this
    /// object.
    using Work = std::function<Outcome(JobControl&)>;

    BackgroundJob();
    /// Abandons the work and waits until it has stopped.
    ~BackgroundJob() override;

    /// Begins; not while running.
    void start(const Work& work);
    /// Asks the work to stop; finished() follows.
    void cancel() { m_control->cancel(); }
    bool isRunning() const { return m_running; }
    /// Of the work under way or the last one, 0 to 1.
    double progress() const { return m_control->progress(); }

signals:
    /// progress() is to be looked at again; some times a second.
    void progressChanged();
    /// The work has ended; isRunning() is false.
    void finished(const Outcome& outcome);

private:
    void report();

    std::unique_ptr<JobControl> m_control; // also the pool thread's
    Outcome m_outcome;                     // the pool thread's while running
    std::atomic_bool m_ended{false};       // orders what both threads see
    bool m_running = false;
    QTimer m_progressTimer;
    QFuture<void> m_future;
};
