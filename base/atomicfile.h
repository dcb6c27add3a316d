// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QByteArray>
#include <QFile>
#include <QString>

class JobControl;

/// A file that is written beside its target and takes the target's place, whole, when it is complete, also
/// across a crash or power loss.
///
/// A target that is a link is followed, an existing one's permissions are kept; its folder must exist. Until
/// commit() the bytes stand in a hidden file in the target's folder, which goes with this object; what a
/// killed process leaves of it, removeAbandonedFiles() takes away. Any thread, one at a time.
class AtomicFile
{
public:
    explicit AtomicFile(const QString& path);
    ~AtomicFile();
    Q_DISABLE_COPY(AtomicFile)

    /// The file that is replaced.
    QString target() const { return m_target; }
    /// Where the bytes stand until then.
    QString temporaryPath() const { return m_file.fileName(); }

    /// Makes the hidden file.
    Outcome open();
    /// What to write to, once open() has succeeded. Whoever writes compares what each call has written: a
    /// short one is no error of the device.
    QFileDevice& device() { return m_file; }
    /// Puts what was written in the target's place. After a failure the target is untouched.
    Outcome commit();

private:
    QString m_target;
    QFile m_file;
};

/// Puts `bytes` in place of the file `path` as AtomicFile does; a failure is logged. Any thread.
bool writeFileAtomically(const QString& path, const QByteArray& bytes);

/// Puts the finished file `from` in place of `to`, on the same file system: syncs it, renames it over `to`,
/// syncs the folder. On failure (logged) both files are as they were. Any thread.
bool replaceFile(const QString& from, const QString& to);

/// Path of a hidden file beside `path` that no other call returns. Not created.
QString temporaryPathBeside(const QString& path);

/// Removes the file `path` if temporaryPathBeside() named it and no running process is writing it.
void removeAbandonedFile(const QString& path);

/// Removes what killed processes left of atomic files in `folder` and below it; links are not followed.
/// Blocks, until all is done or `control` is cancelled.
void removeAbandonedFiles(const QString& folder, const JobControl& control);
