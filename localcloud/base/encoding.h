// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace localcloud {

/// What "+" stands for: itself in a path, a blank in a query or a form.
enum class Plus { Literal, Blank };

/// The text with each %XX replaced by its byte. Nothing when a "%" lacks two hexadecimal digits.
std::optional<std::string> percentDecode(std::string_view text, Plus plus = Plus::Literal);

/// The text with every byte as %XX that is neither unreserved by RFC 3986 nor among `kept`.
std::string percentEncode(std::string_view text, std::string_view kept = {});

/// Standard base64 with padding.
std::string base64Encode(std::string_view bytes);

/// URL-safe base64 without padding.
std::string base64UrlEncode(std::string_view bytes);

/// Decodes either alphabet of base64, with or without padding. Nothing when another character occurs.
std::optional<std::string> base64Decode(std::string_view text);

/// Whether the text is well-formed UTF-8.
bool isUtf8(std::string_view text);

/// The whole text as a decimal number of at most 18 digits, without sign. Nothing for anything else.
std::optional<long long> parseNumber(std::string_view text);

/// Compares without telling by its time where the difference is.
bool equalSecrets(std::string_view a, std::string_view b);

/// Bytes that nobody can guess.
std::string randomBytes(std::size_t count);

/// Characters of `alphabet` (letters and digits by default) that nobody can guess.
std::string randomName(std::size_t count, std::string_view alphabet = {});

} // namespace localcloud
