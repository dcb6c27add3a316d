// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

class QFile;

/// An open file descriptor (or -1), closed with this object.
class FileDescriptor
{
public:
    explicit FileDescriptor(int fd = -1)
        : m_fd(fd)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_fd(other.release())
    {
    }
    ~FileDescriptor();
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    bool isOpen() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    /// The descriptor, which the caller closes from now on.
    int release();

private:
    int m_fd;
};

/// A folder in which others name the files: by safe paths (see safepath.h), and so that nothing outside of it
/// is ever reached, whatever links lie in it and whoever changes them meanwhile. Relative links that stay
/// inside are followed, except in the place of a file that is moved in; any other link is not.
///
/// It stays open while this object lives. Every failure says why; a path that leads out fails like any other.
/// Reentrant. By openat2(2) with RESOLVE_BENEATH.
class ConfinedFolder
{
public:
    /// When `root` cannot be opened, everything fails.
    explicit ConfinedFolder(const QString& root);

    /// Opens the regular file `path` for reading, unbuffered; `file` closes it.
    Outcome openForReading(const QString& path, QFile& file) const;
    /// Moves the file `from`, any path on the same file system, to `path`: in place of the file or link that
    /// is there, and making the folders on the way.
    Outcome moveInto(const QString& from, const QString& path) const;
    /// Brings everything that was written to the folder's file system to the disk.
    Outcome sync() const;
    /// Bytes that may still be written to the folder's file system.
    qint64 bytesAvailable() const;

private:
    FileDescriptor open(const QByteArray& path, int flags) const;
    FileDescriptor makeFolder(const QByteArray& path) const;

    FileDescriptor m_root;
};
