// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/unixtime.h"

#include <string>

namespace localcloud {

/// Makes the keys of children that are added to a list: 20 characters that sort by time and collide with
/// nobody's.
class PushIds
{
public:
    std::string next(UnixMs now);

private:
    UnixMs m_last = 0;
    std::string m_random; // six bits of each byte count
};

} // namespace localcloud
