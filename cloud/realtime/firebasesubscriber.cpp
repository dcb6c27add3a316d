// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/realtime/firebasesubscriber.h"

#include "cloud/logging.h"

#include <QMetaEnum>

FirebaseSubscriber::FirebaseSubscriber(QObject* parent, std::chrono::milliseconds silence)
    : QObject(parent)
{
    m_manager.setTransferTimeout(int(silence.count()));
}

FirebaseSubscriber::~FirebaseSubscriber()
{
    close();
}

void FirebaseSubscriber::subscribe(QString url)
{
    m_url = url;
    m_redirects = 0;
    open(QUrl(url, QUrl::TolerantMode));
}

void FirebaseSubscriber::unsubscribe()
{
    m_url.clear();
}

void FirebaseSubscriber::checkUp()
{
    if (m_hasFailed && !m_url.isEmpty())
        subscribe(m_url);
}

// Packed events would be unpacked to any size before their limit is seen.
void FirebaseSubscriber::open(const QUrl& url)
{
    close();
    QNetworkRequest request(url);
    request.setRawHeader("Accept", "text/event-stream");
    request.setRawHeader("Accept-Encoding", "identity");
    m_reply = m_manager.get(request);
    m_reply->setReadBufferSize(limits::readBufferBytes);
    connect(m_reply, &QNetworkReply::readyRead, this, &FirebaseSubscriber::eventReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &FirebaseSubscriber::eventFinished);
    connect(m_reply, &QNetworkReply::errorOccurred, this, &FirebaseSubscriber::slotError);
}

// What an open stream would still bring must not come twice.
void FirebaseSubscriber::close()
{
    m_hasFailed = false;
    m_lines = EventLines();
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}

// A listener may subscribe to something else.
void FirebaseSubscriber::eventReadyRead()
{
    const QNetworkReply* source = m_reply;
    const QList<QByteArray> events = m_lines.feed(m_reply->readAll());
    for (const QByteArray& event : events) {
        m_redirects = 0;
        emit dataReceived(QString::fromUtf8(event.constData())); // up to the first zero byte
        if (m_reply != source)
            return;
    }
}

void FirebaseSubscriber::eventFinished()
{
    QNetworkReply* ended = m_reply;
    m_reply = nullptr;
    ended->deleteLater();
    const QUrl target = ended->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isEmpty())
        emit dataReceived({});
    else
        follow(ended->url(), ended->url().resolved(target));
}

// The address holds the credential: it does not leave encryption, and does not go round for ever.
void FirebaseSubscriber::follow(const QUrl& from, const QUrl& target)
{
    const bool isWeaker =
        from.scheme() == QLatin1String("https") && target.scheme() != QLatin1String("https");
    if (!isWeaker && ++m_redirects <= limits::redirects) {
        open(target);
        return;
    }
    qCWarning(lcCloud) << "A realtime stream is redirected too often, or without encryption";
    m_hasFailed = true;
    emit dataReceived({});
}

void FirebaseSubscriber::slotError(QNetworkReply::NetworkError error)
{
    qDebug() << "error firebase subscriber"
             << QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(error);
    m_hasFailed = true;
}
