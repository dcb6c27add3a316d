// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/accesstokens.h"
#include "localcloud/auth/scopes.h"
#include "localcloud/http/message.h"

namespace localcloud {

/// Who may do what in the bucket.
class StorageAccess
{
public:
    explicit StorageAccess(const AccessTokens& tokens);

    /// Whether the request comes without any token.
    static bool isAnonymous(const RequestHead& head);
    /// Throws a Refusal unless the request's token is valid and has this scope.
    void require(const RequestHead& head, Scope scope) const;

private:
    const AccessTokens& m_tokens;
};

} // namespace localcloud
