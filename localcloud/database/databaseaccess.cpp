// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/databaseaccess.h"

#include "localcloud/auth/scopes.h"
#include "localcloud/base/encoding.h"

namespace localcloud {

DatabaseAccess::DatabaseAccess(const Credentials& credentials, const AccessTokens& tokens,
                               const IdTokens& people)
    : m_credentials(credentials)
    , m_tokens(tokens)
    , m_people(people)
{
}

std::optional<UnixMs> DatabaseAccess::require(const RequestHead& head) const
{
    const std::string auth = head.target.value("auth");
    if (auth.empty() && head.bearer().empty())
        throw Refusal{databaseError(401, "Permission denied")};
    if (head.credentialsExpired)
        throw Refusal{databaseError(401, "Auth token is expired")};
    if (equalSecrets(auth, m_credentials.databaseCredential))
        return {};
    const UnixMs now = unixNow();
    const std::optional<UnixMs> expires = expiryOf(head, now);
    if (!expires)
        throw Refusal{
            databaseError(401, auth.empty() ? "Unauthorized request." : "Could not parse auth token.")};
    if (*expires <= now)
        throw Refusal{databaseError(401, "Auth token is expired")};
    return expires;
}

std::optional<UnixMs> DatabaseAccess::expiryOf(const RequestHead& head, UnixMs now) const
{
    if (head.target.has("auth"))
        return m_people.check(head.target.value("auth"));
    const std::optional<Access> access = m_tokens.check(head.bearer(), now);
    const bool allowed = access && (access->scopes & UseDatabase) != 0;
    return allowed ? std::optional(access->expires) : std::nullopt;
}

Answer databaseError(int status, const std::string& message)
{
    return jsonAnswer(status, Json{{"error", message}}.dump());
}

} // namespace localcloud
