// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <algorithm>
#include <mutex>

/// Collects what is logged, from any thread, while it exists; at most one at a time.
class LogCapture
{
public:
    LogCapture()
    {
        {
            const std::lock_guard lock(mutex());
            current() = this;
        }
        m_previous = qInstallMessageHandler(keep);
    }

    ~LogCapture()
    {
        qInstallMessageHandler(m_previous);
        const std::lock_guard lock(mutex()); // another thread may be at a message still
        current() = nullptr;
    }

    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// The messages so far.
    QStringList messages() const
    {
        const std::lock_guard lock(mutex());
        return m_messages;
    }

    /// Whether some message contains `text`.
    bool contains(const QString& text) const
    {
        const QStringList all = messages();
        return std::any_of(all.cbegin(), all.cend(), [&](const QString& m) { return m.contains(text); });
    }

private:
    static std::mutex& mutex()
    {
        static std::mutex instance;
        return instance;
    }

    static LogCapture*& current()
    {
        static LogCapture* instance = nullptr;
        return instance;
    }

    static void keep(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        const std::lock_guard lock(mutex());
        if (current())
            current()->m_messages.append(message);
    }

    QStringList m_messages;
    QtMessageHandler m_previous;
};
