// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/dirmap.h"
#include "lan/filebatch.h"
#include "lan/workfolder.h"

#include <memory>
#include <mutex>

class ThreadConnection;

/// One exchange of a project with a connected player: sends or fetches the files whose revisions differ in
/// the two directory maps, and the map last. Files that only the receiving side has are left alone.
///
/// An exchange blocks its thread, which is not the GUI thread; cancel() and progress() are for others.
class LocalServerFunctions
{
public:
    /// How far an exchange is.
    struct Progress
    {
        int filesDone = 0;
        int files = 0;    ///< that differ; 0 until that is known
        qint64 bytes = 0; ///< of file content that came or went
    };

    /// `connection` outlives this object.
    explicit LocalServerFunctions(ThreadConnection& connection);

    /// Sends the project `folder`. It has succeeded when the peer has all files, and says so itself.
    Outcome shareUp(const QString& folder);
    /// Fetches the peer's project `folder`. On failure the files that have come stay, and come again the next
    /// time.
    Outcome shareDown(const QString& folder);

    /// Number of files that were moved.
    int movedFiles() const { return m_movedFiles; }
    /// Files that a fetch has replaced, relative to the project.
    QStringList replacedFiles() const { return m_replacedFiles; }

    /// Ends the exchange soon. A file that is on the way is still completed on the connection.
    void cancel();
    Progress progress() const;

private:
    using Move = Outcome (ThreadConnection::*)(const std::shared_ptr<FileBatch>&);

    Outcome moveFiles(Move move, const QString& folder, const Dirmap& files);
    Outcome sendDirmap(const QString& folder, const Dirmap& map);
    Outcome confirm(const QString& folder, const Dirmap& sent);
    Outcome fetchRemoteDirmap(const QString& folder, Dirmap& map);
    Outcome keepDirmap(const QString& folder, const Dirmap& map);
    Outcome run(Move move, const std::shared_ptr<FileBatch>& batch);
    QString projectPath(const QString& folder) const;
    Dirmap localDirmap(const QString& folder) const;

    ThreadConnection& m_connection;
    const WorkFolder m_work;
    const qint64 m_bytesBefore;
    QStringList m_replacedFiles;
    QSet<QString> m_missed; // files that were not moved, relative to the project
    int m_movedFiles = 0;

    mutable std::mutex m_mutex; // guards everything below
    std::shared_ptr<FileBatch> m_running;
    std::shared_ptr<FileBatch> m_files; // the project's, for the progress
    bool m_cancelled = false;
};
