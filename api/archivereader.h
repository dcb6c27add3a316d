// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QFile>
#include <QSet>
#include <QVector>

#include <quazip/quazip.h>

class JobControl;
class QuaZipFile;

/// What an archive calls its project: the name of its first entry, without a final "/". Reads no more of it
/// than that entry's record. Empty, with a line in the log, when the archive cannot be read, has no entries
/// or the name could lead out of a folder.
QString archiveProjectName(const QString& zipFile);

/// A project archive, a ZIP file, opened for reading. Any thread, one at a time.
///
/// JlCompress is not used for reading: it cuts names at 256 bytes, follows links, passes over what it does
/// not like, and on a late failure removes the older files that it had replaced.
class ArchiveReader
{
public:
    explicit ArchiveReader(const QString& zipFile);

    /// Reads and judges the archive's directory; a failure says why it must not be unpacked (archiveFault()).
    /// Nothing is unpacked before that has succeeded.
    Outcome open();
    /// The directory. Names are those of the files, whatever encoding the archive has them in.
    const QVector<QuaZipFileInfo64>& entries() const { return m_entries; }
    /// Unpacks every entry into the empty folder `target`; counts bytes. Permissions are not taken over.
    Outcome extractTo(const QString& target, JobControl& control);

private:
    friend QString archiveProjectName(const QString& zipFile);

    Outcome openFile();
    bool readEntry(QuaZipFileInfo64& entry) const;
    bool listEntries();
    Outcome extractEntry(const QuaZipFileInfo64& entry, const QString& path, JobControl& control);
    Outcome copy(QuaZipFile& source, QFile& target, quint64 size, JobControl& control);
    bool makeFolder(const QString& path);

    QFile m_file;
    QuaZip m_zip;
    QVector<QuaZipFileInfo64> m_entries;
    QSet<QString> m_folders;
    QByteArray m_buffer;
    qint64 m_unsynced = 0; // bytes
};
