// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QHostAddress>

#include <mutex>

/// Keeps what other players do from filling the log: of each address a few lines, then one line a minute that
/// says how many were left out. Thread-safe.
class PeerLog
{
public:
    /// Writes what summarize() would.
    ~PeerLog();

    /// Whether a line about the player at `address` may be written now. The addresses beyond those that
    /// limits.h allows for count as one.
    bool admits(const QHostAddress& address);
    /// Writes how many lines were left out since the last call, and begins anew. Called every
    /// limits::logPeriod.
    void summarize();

private:
    std::mutex m_mutex;
    QHash<QHostAddress, int> m_lines; // since the last summary; null: of all the addresses beyond
};
