// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/pushids.h"

#include "localcloud/base/encoding.h"

namespace localcloud {

namespace {

// In the order of the characters' codes.
constexpr std::string_view digits = "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";

} // namespace

std::string PushIds::next(UnixMs now)
{
    constexpr std::size_t randomDigits = 12;
    if (now > m_last) {
        m_random = randomBytes(randomDigits);
        m_last = now;
    } else { // within a millisecond the random part counts up
        for (std::size_t i = m_random.size(); i-- > 0 && (++m_random[i] & 63) == 0;) {
        }
    }
    std::string id;
    for (int shift = 42; shift >= 0; shift -= 6)
        id += digits[static_cast<std::size_t>(m_last >> shift & 63)];
    for (const char value : m_random)
        id += digits[static_cast<std::size_t>(value & 63)];
    return id;
}

} // namespace localcloud
