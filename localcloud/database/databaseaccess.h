// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/accesstokens.h"
#include "localcloud/auth/credentials.h"
#include "localcloud/http/message.h"
#include "localcloud/identity/idtokens.h"

#include <optional>

namespace localcloud {

/// Who may use the realtime database: holders of the database's credential, of an access token for it, and
/// people who have signed in. Each may do everything.
class DatabaseAccess
{
public:
    DatabaseAccess(const Credentials& credentials, const AccessTokens& tokens, const IdTokens& people);

    /// When the request's right ends; nothing: never. Throws a Refusal when it has none.
    std::optional<UnixMs> require(const RequestHead& head) const;

private:
    std::optional<UnixMs> expiryOf(const RequestHead& head, UnixMs now) const;

    const Credentials& m_credentials;
    const AccessTokens& m_tokens;
    const IdTokens& m_people;
};

/// An error in the realtime database's form.
Answer databaseError(int status, const std::string& message);

} // namespace localcloud
