// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How an operation ended: it succeeded, it failed for a reason that can be told, or it stopped because it
/// was asked to. A value.
class [[nodiscard]] Outcome
{
public:
    static Outcome success() { return Outcome(End::Success); }
    /// `reason` is a short text for the log and for users, without a full stop.
    static Outcome failure(const QString& reason) { return Outcome(End::Failure, reason); }
    static Outcome cancelled() { return Outcome(End::Cancelled); }

    /// Whether it succeeded.
    explicit operator bool() const { return m_end == End::Success; }
    bool isCancelled() const { return m_end == End::Cancelled; }
    /// Empty unless it failed.
    QString reason() const { return m_reason; }

private:
    enum class End { Success, Failure, Cancelled };

    explicit Outcome(End end, const QString& reason = {})
        : m_end(end)
        , m_reason(reason)
    {
    }

    End m_end;
    QString m_reason;
};
