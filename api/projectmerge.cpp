// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/projectmerge.h"

#include "base/jobcontrol.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <unistd.h>

namespace {

Outcome failure(const QFileInfo& file)
{
    return Outcome::failure(file.filePath() + QStringLiteral(": ") + qt_error_string(errno));
}

bool isFolder(const QFileInfo& info)
{
    return info.isDir() && !info.isSymLink();
}

Outcome keepFolder(const QFileInfo& old, const QString& path, const JobControl& control)
{
    constexpr auto ownersRights = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!QDir().mkdir(path) || !QFile::setPermissions(path, old.permissions() | ownersRights))
        return failure(old);
    return keepOtherFiles(old.filePath(), path, control);
}

Outcome copyLink(const QFileInfo& old, const QString& path)
{
    std::array<char, PATH_MAX> target{};
    const bool copied =
        ::readlink(QFile::encodeName(old.filePath()).constData(), target.data(), target.size() - 1) > 0 &&
        ::symlink(target.data(), QFile::encodeName(path).constData()) == 0;
    return copied ? Outcome::success() : failure(old);
}

Outcome copyFile(const QFileInfo& old, const QString& path, const JobControl& control)
{
    constexpr int bufferBytes = 64 * 1024;
    QFile source(old.filePath());
    QFile target(path);
    if (!source.open(QIODevice::ReadOnly) ||
        !target.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return failure(old);
    while (!source.atEnd()) {
        const QByteArray bytes = source.read(bufferBytes);
        if (control.isCancelled())
            return Outcome::cancelled();
        if (bytes.isEmpty() || target.write(bytes) != bytes.size())
            return failure(old);
    }
    target.setPermissions(old.permissions());
    target.setFileTime(old.lastModified(), QFileDevice::FileModificationTime);
    return Outcome::success();
}

// Linked where that is possible, so that what somebody writes in place meanwhile is in both; an import itself
// never writes into it.
Outcome keepFile(const QFileInfo& old, const QString& path, const JobControl& control)
{
    if (::linkat(AT_FDCWD, QFile::encodeName(old.filePath()).constData(), AT_FDCWD,
                 QFile::encodeName(path).constData(), 0) == 0)
        return Outcome::success();
    const bool isMounted = errno == EXDEV; // it would be emptied together with the older project
    if (!isMounted && old.isSymLink())
        return copyLink(old, path);
    return !isMounted && old.isFile() ? copyFile(old, path, control) : failure(old);
}

Outcome keep(const QFileInfo& old, const QFileInfo& fresh, const JobControl& control)
{
    if (!fresh.exists() && !fresh.isSymLink())
        return isFolder(old) ? keepFolder(old, fresh.filePath(), control)
                             : keepFile(old, fresh.filePath(), control);
    const Outcome fits = canReplace(old, fresh);
    return fits && fresh.isDir() ? keepOtherFiles(old.filePath(), fresh.filePath(), control) : fits;
}

} // namespace

Outcome canReplace(const QFileInfo& old, const QFileInfo& fresh)
{
    return isFolder(old) == isFolder(fresh)
               ? Outcome::success()
               : Outcome::failure(old.filePath() + QStringLiteral(": something else has this name"));
}

Outcome keepOtherFiles(const QString& old, const QString& fresh, const JobControl& control)
{
    constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& child : QDir(old).entryInfoList(everything, QDir::Unsorted)) {
        if (control.isCancelled())
            return Outcome::cancelled();
        Outcome kept = keep(child, QFileInfo(fresh + QLatin1Char('/') + child.fileName()), control);
        if (!kept)
            return kept;
    }
    return Outcome::success();
}
