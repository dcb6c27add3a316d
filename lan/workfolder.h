// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/confinedfolder.h"

#include <QSet>
#include <QTemporaryFile>

#include <memory>

class LanHost;

/// The work directory as other players reach it: what they ask for and send stays inside, and what they send
/// appears whole or not at all, and never in the place of something better: nothing that is empty in that of
/// a file that is not, no text that is no document in that of a project's main.qml that is one, no directory
/// map without main.qml in that of one with it. All paths are relative to it. For one thread.
class WorkFolder
{
public:
    /// `host` outlives this object.
    explicit WorkFolder(const LanHost& host);

    /// Why another player must not name `path`; empty when it may.
    static QString faultForPeers(const QString& path);
    /// The project whose directory map `path` is; empty when it is another file.
    static QString projectOfMap(const QString& path);

    /// Whether there is a directory map of the project.
    bool hasMap(const QString& project) const;
    /// Opens a file for reading; see ConfinedFolder.
    Outcome openForReading(const QString& path, QFile& file) const;
    /// Whether a file of so many bytes fits and leaves the reserve of limits.h.
    bool hasRoomFor(qint64 bytes) const;

    /// A new file in the hidden folder, open for writing; null when there cannot be one. It goes with the
    /// object, unless it is put() somewhere.
    std::unique_ptr<QTemporaryFile> newFile() const;
    /// Path of such a file.
    QString pathOf(const QTemporaryFile& file) const;
    /// Moves such a file, written completely, to `path`, in place of what is there unless that is better.
    Outcome put(QTemporaryFile& file, const QString& path) const;
    /// The same for the directory map of `project`, after everything else has come to the disk. The files
    /// `missed`, relative to the project, keep the revisions that they had.
    Outcome putMap(QTemporaryFile& file, const QString& project, const QSet<QString>& missed) const;

    /// Deletes what an earlier run, which was killed, left in the hidden folder of the work directory `path`.
    static void clean(const QString& path);

private:
    Outcome mayReplace(QFile& file, const QString& path) const;
    bool isDocument(QFile& file) const;

    const LanHost& m_host;
    const QString m_path;
    ConfinedFolder m_folder;
};
