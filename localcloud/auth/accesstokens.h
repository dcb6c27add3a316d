// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/unixtime.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace localcloud {

/// What a valid access token allows, and how long.
struct Access
{
    unsigned scopes;
    UnixMs expires;
};

/// Makes and checks access tokens. They carry their content, signed with a secret, so that they outlive a
/// restart and none is kept here.
class AccessTokens
{
public:
    /// Tokens live for `life`.
    AccessTokens(std::string secret, std::chrono::seconds life);

    std::chrono::seconds life() const { return m_life; }
    /// A new token for a set of scopes.
    std::string issue(unsigned scopes, UnixMs now) const;
    /// Nothing when the token is not one of ours, or has expired.
    std::optional<Access> check(std::string_view token, UnixMs now) const;
    /// From now on every token that was issued up to now has expired; until the next start.
    void expireAll(UnixMs now) { m_expiredUpTo = now; }

private:
    std::string seal(std::string_view content) const;

    std::string m_secret;
    std::chrono::seconds m_life;
    UnixMs m_expiredUpTo = 0;
};

} // namespace localcloud
