// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/localcloud.h"

#include "tests/support/files.h"
#include "tests/support/process.h"

#include <QDateTime>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkReply>
#include <QUrl>

namespace {

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QByteArray base64Url(const QByteArray& bytes)
{
    return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QJsonObject parsed(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

LocalCloud::LocalCloud()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    start();
}

LocalCloud::~LocalCloud()
{
    kill();
}

void LocalCloud::start()
{
    const QString port = m_address.isEmpty() ? "0" : QString::number(QUrl(m_address).port());
    m_process.start(NUVEX_LOCALCLOUD, {"--data", m_folder.filePath("data"), "--port", port,
                                       "--write-deployment", deploymentFile()});
    while (!m_process.canReadLine() && m_process.waitForReadyRead(20'000)) {
    }
    m_address = QString::fromUtf8(m_process.readLine().trimmed());
    m_deployment = Deployment::read(deploymentFile());
    write(keyFile(), parsed(contents(deploymentFile()))
                         .value("serviceAccount")
                         .toObject()
                         .value("private_key")
                         .toString()
                         .toUtf8());
}

void LocalCloud::kill()
{
    m_process.kill();
    m_process.waitForFinished();
    m_manager.clearConnectionCache();
}

QMap<QString, int> LocalCloud::takeCounters()
{
    const QJsonObject counted = parsed(ask("GET", "/_localcloud/counters"))["requests"].toObject();
    ask("DELETE", "/_localcloud/counters");
    QMap<QString, int> counters;
    for (auto it = counted.begin(); it != counted.end(); ++it) {
        if (!it.key().endsWith("control"))
            counters[it.key()] = it->toInt();
    }
    return counters;
}

void LocalCloud::endTokens()
{
    ask("DELETE", "/_localcloud/tokens");
    m_token.clear();
}

void LocalCloud::put(const QString& name, const QByteArray& bytes)
{
    ask("POST", bucketPath("/upload") + "?uploadType=media&name=" + encoded(name), bytes, token());
}

QByteArray LocalCloud::object(const QString& name)
{
    return ask("GET", bucketPath() + "/" + encoded(name) + "?alt=media", {}, token());
}

QStringList LocalCloud::objects(const QString& prefix)
{
    QStringList names;
    QString page;
    do {
        const QJsonObject answer = parsed(ask(
            "GET", bucketPath() + "?prefix=" + encoded(prefix) + "&pageToken=" + encoded(page), {}, token()));
        for (const QJsonValue& item : answer["items"].toArray())
            names.append(item["name"].toString());
        page = answer["nextPageToken"].toString();
    } while (!page.isEmpty());
    return names;
}

void LocalCloud::removeObject(const QString& name)
{
    ask("DELETE", bucketPath() + "/" + encoded(name), {}, token());
}

void LocalCloud::setDatabase(const QString& place, const QByteArray& json)
{
    ask("PUT", "/" + place + ".json?auth=" + m_deployment.databaseCredential, json);
}

QByteArray LocalCloud::ask(const QByteArray& method, const QString& path, const QByteArray& body,
                           const QByteArray& token)
{
    QNetworkRequest request{QUrl(m_address + path)};
    if (!body.isEmpty())
        request.setRawHeader("Content-Type", "application/octet-stream");
    if (!token.isEmpty())
        request.setRawHeader("Authorization", "Bearer " + token);
    const std::unique_ptr<QNetworkReply> reply(m_manager.sendCustomRequest(request, method, body));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return reply->readAll();
}

QByteArray LocalCloud::token()
{
    if (!m_token.isEmpty())
        return m_token;
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const QJsonObject claims{{"iss", m_deployment.serviceAccount.clientEmail},
                             {"scope", "https://www.googleapis.com/auth/devstorage.full_control"},
                             {"aud", m_address + "/token"},
                             {"iat", now},
                             {"exp", now + 3600}};
    const QByteArray text = base64Url(R"({"alg":"RS256","typ":"JWT"})") + '.' +
                            base64Url(QJsonDocument(claims).toJson(QJsonDocument::Compact));
    const QByteArray signature = outputOf("openssl", {"dgst", "-sha256", "-sign", keyFile()}, text);
    const QString form = "grant_type=" + encoded("urn:ietf:params:oauth:grant-type:jwt-bearer") +
                         "&assertion=" + QString::fromLatin1(text + '.' + base64Url(signature));
    m_token = parsed(ask("POST", "/token", form.toUtf8()))["access_token"].toString().toUtf8();
    return m_token;
}

QString LocalCloud::bucketPath(const QString& service) const
{
    return service + "/storage/v1/b/" + m_deployment.bucket + "/o";
}
