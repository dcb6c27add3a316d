// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/backgroundjob.h"

/// The QML type "Exports" of "Nuvex.Native" 1.1: packs a project of the CAPI that the engine's context
/// property of that name holds. One at a time; one that is under way is stopped when this object goes.
class Exports : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    Exports();

    bool isRunning() const { return m_job.isRunning(); }
    /// 0 to 1.
    double progress() const { return m_job.progress(); }

    /// Packs the project `project` into the archive `zipFile`, a path or a "file:" URL (packArchive()); not
    /// while running.
    Q_INVOKABLE void start(const QString& zipFile, const QString& project);
    /// Stops it; nothing is left, and an older archive stays.
    Q_INVOKABLE void cancel() { m_job.cancel(); }

signals:
    void runningChanged();
    void progressChanged();
    /// It has ended. `error` says why it failed, in words; it is empty after a success and after cancel().
    void finished(const QString& error, bool cancelled);

private:
    BackgroundJob m_job;
};
