// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/exchange.h"
#include "localcloud/storage/objectstore.h"
#include "localcloud/storage/storageaccess.h"
#include "localcloud/storage/storagepath.h"

#include <memory>
#include <string>

namespace localcloud {

/// The storage service's JSON interface without the uploads: the bucket, listings, metadata, downloads,
/// copies.
class StorageService
{
public:
    StorageService(ObjectStore& objects, const StorageAccess& access, std::string bucket);

    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head, const StoragePath& path);

private:
    Answer buckets(const RequestHead& head) const;
    Answer bucket(const RequestHead& head) const;
    Answer list(const RequestHead& head);
    std::unique_ptr<Exchange> object(const RequestHead& head, const StoragePath& path);
    Answer get(const RequestHead& head, const StoragePath& path);
    Answer remove(const RequestHead& head, const std::string& name);
    Answer update(const RequestHead& head, const std::string& name, const std::string& body);
    std::unique_ptr<Exchange> copy(const RequestHead& head, const StoragePath& path);
    Answer copied(const RequestHead& head, const StoragePath& path, const std::string& body);
    Object found(const std::string& name, const std::string& generation = {});
    BucketPlace place(const RequestHead& head) const { return {head.base(), m_bucket}; }

    ObjectStore& m_objects;
    const StorageAccess& m_access;
    std::string m_bucket;
};

} // namespace localcloud
