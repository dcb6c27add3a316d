// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"

#include <optional>
#include <string>

namespace localcloud {

/// The path of a request to the storage service's JSON interface, taken apart:
/// [/upload|/download]/storage/v1/b[/BUCKET[/o[/OBJECT[/copyTo|/rewriteTo/b/BUCKET/o/OBJECT]]]]
struct StoragePath
{
    enum class Kind { Buckets, Bucket, Objects, Object, Copy };

    Kind kind;
    std::string service; ///< "upload", "download" or empty
    std::string bucket;
    std::string object;
    std::string verb; ///< "copyTo" or "rewriteTo"
    std::string targetBucket;
    std::string targetObject;

    /// Nothing when the path is not of this form.
    static std::optional<StoragePath> parse(const Target& target);
};

} // namespace localcloud
