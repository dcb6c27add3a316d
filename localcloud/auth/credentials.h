// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"
#include "localcloud/base/rsakey.h"
#include "localcloud/base/sqlite.h"

#include <string>

namespace localcloud {

/// What a customer's cloud consists of: one service account, one bucket, the keys of the other services.
struct Credentials
{
    std::string projectId;
    std::string privateKeyId; ///< 40 hexadecimal digits
    std::string clientEmail;
    std::string clientId; ///< 21 decimal digits
    RsaKey key;
    std::string bucket;
    std::string databaseCredential; ///< 40 letters and digits
    std::string webApiKey;          ///< 39 characters
    std::string tokenSecret;        ///< never leaves this process; signs access tokens

    /// Reads them from the database; at the first start makes new ones there.
    static Credentials load(Sqlite& sqlite);
};

/// The service account's key file, in the form in which Google's console hands them out; `base` is scheme,
/// name and port of this server.
Json keyFile(const Credentials& credentials, const std::string& base);

/// The deployment file of a program that uses this server for everything.
Json deploymentFile(const Credentials& credentials, const std::string& base);

} // namespace localcloud
