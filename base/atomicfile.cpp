// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/atomicfile.h"

#include "base/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace {

bool fail(const char* action, const QString& path, const char* reason)
{
    qCWarning(lcBase) << "Cannot" << action << path << "-" << reason;
    return false;
}

bool syncPath(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool synced = ::fsync(fd) == 0;
    const int error = errno;
    ::close(fd);
    errno = error;
    return synced;
}

// Creates `file` under a name that nobody uses; a crashed run with the same process id may have left some.
bool createBeside(QFile& file, const QString& path)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        file.setFileName(temporaryPathBeside(path));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            return true;
        if (!file.exists())
            break;
    }
    return fail("write beside", path, qPrintable(file.errorString()));
}

bool fill(QFile& file, const QByteArray& bytes)
{
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    if (!written)
        fail("write all of", file.fileName(), std::strerror(errno));
    file.close();
    return written;
}

} // namespace

QString temporaryPathBeside(const QString& path)
{
    static std::atomic_uint counter{0};
    const QFileInfo info(path);
    return QStringLiteral("%1/.%2.%3-%4.tmp")
        .arg(info.path(), info.fileName().left(64))
        .arg(QCoreApplication::applicationPid())
        .arg(++counter);
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes)
{
    const QFileInfo info(path);
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    const QFileInfo old(target);
    if (old.exists() && !(old.isFile() && old.isWritable()))
        return fail("write", target, "not a writable file");
    QFile file;
    if (!createBeside(file, target))
        return false;
    if (old.exists())
        file.setPermissions(old.permissions());
    if (fill(file, bytes) && replaceFile(file.fileName(), target))
        return true;
    file.remove();
    return false;
}

bool replaceFile(const QString& from, const QString& to)
{
    if (!syncPath(from))
        return fail("sync", from, std::strerror(errno));
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return fail("replace", to, std::strerror(errno));
    const QString folder = QFileInfo(to).path();
    if (!syncPath(folder))
        qCWarning(lcBase) << "Cannot sync the folder" << folder << "-" << std::strerror(errno);
    return true;
}
