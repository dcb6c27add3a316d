// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/json.h"

#include <stdexcept>

namespace localcloud {

std::optional<Json> parseJson(std::string_view text, int depth)
{
    const auto tooDeep = [depth](int level, Json::parse_event_t event, const Json&) {
        const bool opens =
            event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
        if (opens && level >= depth)
            throw std::length_error("nested too deep");
        return true;
    };
    try {
        return Json::parse(text, tooDeep);
    } catch (const std::exception&) { // no JSON, or one that the callback refused
        return {};
    }
}

std::string textMember(const Json& object, const char* key)
{
    const auto member = object.find(key);
    return member != object.end() && member->is_string() ? member->get<std::string>() : std::string();
}

} // namespace localcloud
