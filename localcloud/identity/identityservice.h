// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/credentials.h"
#include "localcloud/http/exchange.h"
#include "localcloud/identity/accountstore.h"
#include "localcloud/identity/idtokens.h"

#include <memory>
#include <string>

namespace localcloud {

/// Identity Toolkit: sign-up and sign-in with e-mail and password, by the names of its versions 3 and 1.
class IdentityService
{
public:
    IdentityService(AccountStore& accounts, const Credentials& credentials, const IdTokens& tokens);

    /// Whether a path is one of the service's.
    static bool serves(std::string_view path);
    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head);

private:
    Answer signUp(const std::string& email, const std::string& password);
    Answer signIn(const std::string& email, const std::string& password);
    Answer signedIn(const Account& account, const char* kind) const;

    AccountStore& m_accounts;
    const Credentials& m_credentials;
    const IdTokens& m_tokens;
};

} // namespace localcloud
