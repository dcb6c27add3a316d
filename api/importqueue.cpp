// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/importqueue.h"

#include "api/projectimport.h"

ImportQueue::ImportQueue(const QString& work)
    : m_work(work)
{
    connect(&m_job, &BackgroundJob::progressChanged, this, &ImportQueue::progressChanged);
    connect(&m_job, &BackgroundJob::finished, this, &ImportQueue::report);
}

void ImportQueue::start(const QString& zipFile, const QString& folder)
{
    m_waiting.append({zipFile, folder});
    if (isRunning())
        return;
    startNext();
    emit runningChanged(true);
}

void ImportQueue::cancel()
{
    m_waiting.clear();
    m_job.cancel();
}

void ImportQueue::startNext()
{
    const Waiting next = m_waiting.takeFirst();
    m_archive = next.archive;
    m_job.start([this, next](JobControl& control) {
        const ImportResult result = importArchive(next.archive, m_work, control, next.folder);
        m_projects = result.projects;
        return result.outcome;
    });
    emit progressChanged();
}

void ImportQueue::report(const Outcome& outcome)
{
    const QString zipFile = m_archive;
    const QStringList projects = m_projects;
    if (m_waiting.isEmpty())
        emit runningChanged(false);
    else
        startNext();
    emit finished(zipFile, outcome.reason(), projects, outcome.isCancelled());
}
