// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/identity/idtokens.h"

#include "localcloud/auth/jwt.h"
#include "localcloud/limits.h"

namespace localcloud {

IdTokens::IdTokens(const Credentials& credentials)
    : m_credentials(credentials)
{
}

std::string IdTokens::issue(const std::string& userId, const std::string& email, UnixMs now) const
{
    const Json claims = {{"iss", issuer()},
                         {"aud", m_credentials.projectId},
                         {"auth_time", now / 1000},
                         {"iat", now / 1000},
                         {"exp", now / 1000 + limits::tokenLife.count()},
                         {"sub", userId},
                         {"user_id", userId},
                         {"email", email}};
    return Jwt::make(claims, m_credentials.key, m_credentials.privateKeyId);
}

std::optional<UnixMs> IdTokens::check(const std::string& token) const
{
    const std::optional<Jwt> jwt = Jwt::parse(token);
    if (!jwt || textMember(jwt->claims, "iss") != issuer() || !jwt->isSignedBy(m_credentials.key))
        return {};
    return jwt->time("exp");
}

std::string IdTokens::issuer() const
{
    return "https://securetoken.google.com/" + m_credentials.projectId;
}

} // namespace localcloud
