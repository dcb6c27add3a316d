// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/jwt.h"

#include "localcloud/base/encoding.h"

namespace localcloud {

namespace {

std::optional<Json> decodeObject(std::string_view part)
{
    constexpr int depth = 4;
    const std::optional<std::string> text = base64Decode(part);
    std::optional<Json> json = text ? parseJson(*text, depth) : std::nullopt;
    return json && json->is_object() ? json : std::nullopt;
}

} // namespace

std::optional<Jwt> Jwt::parse(std::string_view text)
{
    const std::size_t first = text.find('.');
    const std::size_t second = first == std::string_view::npos ? first : text.find('.', first + 1);
    if (second == std::string_view::npos)
        return {};
    const auto header = decodeObject(text.substr(0, first));
    const auto claims = decodeObject(text.substr(first + 1, second - first - 1));
    const auto signature = base64Decode(text.substr(second + 1));
    if (!header || !claims || !signature)
        return {};
    return Jwt{*header, *claims, std::string(text.substr(0, second)), *signature};
}

std::string Jwt::make(const Json& claims, const RsaKey& key, const std::string& keyId)
{
    const Json header = {{"alg", "RS256"}, {"kid", keyId}, {"typ", "JWT"}};
    const std::string text = base64UrlEncode(header.dump()) + "." + base64UrlEncode(claims.dump());
    return text + "." + base64UrlEncode(key.sign(text));
}

bool Jwt::isSignedBy(const RsaKey& key) const
{
    return textMember(header, "alg") == "RS256" && key.verifies(signedText, signature);
}

std::optional<UnixMs> Jwt::time(const char* claim) const
{
    const auto value = claims.find(claim);
    if (value == claims.end())
        return {};
    constexpr double latest = 1e12;
    std::optional<long long> seconds;
    if (value->is_string())
        seconds = parseNumber(value->get<std::string>());
    else if (value->is_number() && value->get<double>() >= 0 && value->get<double>() <= latest)
        seconds = static_cast<long long>(value->get<double>());
    return seconds && *seconds <= latest ? std::optional(*seconds * 1000) : std::nullopt;
}

} // namespace localcloud
