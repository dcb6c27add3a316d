// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/peerlog.h"

#include "lan/limits.h"
#include "lan/logging.h"

#include <utility>

PeerLog::~PeerLog()
{
    summarize();
}

bool PeerLog::admits(const QHostAddress& address)
{
    const std::lock_guard lock(m_mutex);
    const bool isCounted = m_lines.size() < limits::loggedAddresses || m_lines.contains(address);
    return ++m_lines[isCounted ? address : QHostAddress()] <= limits::linesAboutPeer;
}

void PeerLog::summarize()
{
    QHash<QHostAddress, int> lines;
    {
        const std::lock_guard lock(m_mutex);
        std::swap(lines, m_lines);
    }
    for (auto it = lines.cbegin(); it != lines.cend(); ++it) {
        if (it.value() > limits::linesAboutPeer)
            qCWarning(lcLan).noquote()
                << (it.key().isNull() ? QStringLiteral("other players") : it.key().toString()) << "-"
                << it.value() - limits::linesAboutPeer << "lines left out";
    }
}
