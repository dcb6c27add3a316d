// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/credentials.h"
#include "localcloud/base/unixtime.h"

#include <string>
#include <string_view>
#include <vector>

namespace localcloud {

/// Why a token was not granted, in OAuth's words (RFC 6749, section 5.2).
struct OAuthFault
{
    std::string error;
    std::string description;
};

/// Checks the assertion of a service account (RFC 7523) and returns the set of scopes that it asks for.
///
/// It must be signed with the account's key, be made for one of `audiences`, and be valid now for an hour at
/// most; its times may be numbers or decimal texts. Throws an OAuthFault.
unsigned checkAssertion(std::string_view assertion, const Credentials& credentials,
                        const std::vector<std::string>& audiences, UnixMs now);

} // namespace localcloud
