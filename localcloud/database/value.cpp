// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/value.h"

#include "localcloud/base/encoding.h"
#include "localcloud/database/location.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

constexpr const char* serverValue = ".sv";

Json resolved(const Json& value, UnixMs now)
{
    if (value.size() != 1 || value.at(serverValue) != "timestamp")
        throw DataFault("Invalid data; the only server value is {\".sv\": \"timestamp\"}.");
    return now;
}

void addMember(Json& object, const std::string& key, const Json& member, std::size_t depth, UnixMs now)
{
    if (!isKey(key))
        throw DataFault(
            "Invalid data; couldn't parse JSON object. Are you sending a JSON object with valid key names?");
    Json value = normalized(member, depth + 1, now);
    if (!value.is_null())
        object[key] = std::move(value);
}

// The index that a key is; nothing for one with a leading zero or too many digits.
std::optional<std::size_t> indexOf(const std::string& key)
{
    constexpr std::size_t digits = 9;
    const bool plain = key == "0" || (key[0] != '0' && key.size() <= digits);
    const std::optional<long long> index = plain ? parseNumber(key) : std::nullopt;
    return index ? std::optional<std::size_t>(*index) : std::nullopt;
}

// Size of the array that an object stands for; 0 when it stands for none.
std::size_t arraySize(const Json& object)
{
    std::size_t size = 0;
    for (const auto& [key, member] : object.items()) {
        const std::optional<std::size_t> index = indexOf(key);
        if (!index)
            return 0;
        size = std::max(size, *index + 1);
    }
    return size < object.size() * 2 ? size : 0;
}

} // namespace

Json normalized(const Json& value, std::size_t depth, UnixMs now)
{
    if (depth > limits::treeDepth)
        throw DataFault("Invalid data; path exceeds the maximum depth of 32 levels.");
    if (value.is_primitive())
        return value;
    if (value.is_object() && value.contains(serverValue))
        return resolved(value, now);
    Json result = Json::object();
    if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i)
            addMember(result, std::to_string(i), value[i], depth, now);
    } else {
        for (const auto& [key, member] : value.items())
            addMember(result, key, member, depth, now);
    }
    return result.empty() ? Json() : result;
}

Json presented(const Json& value)
{
    if (!value.is_object())
        return value;
    const std::size_t size = arraySize(value);
    if (size == 0)
        return presentedMembers(value);
    Json result = std::vector<Json>(size);
    for (const auto& [key, member] : value.items())
        result[*indexOf(key)] = presented(member);
    return result;
}

Json presentedMembers(const Json& object)
{
    Json result = Json::object();
    for (const auto& [key, member] : object.items())
        result[key] = presented(member);
    return result;
}

Json partOf(const Json& value, std::string_view location)
{
    const Json* part = &value;
    for (const std::string_view key : keysOf(location)) {
        const auto member = part->is_object() ? part->find(std::string(key)) : part->end();
        if (member == part->end())
            return {};
        part = &*member;
    }
    return *part;
}

std::vector<Leaf> leavesOf(const Json& value, const std::string& location)
{
    if (value.is_null())
        return {};
    if (!value.is_object())
        return {{location, value}};
    std::vector<Leaf> leaves;
    for (const auto& [key, member] : value.items()) {
        std::vector<Leaf> more = leavesOf(member, childOf(location, key));
        std::move(more.begin(), more.end(), std::back_inserter(leaves));
    }
    return leaves;
}

void addLeaf(Json& value, std::string_view location, Json leaf)
{
    Json* place = &value;
    for (const std::string_view key : keysOf(location))
        place = &(*place)[std::string(key)];
    *place = std::move(leaf);
}

} // namespace localcloud
