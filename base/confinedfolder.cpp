// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/confinedfolder.h"

#include "base/safepath.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

Outcome systemFailure()
{
    return Outcome::failure(QString::fromLocal8Bit(std::strerror(errno)));
}

Outcome openFailure()
{
    return errno == EXDEV ? Outcome::failure(QStringLiteral("a link leads out of the folder"))
                          : systemFailure();
}

bool isRegular(int fd)
{
    struct stat info
    {
    };
    return ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
}

// Splits a path in its folder, empty for the root, and its last part.
std::pair<QByteArray, QByteArray> split(const QByteArray& path)
{
    const int slash = path.lastIndexOf('/');
    return {path.left(qMax(slash, 0)), path.mid(slash + 1)};
}

} // namespace

FileDescriptor::~FileDescriptor()
{
    if (isOpen())
        ::close(m_fd);
}

int FileDescriptor::release()
{
    return std::exchange(m_fd, -1);
}

ConfinedFolder::ConfinedFolder(const QString& root)
    : m_root(::open(QFile::encodeName(root).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

FileDescriptor ConfinedFolder::open(const QByteArray& path, int flags) const
{
    open_how how{};
    how.flags = quint64(flags | O_CLOEXEC);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    const char* name = path.isEmpty() ? "." : path.constData();
    return FileDescriptor(int(::syscall(SYS_openat2, m_root.get(), name, &how, sizeof how)));
}

FileDescriptor ConfinedFolder::makeFolder(const QByteArray& path) const
{
    FileDescriptor there = open(path, O_PATH | O_DIRECTORY);
    if (there.isOpen() || errno != ENOENT || path.isEmpty())
        return there;
    const auto [parentPath, name] = split(path);
    const FileDescriptor parent = makeFolder(parentPath);
    if (!parent.isOpen() || (::mkdirat(parent.get(), name.constData(), 0777) != 0 && errno != EEXIST))
        return FileDescriptor();
    return open(path, O_PATH | O_DIRECTORY);
}

Outcome ConfinedFolder::openForReading(const QString& path, QFile& file) const
{
    if (const QString fault = pathFault(path); !fault.isEmpty())
        return Outcome::failure(fault);
    FileDescriptor fd =
        open(QFile::encodeName(path), O_RDONLY | O_NONBLOCK); // a pipe would wait for a writer
    if (!fd.isOpen())
        return openFailure();
    if (!isRegular(fd.get()))
        return Outcome::failure(QStringLiteral("not a file"));
    file.open(fd.release(), QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    return Outcome::success();
}

Outcome ConfinedFolder::moveInto(const QString& from, const QString& path) const
{
    if (const QString fault = pathFault(path); !fault.isEmpty())
        return Outcome::failure(fault);
    const auto [folderPath, name] = split(QFile::encodeName(path));
    const FileDescriptor folder = makeFolder(folderPath);
    if (!folder.isOpen())
        return openFailure();
    const QByteArray source = QFile::encodeName(from);
    return ::renameat(AT_FDCWD, source.constData(), folder.get(), name.constData()) == 0 ? Outcome::success()
                                                                                         : systemFailure();
}

Outcome ConfinedFolder::sync() const
{
    return ::syncfs(m_root.get()) == 0 ? Outcome::success() : systemFailure();
}

qint64 ConfinedFolder::bytesAvailable() const
{
    struct statvfs info
    {
    };
    return ::fstatvfs(m_root.get(), &info) == 0 ? qint64(info.f_bavail) * qint64(info.f_frsize) : 0;
}
