// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"
#include "localcloud/base/unixtime.h"

#include <cstdint>
#include <string>

namespace localcloud {

/// One object of the bucket, without its content. The content of a generation never changes.
struct Object
{
    std::string name;
    std::int64_t generation = 0;     ///< microseconds since 1970 of the content's arrival, made unique
    std::int64_t metageneration = 1; ///< counts the changes of `attributes` within a generation
    std::int64_t size = 0;           ///< bytes
    std::string md5;                 ///< base64
    std::string crc32c;              ///< base64 of the big-endian sum
    UnixMs created = 0;
    UnixMs updated = 0;
    bool isPublic = false;
    Json attributes; ///< object: what its owner may set, such as "contentType" and "metadata"
};

/// Where the resources of a bucket are found: scheme, name and port, and the bucket's name.
struct BucketPlace
{
    std::string base;
    std::string bucket;
};

/// The object as the service's JSON resource.
Json objectResource(const Object& object, const BucketPlace& place);

/// The bucket as the service's JSON resource.
Json bucketResource(const BucketPlace& place);

/// Of an object's resource, as a client sends it, what the client may set.
Json settableAttributes(const Json& resource);

/// Puts the settable members of `changes` into `attributes`; null takes one out, also within "metadata".
void mergeAttributes(Json& attributes, const Json& changes);

/// Whether an object can have this name.
bool isObjectName(std::string_view name);

/// The value of the X-Goog-Hash field.
std::string hashField(const Object& object);

} // namespace localcloud
