// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/accesstokens.h"

#include "localcloud/base/encoding.h"
#include "localcloud/base/json.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>

namespace localcloud {

namespace {

constexpr std::string_view mark = "ya29.";

} // namespace

AccessTokens::AccessTokens(std::string secret, std::chrono::seconds life)
    : m_secret(std::move(secret))
    , m_life(life)
{
}

std::string AccessTokens::issue(unsigned scopes, UnixMs now) const
{
    const UnixMs expires = now + std::chrono::milliseconds(m_life).count();
    const std::string content = base64UrlEncode(Json::array({scopes, now, expires}).dump());
    return std::string(mark) + content + "." + seal(content);
}

std::optional<Access> AccessTokens::check(std::string_view token, UnixMs now) const
{
    const std::size_t dot = token.rfind('.');
    if (token.substr(0, mark.size()) != mark || dot < mark.size())
        return {};
    const std::string_view content = token.substr(mark.size(), dot - mark.size());
    if (!equalSecrets(seal(content), token.substr(dot + 1)))
        return {};
    const Json parts = Json::parse(base64Decode(content).value());
    const Access access{parts.at(0), parts.at(2)};
    const bool ended = access.expires <= now || parts.at(1).get<UnixMs>() <= m_expiredUpTo;
    return ended ? std::nullopt : std::optional(access);
}

std::string AccessTokens::seal(std::string_view content) const
{
    std::array<unsigned char, EVP_MAX_MD_SIZE> sum{};
    unsigned size = 0;
    HMAC(EVP_sha256(), m_secret.data(), static_cast<int>(m_secret.size()),
         reinterpret_cast<const unsigned char*>(content.data()), content.size(), sum.data(), &size);
    return base64UrlEncode({reinterpret_cast<const char*>(sum.data()), size});
}

} // namespace localcloud
