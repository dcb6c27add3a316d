// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/http/transfer.h"

#include "cloud/limits.h"
#include "cloud/logging.h"

#include <QMetaEnum>
#include <QNetworkAccessManager>

namespace {

const char* nameOf(QNetworkReply::NetworkError error)
{
    return QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(error);
}

QNetworkReply::NetworkError errorOfStatus(int status)
{
    switch (status) {
    case 200:
    case 206:
        return QNetworkReply::NoError;
    case 401:
        return QNetworkReply::AuthenticationRequiredError;
    case 403:
        return QNetworkReply::ContentOperationNotPermittedError;
    case 404:
        return QNetworkReply::ContentNotFoundError;
    default:
        return QNetworkReply::UnknownNetworkError;
    }
}

QString withoutSecrets(const QUrl& url)
{
    return url.toDisplayString(QUrl::RemoveQuery);
}

} // namespace

Transfer::Transfer(Method method, const QUrl& url, const Headers& headers, QIODevice* device)
    : m_method(method)
    , m_url(url)
    , m_headers(headers)
    , m_device(device)
{
}

// The reply stays in the transfer thread: what serves it there may still be going about its end.
Transfer::~Transfer()
{
    if (m_reply)
        m_reply->deleteLater();
}

void Transfer::begin(QNetworkAccessManager& manager)
{
    send(manager);
    connect(m_reply, &QNetworkReply::errorOccurred, this,
            [this](QNetworkReply::NetworkError error) { debug() << "error storage" << nameOf(error); });
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::finish);
    watch();
}

QDebug Transfer::debug() const
{
    return m_isSilent ? QDebug(&m_unheard) : qDebug();
}

void Transfer::send(QNetworkAccessManager& manager)
{
    if (m_method == Method::Get) {
        m_reply = manager.get(request());
        m_reply->setReadBufferSize(limits::readBufferBytes);
        connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::receive);
        connect(m_reply, &QNetworkReply::downloadProgress, this, &Transfer::take);
    } else {
        m_reply = manager.post(request(), m_device);
        m_reply->setReadBufferSize(limits::answerBytes + 1);
        connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::limitAnswer);
        connect(m_reply, &QNetworkReply::uploadProgress, this, &Transfer::take);
    }
}

// Without "identity" bodies may come packed, and are unpacked to any size before somebody can look.
QNetworkRequest Transfer::request() const
{
    QNetworkRequest request(m_url);
    request.setRawHeader("User-Agent", "Qt NetworkAccess 1.3");
    request.setRawHeader("Accept-Encoding", "identity");
    for (auto it = m_headers.cbegin(); it != m_headers.cend(); ++it)
        request.setRawHeader(it.key(), it.value());
    return request;
}

void Transfer::watch()
{
    connect(&m_stallTimer, &QTimer::timeout, this, &Transfer::checkForStall);
    m_stallTimer.start(limits::transferStall);
}

void Transfer::take(qint64 bytes, qint64 total)
{
    emit progress(bytes, total);
    if (bytes > 0) // the end of every transfer is signalled as 0 of 0 bytes; that is no progress
        m_quiet = false;
}

void Transfer::checkForStall()
{
    if (!m_quiet) {
        m_quiet = true;
        return;
    }
    debug() << "Upload Time Out!!";
    m_stalled = true;
    emit stalled();
    finish();
}

void Transfer::receive()
{
    const QByteArray bytes = m_reply->readAll();
    if (m_writeFailed || m_device->write(bytes) == bytes.size())
        return;
    qCWarning(lcCloud) << "Cannot write a downloaded file:" << m_device->errorString();
    m_writeFailed = true;
    m_reply->abort();
}

void Transfer::limitAnswer()
{
    if (m_reply->bytesAvailable() <= limits::answerBytes)
        return;
    qCWarning(lcCloud) << "Answer is too large:" << withoutSecrets(m_url);
    m_reply->abort();
}

void Transfer::cancel()
{
    if (m_hasEnded)
        return;
    dropReply();
    finish();
}

void Transfer::finish()
{
    m_stallTimer.stop();
    if (m_reply) {
        m_reply->disconnect(this);
        if (!m_reply->isFinished())
            dropReply();
        else if (m_method == Method::Get && !m_writeFailed)
            receive();
    }
    judge();
    m_hasEnded = true;
    emit ended();
}

// A transfer that ends while a stall is suspected counts as stalled.
void Transfer::judge()
{
    if (m_stalled || (m_quiet && m_reply)) {
        debug() << "timeout";
        m_error = QNetworkReply::TimeoutError;
    } else if (!m_reply) {
        debug() << "cancelled";
        m_error = QNetworkReply::OperationCanceledError;
    } else if (m_reply->error() != QNetworkReply::NoError) {
        debug() << "network error" << nameOf(m_reply->error())
                << m_reply->errorString().replace(m_url.toString(), withoutSecrets(m_url));
        m_error = m_reply->error();
    } else {
        judgeStatus();
    }
}

void Transfer::judgeStatus()
{
    m_httpStatus = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    m_error = m_writeFailed ? QNetworkReply::UnknownNetworkError : errorOfStatus(m_httpStatus);
    m_succeeded = m_error == QNetworkReply::NoError;
}

// An unfinished reply would go on with a device that its owner is about to close.
void Transfer::dropReply()
{
    delete m_reply;
    m_reply = nullptr;
}
