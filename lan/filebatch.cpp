// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/filebatch.h"

std::optional<FileBatch::File> FileBatch::next()
{
    const std::lock_guard lock(m_mutex);
    if (m_ended || m_begun == m_files.size())
        return std::nullopt;
    return m_files[m_begun++];
}

FileBatch::File FileBatch::current() const
{
    const std::lock_guard lock(m_mutex);
    return m_files[m_finished];
}

bool FileBatch::isUnderWay() const
{
    const std::lock_guard lock(m_mutex);
    return m_finished < m_begun;
}

void FileBatch::finish(const Outcome& outcome)
{
    const std::lock_guard lock(m_mutex);
    if (!outcome)
        m_missed.append(m_files[m_finished].remotePath);
    ++m_finished;
    if (isOver())
        m_over.notify_all();
}

void FileBatch::end(const QString& reason)
{
    const std::lock_guard lock(m_mutex);
    if (isOver())
        return;
    m_ended = true;
    m_reason = reason;
    m_over.notify_all();
}

bool FileBatch::hasEnded() const
{
    const std::lock_guard lock(m_mutex);
    return m_ended;
}

Outcome FileBatch::wait()
{
    std::unique_lock lock(m_mutex);
    m_over.wait(lock, [this] { return isOver(); });
    return m_ended ? Outcome::failure(m_reason) : Outcome::success();
}

int FileBatch::finished() const
{
    const std::lock_guard lock(m_mutex);
    return m_finished;
}

QStringList FileBatch::missed() const
{
    const std::lock_guard lock(m_mutex);
    return m_missed;
}
