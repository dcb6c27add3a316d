// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/assertion.h"

#include "localcloud/auth/jwt.h"
#include "localcloud/auth/scopes.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

void refuseUnless(bool good, const char* description)
{
    if (!good)
        throw OAuthFault{"invalid_grant", description};
}

bool isTimely(const Jwt& jwt, UnixMs now)
{
    const UnixMs skew = std::chrono::milliseconds(limits::clockSkew).count();
    const UnixMs life = std::chrono::milliseconds(limits::tokenLife).count();
    const auto issued = jwt.time("iat");
    const auto expires = jwt.time("exp");
    return issued && expires && *issued <= now + skew && *expires > now && *expires - *issued <= life;
}

bool isForUs(const Json& claims, const std::vector<std::string>& audiences)
{
    return std::find(audiences.begin(), audiences.end(), textMember(claims, "aud")) != audiences.end();
}

} // namespace

unsigned checkAssertion(std::string_view assertion, const Credentials& credentials,
                        const std::vector<std::string>& audiences, UnixMs now)
{
    const std::optional<Jwt> jwt = Jwt::parse(assertion);
    refuseUnless(jwt.has_value(), "Invalid JWT: not a signed token.");
    refuseUnless(textMember(jwt->claims, "iss") == credentials.clientEmail,
                 "Invalid grant: account not found");
    const std::string keyId = textMember(jwt->header, "kid");
    refuseUnless((keyId.empty() || keyId == credentials.privateKeyId) && jwt->isSignedBy(credentials.key),
                 "Invalid JWT Signature.");
    refuseUnless(isForUs(jwt->claims, audiences), "Invalid JWT: Failed audience check.");
    refuseUnless(
        isTimely(*jwt, now),
        "Invalid JWT: Token must be a short-lived token (60 minutes) and in a reasonable timeframe. Check "
        "your iat and exp values in the JWT claim.");
    const std::optional<unsigned> scopes = parseScopes(textMember(jwt->claims, "scope"));
    if (!scopes)
        throw OAuthFault{"invalid_scope", "Invalid OAuth scope or ID token audience provided."};
    return *scopes;
}

} // namespace localcloud
