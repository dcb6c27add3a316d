// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/folderexchange.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>

namespace {

bool exchange(const QByteArray& one, const QByteArray& other)
{
    return ::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0;
}

bool move(const QByteArray& from, const QByteArray& to)
{
    return std::rename(from.constData(), to.constData()) == 0;
}

bool replaceInTwoSteps(const QByteArray& from, const QByteArray& to, const QByteArray& aside)
{
    if (!move(to, aside))
        return false;
    if (move(from, to))
        return true;
    const int error = errno;
    move(aside, to);
    errno = error;
    return false;
}

bool replace(const QByteArray& from, const QByteArray& to, const QByteArray& aside)
{
    if (exchange(from, to))
        return true;
    const bool isUnknownHere = errno == EINVAL || errno == ENOSYS;
    return isUnknownHere && replaceInTwoSteps(from, to, aside);
}

} // namespace

Outcome replaceFolder(const QString& from, const QString& to, const QString& aside)
{
    return replace(QFile::encodeName(from), QFile::encodeName(to), QFile::encodeName(aside))
               ? Outcome::success()
               : Outcome::failure(qt_error_string(errno));
}
