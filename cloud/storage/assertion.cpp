// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/assertion.h"

#include "cloud/limits.h"
#include "cloud/storage/accountkey.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QUrl>

namespace {

QByteArray base64Url(const QByteArray& bytes)
{
    return bytes.toBase64(QByteArray::Base64UrlEncoding);
}

QByteArray encoded(const QByteArray& text)
{
    return QUrl::toPercentEncoding(QString::fromLatin1(text));
}

} // namespace

QByteArray assertion(const QString& issuer, const QString& audience, qint64 now, const QByteArray& rsaKey)
{
    const QJsonObject claims{
        {"aud", audience},
        {"iat", QString::number(now)},
        {"exp", QString::number(now + std::chrono::seconds(limits::assertionLife).count())},
        {"iss", issuer},
        {"scope", "https://www.googleapis.com/auth/devstorage.read_write"}};
    const QByteArray input =
        base64Url(R"({"alg":"RS256","typ":"JWT"})") + '.' + base64Url(QJsonDocument(claims).toJson());
    return input + '.' + signatureOf(input, rsaKey);
}

QByteArray tokenRequest(const QByteArray& assertion)
{
    return "assertion=" + encoded(assertion) +
           "&grant_type=" + encoded("urn:ietf:params:oauth:grant-type:jwt-bearer");
}

std::optional<AccessToken> parseTokenAnswer(const QByteArray& json)
{
    const QJsonObject answer = QJsonDocument::fromJson(json).object();
    if (!answer.contains("access_token") || !answer.contains("expires_in"))
        return std::nullopt;
    return AccessToken{answer.value("access_token").toString().toLatin1(),
                       answer.value("expires_in").toInt()};
}

std::optional<qint64> parseHttpDate(const QByteArray& date)
{
    QDateTime time = QLocale::c().toDateTime(QString::fromLatin1(date), "ddd, dd MMM yyyy hh:mm:ss 'GMT'");
    if (!time.isValid())
        return std::nullopt;
    time.setTimeSpec(Qt::UTC);
    return time.toSecsSinceEpoch();
}
