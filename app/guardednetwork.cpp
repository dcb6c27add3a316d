// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/guardednetwork.h"

#include "app/limits.h"

#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>

namespace {

Q_LOGGING_CATEGORY(lcNetwork, "nuvex.app")

// Addresses may hold credentials behind their paths.
QString withoutSecrets(const QUrl& url)
{
    return url.toDisplayString(QUrl::RemoveQuery);
}

void limitSize(QNetworkReply* reply)
{
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 bytes) {
        if (bytes <= limits::fetchedBytes || reply->isFinished())
            return;
        qCWarning(lcNetwork) << "Answer is too large:" << withoutSecrets(reply->url());
        reply->abort();
    });
}

bool isSafe(const QUrl& from, const QUrl& target)
{
    return from.host() == target.host() &&
           (from.scheme() == target.scheme() || target.scheme() == QLatin1String("https"));
}

// The engine follows redirects by itself, and sends again what was sent.
void keepBodyAtItsHost(QNetworkReply* reply)
{
    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [reply] {
        const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (target.isEmpty() || isSafe(reply->url(), reply->url().resolved(target)))
            return;
        qCWarning(lcNetwork) << "Redirected to another host, not followed:" << withoutSecrets(reply->url());
        reply->abort();
    });
}

class Manager : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& asked, QIODevice* body) override
    {
        QNetworkRequest request(asked);
        request.setRawHeader("Accept-Encoding", "identity");
        QNetworkReply* reply = QNetworkAccessManager::createRequest(operation, request, body);
        limitSize(reply);
        if (body)
            keepBodyAtItsHost(reply);
        return reply;
    }
};

} // namespace

QNetworkAccessManager* GuardedNetwork::create(QObject* parent)
{
    return std::make_unique<Manager>(parent).release(); // the engine owns it
}
