// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/recordlock.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

RecordLock::RecordLock(const QString& folder)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

bool RecordLock::isOurs()
{
    if (!m_isOurs)
        m_isOurs = ::flock(m_folder.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    return m_isOurs;
}
