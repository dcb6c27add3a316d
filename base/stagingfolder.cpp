// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/stagingfolder.h"

#include "base/filelock.h"
#include "base/jobcontrol.h"
#include "base/logging.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int openFolder(const QString& path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool removeFolder(const QString& path, const JobControl& control)
{
    QDirIterator children(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (children.hasNext() && !control.isAbandoned()) {
        const QString child = children.next();
        if (children.fileInfo().isDir() && !children.fileInfo().isSymLink())
            removeFolder(child, control);
        else
            QFile::remove(child);
    }
    return QDir().rmdir(path);
}

} // namespace

StagingFolder::StagingFolder(const QString& path, int fd)
    : m_path(path)
    , m_fd(fd)
{
}

StagingFolder::StagingFolder(StagingFolder&& other) noexcept
    : m_path(std::exchange(other.m_path, QString()))
    , m_fd(std::exchange(other.m_fd, -1))
{
}

StagingFolder::~StagingFolder()
{
    remove(JobControl());
}

void StagingFolder::remove(const JobControl& control)
{
    if (m_fd < 0)
        return;
    if (!removeFolder(m_path, control) && !control.isAbandoned())
        qCWarning(lcBase) << "Cannot remove all of" << m_path;
    leave();
}

void StagingFolder::leave()
{
    ::close(std::exchange(m_fd, -1));
}

Outcome StagingFolder::create(const QString& parent, const QString& prefix)
{
    constexpr int digits = 16;
    constexpr int hexadecimal = 16;
    constexpr mode_t ownersOnly = 0700;
    const QString path =
        QStringLiteral("%1/%2%3")
            .arg(parent, prefix)
            .arg(QRandomGenerator::system()->generate64(), digits, hexadecimal, QLatin1Char('0'));
    for (;;) {
        if (::mkdir(QFile::encodeName(path).constData(), ownersOnly) != 0)
            return Outcome::failure(qt_error_string(errno));
        const int fd = openFolder(path);
        if (fd >= 0 && lockOwn(fd, path)) {
            m_path = path;
            m_fd = fd;
            return Outcome::success();
        }
        ::close(fd); // another start of the program has removed it
    }
}

std::vector<StagingFolder> StagingFolder::abandoned(const QString& parent, const QString& prefix)
{
    std::vector<StagingFolder> folders;
    const QStringList names =
        QDir(parent).entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const QString path = parent + QLatin1Char('/') + name;
        const int fd = openFolder(path);
        if (fd >= 0 && lockAbandoned(fd))
            folders.push_back(StagingFolder(path, fd));
        else
            ::close(fd);
    }
    return folders;
}

Outcome StagingFolder::sync() const
{
    return ::syncfs(m_fd) == 0 ? Outcome::success() : Outcome::failure(qt_error_string(errno));
}
