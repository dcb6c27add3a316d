// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/accesstokens.h"
#include "localcloud/auth/credentials.h"
#include "localcloud/auth/tokenservice.h"
#include "localcloud/base/sqlite.h"
#include "localcloud/control/controlservice.h"
#include "localcloud/database/databaseservice.h"
#include "localcloud/http/exchange.h"
#include "localcloud/identity/identityservice.h"
#include "localcloud/route.h"
#include "localcloud/storage/directservice.h"
#include "localcloud/storage/storageservice.h"
#include "localcloud/storage/uploadservice.h"

#include <chrono>
#include <string>

namespace localcloud {

/// The whole cloud behind its connections: what is kept, and the services that stand on it.
class Cloud : public RequestHandler
{
public:
    /// Keeps everything below `folder`, which is made when it is missing. Throws std::runtime_error when it
    /// cannot be used, as when another process uses it.
    Cloud(const std::string& folder, std::chrono::seconds tokenLife);

    const Credentials& credentials() const { return m_credentials; }

    Handling begin(const RequestHead& head) override;
    void tick() override;
    void connectionOpened() override { m_counters.connectionOpened(); }
    void connectionClosed() override { m_counters.connectionClosed(); }

private:
    Handling handle(const RequestHead& head, Service service, std::optional<Fault> fault);
    std::unique_ptr<Exchange> serve(const RequestHead& head, Service service);

    Sqlite m_sqlite;
    Credentials m_credentials;
    AccessTokens m_tokens;
    IdTokens m_people;
    ObjectStore m_objects;
    UploadSessions m_uploads;
    TreeStore m_tree;
    AccountStore m_accounts;
    Streams m_streams;
    Faults m_faults;
    Counters m_counters;

    StorageAccess m_storageAccess;
    DatabaseAccess m_databaseAccess;
    TokenService m_tokenService;
    StorageService m_storageService;
    UploadService m_uploadService;
    DirectService m_directService;
    DatabaseService m_databaseService;
    IdentityService m_identityService;
    ControlService m_controlService;
};

} // namespace localcloud
