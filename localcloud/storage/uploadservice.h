// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/exchange.h"
#include "localcloud/storage/storageaccess.h"
#include "localcloud/storage/storagepath.h"
#include "localcloud/storage/uploadsessions.h"

#include <memory>
#include <string>

namespace localcloud {

/// The storage service's uploads: in one request (media, multipart) and in several (resumable).
class UploadService
{
public:
    UploadService(UploadSessions& sessions, ObjectStore& objects, const StorageAccess& access,
                  std::string bucket);

    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head, const StoragePath& path);

private:
    std::unique_ptr<Exchange> beginResumable(const RequestHead& head);
    std::unique_ptr<Exchange> goOn(const RequestHead& head);
    Answer sessionBegun(const RequestHead& head, const std::string& body);

    UploadSessions& m_sessions;
    ObjectStore& m_objects;
    const StorageAccess& m_access;
    std::string m_bucket;
};

} // namespace localcloud
