// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>

namespace localcloud {

/// Milliseconds since 1970 (UTC).
using UnixMs = std::int64_t;

inline UnixMs unixNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace localcloud
