// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/accesstokens.h"
#include "localcloud/auth/credentials.h"
#include "localcloud/http/exchange.h"

#include <memory>

namespace localcloud {

/// The OAuth token endpoint: grants an access token for a service account's assertion (RFC 7523).
class TokenService
{
public:
    TokenService(const Credentials& credentials, const AccessTokens& tokens);

    /// Whether a path is one of the endpoint's.
    static bool serves(std::string_view path);
    std::unique_ptr<Exchange> begin(const RequestHead& head) const;

private:
    Answer grant(const std::string& form, const std::string& base) const;

    const Credentials& m_credentials;
    const AccessTokens& m_tokens;
};

} // namespace localcloud
