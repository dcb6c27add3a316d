// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/signedurl.h"

#include "localcloud/base/encoding.h"

namespace localcloud {

namespace {

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else
            result += c;
    }
    return result;
}

// The path in the form in which the signer may have written it: "/" left as it is.
std::string canonicalPath(const Target& target)
{
    std::string path;
    for (const std::string& segment : target.segments)
        path += "/" + percentEncode(segment, "/");
    return path;
}

bool verifies(const RequestHead& head, const Credentials& credentials)
{
    const auto signature = base64Decode(head.target.value("Signature"));
    return signature &&
           (credentials.key.verifies(stringToSign(head, head.target.path), *signature) ||
            credentials.key.verifies(stringToSign(head, canonicalPath(head.target)), *signature));
}

} // namespace

bool isSigned(const Target& target)
{
    return target.has("GoogleAccessId") || target.has("Signature");
}

std::string stringToSign(const RequestHead& head, const std::string& resource)
{
    std::string text = head.method + "\n";
    text.append(head.headers.find("Content-MD5")).append("\n");
    text.append(head.headers.find("Content-Type")).append("\n");
    return text + head.target.value("Expires") + "\n" + resource;
}

void checkSignature(const RequestHead& head, const Credentials& credentials, UnixMs now)
{
    const Target& target = head.target;
    const std::optional<long long> expires = parseNumber(target.value("Expires"));
    if (!expires)
        throw Refusal{xmlError(400, "InvalidArgument", "Invalid argument.",
                               "<Details>Expires is no time in seconds.</Details>")};
    if (*expires <= now / 1000 || head.credentialsExpired)
        throw Refusal{
            xmlError(400, "ExpiredToken", "The provided token has expired.",
                     "<Details>Request signature expired at: " + std::to_string(*expires) + "</Details>")};
    if (target.value("GoogleAccessId") != credentials.clientEmail)
        throw Refusal{
            xmlError(403, "AccessDenied", "Access denied.", "<Details>Unknown GoogleAccessId.</Details>")};
    if (!verifies(head, credentials))
        throw Refusal{
            xmlError(403, "SignatureDoesNotMatch",
                     "The request signature we calculated does not match the signature you provided. Check "
                     "your Google secret key and signing method.",
                     "<StringToSign>" + escaped(stringToSign(head, target.path)) + "</StringToSign>")};
}

Answer xmlError(int status, const std::string& code, const std::string& message, const std::string& details)
{
    return {status,
            {{"Content-Type", "application/xml; charset=UTF-8"}, {"Cache-Control", "private, max-age=0"}},
            "<?xml version='1.0' encoding='UTF-8'?><Error><Code>" + code + "</Code><Message>" + message +
                "</Message>" + details + "</Error>"};
}

} // namespace localcloud
