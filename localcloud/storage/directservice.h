// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/credentials.h"
#include "localcloud/http/exchange.h"
#include "localcloud/storage/objectstore.h"
#include "localcloud/storage/storageaccess.h"

#include <memory>

namespace localcloud {

/// Downloads below /BUCKET/OBJECT, as signed addresses have it: for whoever has a signature or a token, of
/// public objects for everybody.
class DirectService
{
public:
    DirectService(ObjectStore& objects, const StorageAccess& access, const Credentials& credentials);

    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head);

private:
    void requireRight(const RequestHead& head, const std::optional<Object>& object) const;

    ObjectStore& m_objects;
    const StorageAccess& m_access;
    const Credentials& m_credentials;
};

} // namespace localcloud
