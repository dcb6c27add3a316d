// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"

#include <cstdint>
#include <map>
#include <string>

namespace localcloud {

/// What has been asked of this server since the counters were last set back.
class Counters
{
public:
    /// Counts a request under its method and the name of its kind.
    void countRequest(const std::string& method, const std::string& kind)
    {
        ++m_requests[method + " " + kind];
    }
    void connectionOpened();
    void connectionClosed() { --m_open; }
    /// Sets back what counts events; connections that are open stay counted.
    void reset();

    /// {"requests": {"GET media": 3, ..}, "connections": since the reset, "openConnections": now}
    Json json() const;

private:
    std::map<std::string, std::int64_t> m_requests;
    std::int64_t m_connections = 0;
    std::int64_t m_open = 0;
};

} // namespace localcloud
