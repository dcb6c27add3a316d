// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/atomicfile.h"

#include "base/filelock.h"
#include "base/jobcontrol.h"
#include "base/logging.h"
#include "base/sync.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>
#include <cstdio>

#include <unistd.h>

namespace {

bool fail(const char* action, const QString& path, const QString& reason)
{
    qCWarning(lcBase) << "Cannot" << action << path << "-" << reason;
    return false;
}

QString resolvedTarget(const QString& path)
{
    const QFileInfo info(path);
    return info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
}

// The new name is on the disk once its folder is; the file is in place all the same.
Outcome rename(const QString& from, const QString& to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return Outcome::failure(qt_error_string(errno));
    const QString folder = QFileInfo(to).path();
    if (!syncPath(folder))
        qCWarning(lcBase) << "Cannot sync the folder" << folder << "-" << qt_error_string(errno);
    return Outcome::success();
}

Outcome writeAll(AtomicFile& file, const QByteArray& bytes)
{
    Outcome opened = file.open();
    if (!opened)
        return opened;
    if (file.device().write(bytes) != bytes.size()) // a short write is no error to QFile
        return Outcome::failure(qt_error_string(errno));
    return file.commit();
}

} // namespace

AtomicFile::AtomicFile(const QString& path)
    : m_target(resolvedTarget(path))
    , m_file(temporaryPathBeside(m_target))
{
}

AtomicFile::~AtomicFile()
{
    if (m_file.isOpen()) // by its name: a device that cannot write its last bytes does not remove its file
        QFile::remove(m_file.fileName());
}

Outcome AtomicFile::open()
{
    const QFileInfo old(m_target);
    if (old.exists() && !(old.isFile() && old.isWritable()))
        return Outcome::failure(QStringLiteral("not a writable file"));
    do {
        m_file.close();
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return Outcome::failure(m_file.errorString());
    } while (!lockOwn(m_file.handle(), m_file.fileName()));
    if (old.exists())
        m_file.setPermissions(old.permissions());
    return Outcome::success();
}

Outcome AtomicFile::commit()
{
    if (!m_file.flush() || m_file.error() != QFileDevice::NoError)
        return Outcome::failure(m_file.errorString());
    if (::fsync(m_file.handle()) != 0)
        return Outcome::failure(qt_error_string(errno));
    Outcome renamed = rename(m_file.fileName(), m_target);
    if (renamed)
        m_file.close();
    return renamed;
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes)
{
    AtomicFile file(path);
    const Outcome outcome = writeAll(file, bytes);
    return outcome || fail("write", file.target(), outcome.reason());
}

bool replaceFile(const QString& from, const QString& to)
{
    if (!syncPath(from))
        return fail("sync", from, qt_error_string(errno));
    const Outcome renamed = rename(from, to);
    return renamed || fail("replace", to, renamed.reason());
}

QString temporaryPathBeside(const QString& path)
{
    constexpr int digits = 16;
    constexpr int hexadecimal = 16;
    constexpr int nameLength = 64; // leaves room below the file system's bound
    const QFileInfo info(path);
    return QStringLiteral("%1/.%2.%3.tmp")
        .arg(info.path(), info.fileName().left(nameLength))
        .arg(QRandomGenerator::system()->generate64(), digits, hexadecimal, QLatin1Char('0'));
}

void removeAbandonedFile(const QString& path)
{
    static const QRegularExpression ownName(QStringLiteral("/\\.[^/]+\\.[0-9a-f]{16}\\.tmp$"));
    QFile file(path);
    // Removed by its name while it is open: closing it would free the lock.
    if (path.contains(ownName) && file.open(QIODevice::ReadOnly) && lockAbandoned(file.handle()) &&
        !QFile::remove(path))
        fail("remove", path, qt_error_string(errno));
}

void removeAbandonedFiles(const QString& folder, const JobControl& control)
{
    QDirIterator files(folder, {QStringLiteral(".*.tmp")}, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
    while (!control.isCancelled() && files.hasNext())
        removeAbandonedFile(files.next());
}
