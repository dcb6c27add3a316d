// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/encoding.h"

#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <charconv>
#include <stdexcept>

namespace localcloud {

namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";
constexpr std::string_view base64Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char upper = static_cast<char>(c & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

bool isUnreserved(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

int base64Value(char c)
{
    if (c == '-')
        return 62;
    if (c == '_')
        return 63;
    const std::size_t value = base64Digits.find(c);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

// Bytes that follow the first byte of a character, and the least code point they may stand for.
struct Utf8Form
{
    int following;
    char32_t least;
};

std::optional<Utf8Form> utf8Form(unsigned char first)
{
    if (first < 0x80)
        return Utf8Form{0, 0};
    if (first >= 0xc2 && first <= 0xdf)
        return Utf8Form{1, 0x80};
    if (first >= 0xe0 && first <= 0xef)
        return Utf8Form{2, 0x800};
    if (first >= 0xf0 && first <= 0xf4)
        return Utf8Form{3, 0x10000};
    return {};
}

} // namespace

std::optional<std::string> percentDecode(std::string_view text, Plus plus)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+' && plus == Plus::Blank) {
            result += ' ';
        } else if (text[i] != '%') {
            result += text[i];
        } else {
            if (text.size() - i < 3 || hexValue(text[i + 1]) < 0 || hexValue(text[i + 2]) < 0)
                return {};
            result += static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
            i += 2;
        }
    }
    return result;
}

std::string percentEncode(std::string_view text, std::string_view kept)
{
    std::string result;
    for (const char c : text) {
        if (isUnreserved(c) || kept.find(c) != std::string_view::npos) {
            result += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            result += {'%', hexDigits[byte >> 4], hexDigits[byte & 15]};
        }
    }
    return result;
}

std::string base64Encode(std::string_view bytes)
{
    std::string result = base64UrlEncode(bytes);
    for (char& c : result)
        c = c == '-' ? '+' : c == '_' ? '/' : c;
    result.append((4 - result.size() % 4) % 4, '=');
    return result;
}

std::string base64UrlEncode(std::string_view bytes)
{
    std::string result;
    unsigned bits = 0;
    int count = 0;
    const auto digit = [&](unsigned value) {
        const char c = base64Digits[value & 63];
        result += c == '+' ? '-' : c == '/' ? '_' : c;
    };
    for (const char c : bytes) {
        bits = (bits << 8 | static_cast<unsigned char>(c)) & 0xffff;
        for (count += 8; count >= 6; count -= 6)
            digit(bits >> (count - 6));
    }
    if (count > 0)
        digit(bits << (6 - count));
    return result;
}

std::optional<std::string> base64Decode(std::string_view text)
{
    for (int i = 0; i < 2 && !text.empty() && text.back() == '='; ++i)
        text.remove_suffix(1);
    std::string result;
    unsigned bits = 0;
    int count = 0;
    for (const char c : text) {
        const int value = base64Value(c);
        if (value < 0)
            return {};
        bits = (bits << 6 | static_cast<unsigned>(value)) & 0x3fff;
        count += 6;
        if (count >= 8) {
            count -= 8;
            result += static_cast<char>(bits >> count & 0xff);
        }
    }
    return text.size() % 4 == 1 ? std::nullopt : std::optional(result);
}

bool isUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i++]);
        const std::optional<Utf8Form> form = utf8Form(first);
        if (!form || text.size() - i < static_cast<std::size_t>(form->following))
            return false;
        char32_t point = first & (0x7f >> form->following);
        for (int k = 0; k < form->following; ++k, ++i) {
            if ((text[i] & 0xc0) != 0x80)
                return false;
            point = point << 6 | (text[i] & 0x3f);
        }
        if (point < form->least || point > 0x10ffff || (point >= 0xd800 && point <= 0xdfff))
            return false;
    }
    return true;
}

std::optional<long long> parseNumber(std::string_view text)
{
    long long value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || text.size() > 18 || text.front() == '-' || error != std::errc() || stop != end)
        return {};
    return value;
}

bool equalSecrets(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && CRYPTO_memcmp(a.data(), b.data(), a.size()) == 0;
}

std::string randomBytes(std::size_t count)
{
    std::string result(count, '\0');
    if (RAND_bytes(reinterpret_cast<unsigned char*>(result.data()), static_cast<int>(count)) != 1)
        throw std::runtime_error("no random bytes");
    return result;
}

std::string randomName(std::size_t count, std::string_view alphabet)
{
    if (alphabet.empty())
        alphabet = base64Digits.substr(0, 62);
    std::string result;
    while (result.size() < count) {
        const auto value = static_cast<unsigned char>(randomBytes(1)[0]);
        if (value < 256 / alphabet.size() * alphabet.size()) // the rest would favour the first characters
            result += alphabet[value % alphabet.size()];
    }
    return result;
}

} // namespace localcloud
