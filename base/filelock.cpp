// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/filelock.h"

#include <QFile>

#include <sys/file.h>

bool lockOwn(int fd, const QString& path)
{
    ::flock(fd, LOCK_EX);
    return QFile::exists(path);
}

bool lockAbandoned(int fd)
{
    return ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}
