// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/storageaccess.h"

#include "localcloud/http/serviceerror.h"

namespace localcloud {

StorageAccess::StorageAccess(const AccessTokens& tokens)
    : m_tokens(tokens)
{
}

bool StorageAccess::isAnonymous(const RequestHead& head)
{
    return head.bearer().empty();
}

void StorageAccess::require(const RequestHead& head, Scope scope) const
{
    if (isAnonymous(head))
        refuse(401, "required", "Anonymous caller does not have access to the Google Cloud Storage bucket.");
    const std::optional<Access> access = m_tokens.check(head.bearer(), unixNow());
    if (!access || head.credentialsExpired)
        refuse(401, "authError", "Invalid Credentials");
    if ((access->scopes & scope) == 0)
        refuse(403, "insufficientPermissions", "Insufficient Permission");
}

} // namespace localcloud
