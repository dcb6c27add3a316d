// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/storagepath.h"

namespace localcloud {

std::optional<StoragePath> StoragePath::parse(const Target& target)
{
    StoragePath path{};
    std::size_t first = 0;
    if (target.segment(0) == "upload" || target.segment(0) == "download") {
        path.service = target.segment(0);
        first = 1;
    }
    const auto part = [&](std::size_t index) { return target.segment(first + index); };
    const std::size_t count = target.segments.size() - first;
    if (part(0) != "storage" || part(1) != "v1" || part(2) != "b" || (count > 4 && part(4) != "o"))
        return {};
    path.bucket = part(3);
    path.object = part(5);
    path.verb = part(6);
    path.targetBucket = part(8);
    path.targetObject = part(10);
    const bool copies =
        (path.verb == "copyTo" || path.verb == "rewriteTo") && part(7) == "b" && part(9) == "o";
    switch (count) {
    case 3:
        path.kind = Kind::Buckets;
        return path;
    case 4:
        path.kind = Kind::Bucket;
        return path;
    case 5:
        path.kind = Kind::Objects;
        return path;
    case 6:
        path.kind = Kind::Object;
        return path;
    case 11:
        path.kind = Kind::Copy;
        return copies ? std::optional(path) : std::nullopt;
    default:
        return {};
    }
}

} // namespace localcloud
