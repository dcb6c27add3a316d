// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace localcloud {

/// When a connection is to be closed unless something happens on it before. Whoever holds the list of
/// connections looks at it about once a second.
class Deadline
{
public:
    using Clock = std::chrono::steady_clock;

    void in(std::chrono::seconds time) { m_end = Clock::now() + time; }
    void never() { m_end = Clock::time_point::max(); }
    bool passed(Clock::time_point now) const { return now > m_end; }

private:
    Clock::time_point m_end = Clock::time_point::max();
};

} // namespace localcloud
