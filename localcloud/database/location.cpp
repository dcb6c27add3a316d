// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/location.h"

#include "localcloud/base/encoding.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

bool isKey(std::string_view text)
{
    const auto forbidden = [](char c) {
        return (c >= 0 && c < ' ') || c == 0x7f ||
               std::string_view(".$#[]/").find(c) != std::string_view::npos;
    };
    return !text.empty() && text.size() <= limits::keyBytes &&
           std::none_of(text.begin(), text.end(), forbidden) && isUtf8(text);
}

std::optional<std::string> locationOf(std::string_view rawPath)
{
    constexpr std::string_view suffix = ".json";
    if (rawPath.size() < suffix.size() || rawPath.substr(rawPath.size() - suffix.size()) != suffix)
        return {};
    const std::optional<std::string> path = percentDecode(rawPath.substr(0, rawPath.size() - suffix.size()));
    return path ? locationBelow({}, *path) : std::nullopt;
}

std::optional<std::string> locationBelow(const std::string& location, std::string_view relative)
{
    std::string result = location;
    for (const std::string_view key : keysOf(relative)) {
        if (!isKey(key))
            return {};
        result = childOf(std::move(result), key);
    }
    return result;
}

std::string childOf(std::string location, std::string_view key)
{
    location.append("/").append(key);
    return location;
}

std::vector<std::string_view> keysOf(std::string_view location)
{
    std::vector<std::string_view> keys;
    while (!location.empty()) {
        const std::string_view key = location.substr(0, location.find('/'));
        location.remove_prefix(std::min(key.size() + 1, location.size()));
        if (!key.empty())
            keys.push_back(key);
    }
    return keys;
}

bool isWithin(std::string_view location, std::string_view ancestor)
{
    return location.substr(0, ancestor.size()) == ancestor &&
           (location.size() == ancestor.size() || location[ancestor.size()] == '/');
}

std::string firstBelow(const std::string& location)
{
    return location + "/";
}

std::string behindBelow(const std::string& location)
{
    return location + static_cast<char>('/' + 1);
}

} // namespace localcloud
