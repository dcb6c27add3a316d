// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace localcloud {

/// A place in the tree is written "/key/key"; the root is the empty text. Keys are UTF-8 of at most
/// limits::keyBytes, without control characters and without any of . $ # [ ] /

/// Whether a text can be a key.
bool isKey(std::string_view text);

/// The place that a request's path names, which ends in ".json". Nothing when it names none.
std::optional<std::string> locationOf(std::string_view rawPath);

/// The place with a relative path, "key/key" or "/key", added to it. Nothing when that has no valid keys.
std::optional<std::string> locationBelow(const std::string& location, std::string_view relative);

/// The place with one more key.
std::string childOf(std::string location, std::string_view key);

/// The keys of a place, from the root.
std::vector<std::string_view> keysOf(std::string_view location);

/// Whether `location` is `ancestor` or lies below it.
bool isWithin(std::string_view location, std::string_view ancestor);

/// Sort key of the first place below `location`, and of the first behind all that are below it.
std::string firstBelow(const std::string& location);
std::string behindBelow(const std::string& location);

} // namespace localcloud
