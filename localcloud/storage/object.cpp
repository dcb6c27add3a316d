// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/object.h"

#include "localcloud/base/encoding.h"
#include "localcloud/limits.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iterator>

namespace localcloud {

namespace {

constexpr const char* settable[] = {"cacheControl",    "contentDisposition", "contentEncoding",
                                    "contentLanguage", "contentType",        "customTime",
                                    "metadata"};

bool isSettable(std::string_view name)
{
    return std::find(std::begin(settable), std::end(settable), name) != std::end(settable);
}

// RFC 3339, UTC, with milliseconds.
std::string timeText(UnixMs time)
{
    const std::time_t seconds = time / 1000;
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &parts);
    std::snprintf(text + length, sizeof text - length, ".%03dZ", static_cast<int>(time % 1000));
    return text;
}

std::string etag(const Object& object)
{
    return base64Encode(std::to_string(object.generation) + "/" + std::to_string(object.metageneration));
}

} // namespace

Json objectResource(const Object& object, const BucketPlace& place)
{
    const std::string path = "/storage/v1/b/" + place.bucket + "/o/" + percentEncode(object.name);
    const std::string generation = std::to_string(object.generation);
    Json resource = object.attributes;
    resource.update({
        {"kind", "storage#object"},
        {"id", place.bucket + "/" + object.name + "/" + generation},
        {"selfLink", place.base + path},
        {"mediaLink", place.base + "/download" + path + "?generation=" + generation + "&alt=media"},
        {"name", object.name},
        {"bucket", place.bucket},
        {"generation", generation},
        {"metageneration", std::to_string(object.metageneration)},
        {"storageClass", "STANDARD"},
        {"size", std::to_string(object.size)},
        {"md5Hash", object.md5},
        {"crc32c", object.crc32c},
        {"etag", etag(object)},
        {"timeCreated", timeText(object.created)},
        {"updated", timeText(object.updated)},
        {"timeStorageClassUpdated", timeText(object.created)},
    });
    return resource;
}

Json bucketResource(const BucketPlace& place)
{
    return {{"kind", "storage#bucket"},
            {"id", place.bucket},
            {"name", place.bucket},
            {"location", "LOCAL"},
            {"storageClass", "STANDARD"},
            {"metageneration", "1"},
            {"selfLink", place.base + "/storage/v1/b/" + place.bucket}};
}

Json settableAttributes(const Json& resource)
{
    Json attributes = Json::object();
    mergeAttributes(attributes, resource);
    return attributes;
}

void mergeAttributes(Json& attributes, const Json& changes)
{
    Json known = Json::object();
    for (const auto& [name, value] : changes.items()) {
        const bool fits = value.is_null() || (name == "metadata" ? value.is_object() : value.is_string());
        if (isSettable(name) && fits)
            known[name] = value;
    }
    attributes.merge_patch(known);
}

bool isObjectName(std::string_view name)
{
    constexpr std::string_view forbidden("\r\n\0", 3);
    return !name.empty() && name.size() <= limits::objectNameBytes && name != "." && name != ".." &&
           name.find_first_of(forbidden) == std::string_view::npos && isUtf8(name);
}

std::string hashField(const Object& object)
{
    return "crc32c=" + object.crc32c + ",md5=" + object.md5;
}

} // namespace localcloud
