// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/route.h"

#include "localcloud/auth/tokenservice.h"
#include "localcloud/control/controlservice.h"
#include "localcloud/database/databaseservice.h"
#include "localcloud/identity/identityservice.h"
#include "localcloud/storage/signedurl.h"
#include "localcloud/storage/storagepath.h"

namespace localcloud {

namespace {

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

std::string storageKind(const RequestHead& head, const StoragePath& path)
{
    using Kind = StoragePath::Kind;
    if (path.kind == Kind::Buckets || path.kind == Kind::Bucket)
        return "bucket";
    if (path.kind == Kind::Objects)
        return "list";
    if (path.kind == Kind::Copy)
        return "copy";
    const bool media = path.service == "download" || head.target.value("alt") == "media";
    return media ? "media" : "object";
}

} // namespace

Route routeOf(const RequestHead& head)
{
    const std::string& path = head.target.path;
    if (ControlService::serves(path))
        return {Service::Control, "control"};
    if (TokenService::serves(path))
        return {Service::Token, "token"};
    if (IdentityService::serves(path))
        return {Service::Identity, "identity"};
    if (const auto storage = StoragePath::parse(head.target)) {
        if (storage->service == "upload")
            return {Service::Upload, head.target.has("upload_id") ? "chunk" : "upload"};
        return {Service::Storage, storageKind(head, *storage)};
    }
    // An object may be called "x.json" as well: a signature tells.
    if (endsWith(path, ".json") && !isSigned(head.target))
        return {Service::Database, DatabaseService::isStream(head) ? "stream" : "database"};
    return {Service::Direct, "direct"};
}

} // namespace localcloud
