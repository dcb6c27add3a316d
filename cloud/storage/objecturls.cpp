// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/objecturls.h"

#include <QUrl>

namespace {

QString encoded(const QString& text, const QByteArray& except = {})
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text, except));
}

QString objects(const Bucket& bucket, const QString& service)
{
    return bucket.host + service + QStringLiteral("/storage/v1/b/") + QString::fromUtf8(bucket.name) +
           QStringLiteral("/o");
}

QString objectPath(const QByteArray& bucket, const QString& object)
{
    return QLatin1Char('/') + QString::fromUtf8(bucket) + QLatin1Char('/') + encoded(object, "/");
}

} // namespace

QString downloadUrl(const Bucket& bucket, const QString& object)
{
    return objects(bucket, {}) + QLatin1Char('/') + encoded(object) + QStringLiteral("?alt=media");
}

QString uploadUrl(const Bucket& bucket, const QString& object, bool isPublic,
                  std::optional<qint64> ifGeneration)
{
    QString url = objects(bucket, QStringLiteral("/upload")) + QStringLiteral("?uploadType=media&name=") +
                  encoded(object);
    if (isPublic)
        url += QStringLiteral("&predefinedAcl=publicRead");
    if (ifGeneration)
        url += QStringLiteral("&ifGenerationMatch=") + QString::number(*ifGeneration);
    return url;
}

QString listUrl(const Bucket& bucket, const QString& prefix, const QString& delimiter,
                const QString& pageToken)
{
    QString url = objects(bucket, {}) + QLatin1Char('?');
    if (!delimiter.isEmpty())
        url += QStringLiteral("delimiter=") + delimiter + QLatin1Char('&');
    url += QStringLiteral("prefix=") + encoded(prefix);
    if (!pageToken.isEmpty())
        url += QStringLiteral("&pageToken=") + encoded(pageToken);
    return url;
}

QByteArray textToSign(const QByteArray& bucket, const QString& object, qint64 expires)
{
    return "GET\n\n\n" + QByteArray::number(expires) + '\n' + objectPath(bucket, object).toUtf8();
}

QString signedUrl(const Bucket& bucket, const QString& object, const QString& account, qint64 expires,
                  const QByteArray& signature)
{
    return bucket.host + objectPath(bucket.name, object) + QStringLiteral("?GoogleAccessId=") + account +
           QStringLiteral("&Expires=") + QString::number(expires) + QStringLiteral("&Signature=") +
           encoded(QString::fromLatin1(signature));
}
