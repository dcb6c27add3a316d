// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QMutex>

/// The log on disk: one line a message, flushed at once. Any thread may write.
///
/// At the size limit the file becomes "<file>.1", in place of the one before, so that a player that runs for
/// months keeps between one and two limits' worth of log.
class LogFile
{
public:
    /// Opens the file for appending and writes "App started". A file that cannot be opened is reported on
    /// standard error, and the object does nothing.
    explicit LogFile(const QString& path);
    ~LogFile();

    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    /// Appends one line, with the time.
    void write(const QString& line);

    /// Writes a copy of all the program's messages to this file until its destruction. One object at a time.
    void captureMessages();

private:
    void startNewFile();

    QMutex m_mutex;
    QFile m_file;
};
