// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/control/counters.h"

namespace localcloud {

void Counters::connectionOpened()
{
    ++m_connections;
    ++m_open;
}

void Counters::reset()
{
    m_requests.clear();
    m_connections = 0;
}

Json Counters::json() const
{
    return {{"requests", Json(m_requests)}, {"connections", m_connections}, {"openConnections", m_open}};
}

} // namespace localcloud
