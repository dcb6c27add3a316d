// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How an operation ended: it succeeded, or it failed for a reason that can be told. A value.
class [[nodiscard]] Outcome
{
public:
    static Outcome success() { return {}; }
    /// `reason` is a short text for the log and for users, without a full stop.
    static Outcome failure(const QString& reason) { return Outcome(reason); }

    explicit operator bool() const { return m_succeeded; }
    /// Empty after a success.
    QString reason() const { return m_reason; }

private:
    Outcome() = default;
    explicit Outcome(const QString& reason)
        : m_succeeded(false)
        , m_reason(reason)
    {
    }

    bool m_succeeded = true;
    QString m_reason;
};
