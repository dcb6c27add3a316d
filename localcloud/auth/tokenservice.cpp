// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/tokenservice.h"

#include "localcloud/auth/assertion.h"
#include "localcloud/limits.h"

#include <algorithm>
#include <iterator>

namespace localcloud {

namespace {

constexpr std::string_view paths[] = {"/token", "/o/oauth2/token", "/oauth2/v4/token"};

// A client names the endpoint that it knows, which may be the real one, even while it talks to this one.
std::vector<std::string> audiences(const std::string& base)
{
    std::vector<std::string> result = {"https://oauth2.googleapis.com/token",
                                       "https://accounts.google.com/o/oauth2/token",
                                       "https://www.googleapis.com/oauth2/v4/token"};
    for (const std::string_view path : paths)
        result.push_back(base + std::string(path));
    return result;
}

Answer faultAnswer(int status, const OAuthFault& fault)
{
    return jsonAnswer(status, Json{{"error", fault.error}, {"error_description", fault.description}}.dump(2));
}

} // namespace

TokenService::TokenService(const Credentials& credentials, const AccessTokens& tokens)
    : m_credentials(credentials)
    , m_tokens(tokens)
{
}

bool TokenService::serves(std::string_view path)
{
    return std::find(std::begin(paths), std::end(paths), path) != std::end(paths);
}

std::unique_ptr<Exchange> TokenService::begin(const RequestHead& head) const
{
    if (head.method != "POST")
        throw Refusal{faultAnswer(405, {"invalid_request", "Only POST is allowed."})};
    return std::make_unique<CollectingExchange>(
        limits::tokenBytes, faultAnswer(413, {"invalid_request", "The request is too large."}),
        [this, base = head.base()](const std::string& form) { return grant(form, base); });
}

Answer TokenService::grant(const std::string& form, const std::string& base) const
{
    try {
        const std::optional<Target> fields = Target::parse("/?" + form);
        if (!fields || fields->value("grant_type").empty())
            throw OAuthFault{"invalid_request", "Missing required parameter: grant_type"};
        if (fields->value("grant_type") != "urn:ietf:params:oauth:grant-type:jwt-bearer")
            throw OAuthFault{"unsupported_grant_type", "Only assertions of service accounts are granted."};
        if (!fields->has("assertion"))
            throw OAuthFault{"invalid_request", "Missing required parameter: assertion"};
        const UnixMs now = unixNow();
        const unsigned scopes =
            checkAssertion(fields->value("assertion"), m_credentials, audiences(base), now);
        const Json granted = {{"access_token", m_tokens.issue(scopes, now)},
                              {"expires_in", m_tokens.life().count()},
                              {"token_type", "Bearer"}};
        return jsonAnswer(200, granted.dump(2));
    } catch (const OAuthFault& fault) {
        return faultAnswer(400, fault);
    }
}

} // namespace localcloud
