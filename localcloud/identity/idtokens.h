// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/credentials.h"
#include "localcloud/base/unixtime.h"

#include <optional>
#include <string>

namespace localcloud {

/// The tokens that tell who has signed in: JSON Web Tokens signed with the service account's key.
class IdTokens
{
public:
    explicit IdTokens(const Credentials& credentials);

    std::string issue(const std::string& userId, const std::string& email, UnixMs now) const;
    /// When a token expires; nothing when it is none of ours.
    std::optional<UnixMs> check(const std::string& token) const;

private:
    std::string issuer() const;

    const Credentials& m_credentials;
};

} // namespace localcloud
