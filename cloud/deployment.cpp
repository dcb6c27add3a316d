// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/deployment.h"

#include "cloud/limits.h"
#include "cloud/logging.h"
#include "cloud/storage/accountkey.h"

#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#ifdef NUVEX_COMPILED_DEPLOYMENT
static void initialiseResource()
{
    Q_INIT_RESOURCE(deployment);
}
#else
static void initialiseResource() {}
#endif

namespace {

const QString systemFile = QStringLiteral("/etc/nuvex/deployment.json");
const QString compiledFile = QStringLiteral(":/Nuvex/deployment.json");

bool isHost(const QUrl& url)
{
    return url.isValid() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http")) &&
           !url.host().isEmpty() && url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment() &&
           (url.path().isEmpty() || url.path() == QLatin1String("/"));
}

bool isIpv4(const QJsonValue& value)
{
    QHostAddress address;
    return address.setAddress(value.toString()) && address.protocol() == QAbstractSocket::IPv4Protocol;
}

// Reads members of one JSON object; the first fault of several objects is kept.
class Members
{
public:
    Members(const QJsonObject& object, const QString& prefix, QString* fault)
        : m_object(object)
        , m_prefix(prefix)
        , m_fault(fault)
    {
    }

    void fail(const QString& member, const char* reason)
    {
        if (m_fault->isEmpty())
            *m_fault = QLatin1Char('"') + m_prefix + member + QStringLiteral("\" ") + QLatin1String(reason);
    }

    QString text(const QString& member)
    {
        if (!m_object.value(member).isString())
            fail(member, m_object.contains(member) ? "is not a string" : "is missing");
        return m_object.value(member).toString();
    }

    QString filledText(const QString& member)
    {
        QString value = text(member);
        if (value.isEmpty())
            fail(member, "is empty");
        return value;
    }

    QString host(const QString& member)
    {
        const QUrl url(text(member), QUrl::StrictMode);
        if (!isHost(url))
            fail(member, "is not a scheme, name and port");
        return url.toString(QUrl::RemovePath);
    }

    Members object(const QString& member)
    {
        if (!m_object.value(member).isObject())
            fail(member, m_object.contains(member) ? "is not an object" : "is missing");
        return {m_object.value(member).toObject(), m_prefix + member + QLatin1Char('.'), m_fault};
    }

    QStringList addresses(const QString& member)
    {
        QStringList result;
        const QJsonArray values = m_object.value(member).toArray();
        for (const QJsonValue& value : values) {
            if (!isIpv4(value))
                fail(member, "holds something else than IPv4 addresses");
            result.append(value.toString());
        }
        if (contains(member) && !m_object.value(member).isArray())
            fail(member, "is not a list");
        return result;
    }

    bool contains(const QString& member) const { return m_object.contains(member); }

private:
    QJsonObject m_object;
    QString m_prefix;
    QString* m_fault;
};

void readAccount(Members account, Deployment::ServiceAccount& result)
{
    result.privateKey = rsaKeyFromPem(account.text(QStringLiteral("private_key")).toLatin1());
    if (result.privateKey.isEmpty())
        account.fail(QStringLiteral("private_key"), "is not a private RSA key in PEM form (PKCS#8)");
    result.clientEmail = account.filledText(QStringLiteral("client_email"));
    result.projectId = account.text(QStringLiteral("project_id"));
    result.privateKeyId = account.text(QStringLiteral("private_key_id"));
    result.clientId = account.text(QStringLiteral("client_id"));
}

void readHosts(Members hosts, Deployment::Hosts& result)
{
    result.token = hosts.host(QStringLiteral("token"));
    result.storage = hosts.host(QStringLiteral("storage"));
    result.signedUrl = hosts.host(QStringLiteral("signedUrl"));
    result.database = hosts.host(QStringLiteral("database"));
    result.identity = hosts.host(QStringLiteral("identity"));
}

void readCloud(Members members, Deployment& result)
{
    readAccount(members.object(QStringLiteral("serviceAccount")), result.serviceAccount);
    result.bucket = members.filledText(QStringLiteral("bucket"));
    readHosts(members.object(QStringLiteral("hosts")), result.hosts);
    result.databaseCredential = members.text(QStringLiteral("databaseCredential"));
    result.webApiKey = members.text(QStringLiteral("webApiKey"));
}

void readLan(Members lan, Deployment& result)
{
    result.broadcastAddresses = lan.addresses(QStringLiteral("broadcastAddresses"));
    if (lan.contains(QStringLiteral("exchangeProject")))
        result.exchangeProject = lan.text(QStringLiteral("exchangeProject"));
}

} // namespace

Deployment Deployment::parse(const QByteArray& json, QString* fault)
{
    fault->clear();
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject()) {
        *fault = document.isNull() ? error.errorString() : QStringLiteral("not an object");
        return {};
    }
    Deployment result;
    Members members(document.object(), QString(), fault);
    const QString lan = QStringLiteral("lan");
    if (document.object().keys() != QStringList(lan))
        readCloud(members, result);
    if (members.contains(lan))
        readLan(members.object(lan), result);
    return fault->isEmpty() ? result : Deployment();
}

Deployment Deployment::read(const QString& file)
{
    QFile source(file);
    QString fault;
    Deployment result;
    if (!source.open(QIODevice::ReadOnly))
        fault = source.errorString();
    else if (source.size() > limits::deploymentBytes)
        fault = QStringLiteral("too large");
    else
        result = parse(source.read(limits::deploymentBytes), &fault);
    if (fault.isEmpty())
        return result;
    qCWarning(lcCloud).noquote() << "Deployment file" << file << "is not used:" << fault;
    result.fault = file + QStringLiteral(": ") + fault;
    return result;
}

Deployment Deployment::find(const QString& commandLineFile)
{
    initialiseResource();
    if (!commandLineFile.isEmpty())
        return read(commandLineFile);
    const QString named = qEnvironmentVariable("NUVEX_DEPLOYMENT");
    if (!named.isEmpty())
        return read(named);
    for (const QString& file : {systemFile, compiledFile}) {
        if (QFileInfo::exists(file))
            return read(file);
    }
    return {};
}

DeploymentInfo::DeploymentInfo(const Deployment& deployment, QObject* parent)
    : QObject(parent)
    , m_deployment(deployment)
{
}
