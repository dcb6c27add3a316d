// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/event.h"

#include "localcloud/database/location.h"
#include "localcloud/database/value.h"

namespace localcloud {

namespace {

std::string dataEvent(std::string_view name, std::string_view path, const Json& data)
{
    std::string text = "event: ";
    text.append(name).append("\ndata: {\"path\":").append(Json(path.empty() ? "/" : path).dump());
    return text.append(",\"data\":").append(data.dump()).append("}\n\n");
}

std::string_view behind(std::string_view location, std::string_view ancestor)
{
    return location.substr(ancestor.size());
}

std::string putEvent(const std::string& changed, const Json& value, const std::string& location)
{
    if (isWithin(changed, location))
        return dataEvent("put", behind(changed, location), presented(value));
    if (isWithin(location, changed))
        return dataEvent("put", {}, presented(partOf(value, behind(location, changed))));
    return {};
}

} // namespace

std::string firstEvent(const Json& value)
{
    return dataEvent("put", {}, presented(value));
}

std::string eventsOf(const Change& change, const std::string& location)
{
    if (change.kind == Change::Kind::Put)
        return putEvent(change.location, change.value, location);
    if (isWithin(change.location, location))
        return dataEvent("patch", behind(change.location, location), presentedMembers(change.value));
    std::string events;
    for (const auto& [key, value] : change.value.items())
        events += putEvent(childOf(change.location, key), value, location);
    return events;
}

std::string plainEvent(std::string_view name)
{
    const char* data = name == "auth_revoked" ? "\"credential is no longer valid\"" : "null";
    return std::string("event: ").append(name).append("\ndata: ").append(data).append("\n\n");
}

} // namespace localcloud
