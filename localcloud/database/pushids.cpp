// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/pushids.h"

#include "localcloud/base/encoding.h"

#include <algorithm>

namespace localcloud {

namespace {

// In the order of the characters' codes.
constexpr std::string_view digits = "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";

} // namespace

std::string PushIds::next(UnixMs now)
{
    if (now > m_last) {
        const std::string random = randomBytes(m_random.size());
        std::transform(random.begin(), random.end(), m_random.begin(),
                       [](char c) { return static_cast<unsigned char>(c) & 63; });
        m_last = now;
    } else { // within a millisecond the random part counts up
        for (std::size_t i = m_random.size(); i-- > 0 && (m_random[i] = (m_random[i] + 1) & 63) == 0;) {
        }
    }
    std::string id;
    for (int shift = 42; shift >= 0; shift -= 6)
        id += digits[static_cast<std::size_t>(m_last >> shift & 63)];
    for (const unsigned char value : m_random)
        id += digits[value];
    return id;
}

} // namespace localcloud
