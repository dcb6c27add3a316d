// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/credentials.h"

#include "localcloud/base/encoding.h"

namespace localcloud {

namespace {

Json make()
{
    const std::string project = "nuvex-local-" + randomName(6, "0123456789");
    return {
        {"projectId", project},
        {"privateKeyId", randomName(40, "0123456789abcdef")},
        {"clientEmail", "nuvex@" + project + ".iam.gserviceaccount.com"},
        {"clientId", "1" + randomName(20, "0123456789")},
        {"key", RsaKey::generate().pem()},
        {"bucket", project + "-media"},
        {"databaseCredential", randomName(40)},
        {"webApiKey", "AIza" + randomName(35)},
        {"tokenSecret", randomName(40)},
    };
}

Credentials read(const Json& json)
{
    return {json.at("projectId"),
            json.at("privateKeyId"),
            json.at("clientEmail"),
            json.at("clientId"),
            RsaKey::fromPem(json.at("key")),
            json.at("bucket"),
            json.at("databaseCredential"),
            json.at("webApiKey"),
            json.at("tokenSecret")};
}

} // namespace

Credentials Credentials::load(Sqlite& sqlite)
{
    sqlite.execute("CREATE TABLE IF NOT EXISTS credentials (json TEXT NOT NULL)");
    Statement find(sqlite, "SELECT json FROM credentials");
    Rows rows = find.rows();
    if (rows.next())
        return read(Json::parse(rows.text(0)));
    const Json made = make();
    Statement(sqlite, "INSERT INTO credentials VALUES (?)").run(made.dump());
    return read(made);
}

Json keyFile(const Credentials& credentials, const std::string& base)
{
    return {
        {"type", "service_account"},
        {"project_id", credentials.projectId},
        {"private_key_id", credentials.privateKeyId},
        {"private_key", credentials.key.pem()},
        {"client_email", credentials.clientEmail},
        {"client_id", credentials.clientId},
        {"auth_uri", base + "/o/oauth2/auth"},
        {"token_uri", base + "/token"},
        {"auth_provider_x509_cert_url", base + "/oauth2/v1/certs"},
        {"client_x509_cert_url", base + "/robot/v1/metadata/x509/" + percentEncode(credentials.clientEmail)},
    };
}

Json deploymentFile(const Credentials& credentials, const std::string& base)
{
    const Json hosts = {
        {"token", base}, {"storage", base}, {"signedUrl", base}, {"database", base}, {"identity", base}};
    return {
        {"serviceAccount", keyFile(credentials, base)},
        {"bucket", credentials.bucket},
        {"hosts", hosts},
        {"databaseCredential", credentials.databaseCredential},
        {"webApiKey", credentials.webApiKey},
    };
}

} // namespace localcloud
