// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/backgroundjob.h"

#include "api/limits.h"

#include <QtConcurrent>

BackgroundJob::BackgroundJob()
    : m_control(std::make_unique<JobControl>())
    , m_outcome(Outcome::success())
{
    connect(&m_progressTimer, &QTimer::timeout, this, &BackgroundJob::progressChanged);
}

BackgroundJob::~BackgroundJob()
{
    m_control->abandon();
    m_future.waitForFinished();
}

void BackgroundJob::start(const Work& work)
{
    Q_ASSERT(!m_running);
    m_control = std::make_unique<JobControl>();
    m_running = true;
    m_progressTimer.start(limits::progressInterval);
    m_future = QtConcurrent::run([this, work] {
        m_outcome = work(*m_control);
        m_ended = true;
        QMetaObject::invokeMethod(this, &BackgroundJob::report, Qt::QueuedConnection);
    });
}

void BackgroundJob::report()
{
    if (!m_ended.exchange(false))
        return;
    m_running = false;
    m_progressTimer.stop();
    emit finished(m_outcome);
}
