// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"
#include "localcloud/base/rsakey.h"
#include "localcloud/base/unixtime.h"

#include <optional>
#include <string>
#include <string_view>

namespace localcloud {

/// A signed JSON Web Token (RFC 7519) as it was read; nothing in it is checked yet.
struct Jwt
{
    Json header; ///< an object
    Json claims; ///< an object
    std::string signedText;
    std::string signature; ///< bytes

    /// Reads a token. Lenient: its parts may be in either alphabet of base64, with or without padding.
    /// Nothing when it is no token.
    static std::optional<Jwt> parse(std::string_view text);
    /// A token with these claims, signed with RS256.
    static std::string make(const Json& claims, const RsaKey& key, const std::string& keyId);

    /// Whether it says that it is signed with RS256, and is, with this key.
    bool isSignedBy(const RsaKey& key) const;
    /// A claim that is a time in seconds, as a number or as decimal text; nothing when it is neither.
    std::optional<UnixMs> time(const char* claim) const;
};

} // namespace localcloud
