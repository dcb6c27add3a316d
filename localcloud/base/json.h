// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace localcloud {

/// Debian's nlohmann-json: header-only, keeps 64-bit integers apart from fractions, checks UTF-8, neither
/// parses nor destroys by recursion. (Boost has its own only since 1.75; Debian's is 1.74.)
using Json = nlohmann::json;

/// Parses a JSON text of at most `depth` nested objects and arrays. Nothing when it is none.
std::optional<Json> parseJson(std::string_view text, int depth);

/// The text member `key` of an object; empty when there is none or it is no text.
std::string textMember(const Json& object, const char* key);

} // namespace localcloud
