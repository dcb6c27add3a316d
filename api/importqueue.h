// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/backgroundjob.h"

#include <QStringList>
#include <QVector>

/// Imports project archives in the background, one after the other (importArchive()). GUI thread.
class ImportQueue : public QObject
{
    Q_OBJECT

public:
    /// Imports into the folder `work` of all projects. An import under way stops when this object goes, which
    /// may leave something for Leftovers at the next start.
    explicit ImportQueue(const QString& work);

    /// Imports this archive when those begun before have ended; for `folder` see importArchive().
    void start(const QString& zipFile, const QString& folder = {});
    /// Stops the import under way and forgets those that wait. What is already being put in place is
    /// finished.
    void cancel();
    bool isRunning() const { return m_job.isRunning(); }
    /// The archive being imported; the last one when none is.
    QString archive() const { return m_archive; }
    /// Of that archive, 0 to 1.
    double progress() const { return m_job.progress(); }

signals:
    /// Imports have begun, with the archive as archive(), or have all ended.
    void runningChanged(bool running);
    void progressChanged();
    /// An import has ended. `error` says why it failed, in words; it is empty after a success and when it was
    /// cancelled. `projects` are the names of the projects that are new or renewed; an archive may hold none.
    void finished(const QString& zipFile, const QString& error, const QStringList& projects, bool cancelled);

private:
    struct Waiting
    {
        QString archive;
        QString folder;
    };

    void startNext();
    void report(const Outcome& outcome);

    QString m_work;
    QVector<Waiting> m_waiting;
    QString m_archive;
    QStringList m_projects; // the pool thread's while an import runs
    BackgroundJob m_job;
};
