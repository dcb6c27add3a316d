// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/identity/identityservice.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"
#include "localcloud/identity/password.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

constexpr std::size_t leastPassword = 6; // characters
constexpr std::size_t mostEmail = 256;   // bytes

enum class Call { None, SignUp, SignIn };

Call callOf(std::string_view path)
{
    constexpr std::pair<std::string_view, Call> calls[] = {
        {"/identitytoolkit/v3/relyingparty/signupNewUser", Call::SignUp},
        {"/identitytoolkit/v3/relyingparty/verifyPassword", Call::SignIn},
        {"/v1/accounts:signUp", Call::SignUp},
        {"/v1/accounts:signInWithPassword", Call::SignIn},
    };
    for (const auto& [name, call] : calls) {
        if (path == name)
            return call;
    }
    return Call::None;
}

// Lower-case, or empty when it is no address.
std::string normalizedEmail(std::string email)
{
    const std::size_t at = email.find('@');
    const bool plain = std::all_of(email.begin(), email.end(), [](char c) { return c > ' ' && c < 0x7f; });
    if (!plain || email.size() > mostEmail || at == 0 || at == std::string::npos || at != email.rfind('@') ||
        email.find('.', at) == std::string::npos || email[at + 1] == '.' || email.back() == '.')
        return {};
    std::transform(email.begin(), email.end(), email.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return email;
}

[[noreturn]] void refuseInput(const std::string& message)
{
    refuse(400, "invalid", message);
}

std::string emailOf(const Json& body)
{
    if (textMember(body, "email").empty())
        refuseInput("MISSING_EMAIL");
    std::string email = normalizedEmail(textMember(body, "email"));
    if (email.empty())
        refuseInput("INVALID_EMAIL");
    return email;
}

std::string passwordOf(const Json& body)
{
    std::string password = textMember(body, "password");
    if (password.empty())
        refuseInput("MISSING_PASSWORD");
    return password;
}

std::size_t characters(const std::string& utf8)
{
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

} // namespace

IdentityService::IdentityService(AccountStore& accounts, const Credentials& credentials,
                                 const IdTokens& tokens)
    : m_accounts(accounts)
    , m_credentials(credentials)
    , m_tokens(tokens)
{
}

bool IdentityService::serves(std::string_view path)
{
    return callOf(path) != Call::None;
}

std::unique_ptr<Exchange> IdentityService::begin(const RequestHead& head)
{
    if (head.method != "POST")
        refuse(405, "httpMethodNotAllowed", "Only POST is allowed.");
    if (!head.target.has("key"))
        refuse(403, "forbidden", "The request is missing a valid API key.");
    if (!equalSecrets(head.target.value("key"), m_credentials.webApiKey))
        refuse(400, "badRequest", "API key not valid. Please pass a valid API key.");
    return std::make_unique<CollectingExchange>(
        limits::identityBytes, serviceError(413, "uploadTooLarge", "The request is too large."),
        [this, call = callOf(head.target.path)](const std::string& text) {
            const std::optional<Json> body = parseJson(text, limits::jsonDepth);
            if (!body || !body->is_object())
                refuse(400, "parseError", "Parse Error");
            const std::string email = emailOf(*body);
            const std::string password = passwordOf(*body);
            return call == Call::SignUp ? signUp(email, password) : signIn(email, password);
        });
}

Answer IdentityService::signUp(const std::string& email, const std::string& password)
{
    constexpr std::size_t idLength = 28;
    if (characters(password) < leastPassword)
        refuseInput("WEAK_PASSWORD : Password should be at least 6 characters");
    if (m_accounts.find(email))
        refuseInput("EMAIL_EXISTS");
    const Account account{randomName(idLength), email, hashPassword(password)};
    m_accounts.add(account);
    return signedIn(account, "identitytoolkit#SignupNewUserResponse");
}

Answer IdentityService::signIn(const std::string& email, const std::string& password)
{
    const std::optional<Account> account = m_accounts.find(email);
    if (!account)
        refuseInput("EMAIL_NOT_FOUND");
    if (!isPassword(password, account->passwordHash))
        refuseInput("INVALID_PASSWORD");
    return signedIn(*account, "identitytoolkit#VerifyPasswordResponse");
}

Answer IdentityService::signedIn(const Account& account, const char* kind) const
{
    constexpr std::size_t refreshLength = 64;
    const Json answer = {{"kind", kind},
                         {"localId", account.id},
                         {"email", account.email},
                         {"displayName", ""},
                         {"registered", true},
                         {"idToken", m_tokens.issue(account.id, account.email, unixNow())},
                         {"refreshToken", randomName(refreshLength)},
                         {"expiresIn", std::to_string(limits::tokenLife.count())}};
    return jsonAnswer(200, answer.dump());
}

} // namespace localcloud
