// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QStringList>
#include <QVector>

#include <condition_variable>
#include <mutex>
#include <optional>

/// Files that one caller has moved over a connection, in order, and waits for. Thread-safe: the connection's
/// thread works on it, one file after the other, while the caller's thread waits.
class FileBatch
{
public:
    struct File
    {
        QString localPath; ///< relative to the work directory, here and there
        QString remotePath;
    };

    explicit FileBatch(const QVector<File>& files)
        : m_files(files)
    {
    }

    /// The file to move next; nothing after the last one, or when the batch has ended.
    std::optional<File> next();
    /// The first file that next() has returned and that is not finished.
    File current() const;
    /// Whether there is such a file.
    bool isUnderWay() const;
    /// The current file has been moved, or not, for the reason in `outcome`.
    void finish(const Outcome& outcome);
    /// Nothing more will be moved, for `reason`: the connection has ended, or the caller has cancelled. What
    /// is over already stays as it is.
    void end(const QString& reason);
    bool hasEnded() const;

    /// Blocks until the last file is finished or the batch has ended; a failure in the latter case only.
    Outcome wait();
    /// Number of files that are finished.
    int finished() const;
    int size() const { return m_files.size(); }
    /// Remote paths of the finished files that were not moved.
    QStringList missed() const;

private:
    bool isOver() const { return m_ended || m_finished == m_files.size(); }

    const QVector<File> m_files;
    mutable std::mutex m_mutex; // guards everything below
    std::condition_variable m_over;
    int m_begun = 0;
    int m_finished = 0;
    QStringList m_missed;
    bool m_ended = false;
    QString m_reason;
};
