// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/webfile.h"

#include "cloud/limits.h"
#include "cloud/logging.h"

#include <QCoreApplication>
#include <QMetaEnum>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <utility>

namespace {

bool onMainThread()
{
    return QCoreApplication::instance() && QThread::currentThread() == QCoreApplication::instance()->thread();
}

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

} // namespace

Webfile::Webfile(const QString& url, const Headers& headers, QObject* parent)
    : m_url(url, QUrl::TolerantMode)
    , m_headers(headers)
    , m_timeout(limits::transferStall)
{
    qRegisterMetaType<QByteArray*>("QByteArray*");
    qRegisterMetaType<QIODevice*>("QIODevice*");
    if (parent)
        connect(
            parent, &QObject::destroyed, this, [this] { delete this; }, Qt::DirectConnection);
    stopThread();
    m_thread = new QThread(this);
    connect(m_thread, &QThread::finished, this, &Webfile::endTransfers, Qt::DirectConnection);
    moveToThread(m_thread);
    m_thread->start(QThread::HighestPriority);
}

Webfile::~Webfile()
{
    if (m_callerLoop)
        m_callerLoop->exit(1);
    stopThread();
}

bool Webfile::post(QIODevice* body)
{
    return transfer("slotPost", body);
}

bool Webfile::get(QIODevice* destination)
{
    return transfer("slotGet", destination);
}

// ---------------------------------------------------------------------------------------- the caller's
// thread

bool Webfile::transfer(const char* slot, QIODevice* device)
{
    bool success = false;
    m_transferring = true;
    if (!onMainThread()) {
        QMetaObject::invokeMethod(this, slot, Qt::BlockingQueuedConnection, Q_ARG(void*, &success),
                                  Q_ARG(void*, nullptr), Q_ARG(QIODevice*, device));
        return !m_transferring && success;
    }
    const QPointer<Webfile> self(this);
    const auto loop = std::make_shared<QEventLoop>();
    m_callerLoop = loop;
    QMetaObject::invokeMethod(this, slot, Qt::QueuedConnection, Q_ARG(void*, &success),
                              Q_ARG(void*, loop.get()), Q_ARG(QIODevice*, device));
    loop->exec();
    // The program may be quitting; the slot must not go on with this frame's flag and the caller's device.
    if (self && m_transferring)
        stopThread();
    return success;
}

void Webfile::stopThread()
{
    if (!m_thread)
        return;
    m_thread->quit();
    if (!m_thread->wait(limits::threadEnd.count())) {
        qCWarning(lcCloud) << "Waiting for a transfer to end:" << m_url.toDisplayString(QUrl::RemoveQuery);
        m_thread->wait();
    }
    Q_ASSERT(!m_transferring);
    delete m_thread;
    m_thread = nullptr;
    m_reply = nullptr;
}

// ---------------------------------------------------------------------------------------- the object's
// thread

void Webfile::slotPost(void* pReturnSuccess, void* pLoop, QIODevice* file)
{
    const QNetworkRequest request = begin();
    m_reply = m_manager->post(request, file);
    connect(m_reply, &QNetworkReply::readyRead, this, &Webfile::limitAnswer);
    report(finish(&QNetworkReply::uploadProgress), pReturnSuccess, pLoop);
}

void Webfile::slotGet(void* pReturnSuccess, void* pLoop, QIODevice* file)
{
    const QNetworkRequest request = begin();
    m_reply = m_manager->get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, [this, file] { receive(file); });
    report(finish(&QNetworkReply::downloadProgress), pReturnSuccess, pLoop);
}

QNetworkRequest Webfile::begin()
{
    Q_ASSERT(m_transferring);
    dropTransfer();
    m_contentLength = 0;
    m_errorCode = 0;
    m_httpStatus = 0;
    m_writeFailed = false;
    m_timeout = limits::transferStall;
    m_manager = std::make_unique<QNetworkAccessManager>();
    QNetworkRequest request(m_url);
    request.setRawHeader("User-Agent", "Qt NetworkAccess 1.3");
    for (auto it = m_headers.cbegin(); it != m_headers.cend(); ++it)
        request.setRawHeader(it.key(), it.value());
    return request;
}

void Webfile::receive(QIODevice* destination)
{
    const QByteArray bytes = m_reply->readAll();
    if (m_writeFailed || destination->write(bytes) == bytes.size())
        return;
    qCWarning(lcCloud) << "Cannot write a downloaded file:" << destination->errorString();
    m_writeFailed = true;
    m_reply->abort();
}

void Webfile::limitAnswer()
{
    if (m_reply->bytesAvailable() <= limits::answerBytes)
        return;
    qCWarning(lcCloud) << "Answer is too large:" << m_url.toDisplayString(QUrl::RemoveQuery);
    m_reply->abort();
}

bool Webfile::finish(Progress progressSignal)
{
    connect(m_reply, &QNetworkReply::errorOccurred, this, &Webfile::slotError);
    const bool success = judge(wait(m_timeout, progressSignal));
    if (m_reply)
        m_reply->disconnect(this);
    return success;
}

bool Webfile::wait(std::chrono::milliseconds interval, Progress progressSignal)
{
    QEventLoop loop;
    QTimer timer;
    m_stalled = 0;
    connect(&timer, &QTimer::timeout, this, &Webfile::timeoutCheck);
    timer.start(interval);
    connect(this, &Webfile::signalTimeout, &loop, &QEventLoop::quit);
    connect(m_reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    connect(m_reply, progressSignal, this, &Webfile::progress);
    connect(m_reply, progressSignal, this, [this](qint64 i) {
        if (i > 0) // the end of every transfer is signalled as 0 of 0 bytes; that is no progress
            tickTimeOut();
    });
    loop.exec();
    return std::exchange(m_stalled, 0) == 0;
}

// An unfinished reply is destroyed here: it would go on with a device that the caller is about to close.
bool Webfile::judge(bool inTime)
{
    if (!m_reply->isFinished())
        dropTransfer();
    if (!inTime) {
        qDebug() << "timeout";
        m_errorCode = QNetworkReply::TimeoutError;
    } else if (!m_reply) {
        qDebug() << "cancelled";
        m_errorCode = QNetworkReply::OperationCanceledError;
    } else if (m_reply->error() != QNetworkReply::NoError) {
        qDebug() << "network error" << nameOf(m_reply->error()) << m_reply->errorString();
        m_errorCode = m_reply->error();
    } else {
        return judgeStatus();
    }
    return false;
}

bool Webfile::judgeStatus()
{
    m_contentLength = m_reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
    m_httpStatus = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    m_errorCode = m_writeFailed ? QNetworkReply::UnknownNetworkError : errorOfStatus(m_httpStatus);
    return m_errorCode == QNetworkReply::NoError;
}

void Webfile::dropTransfer()
{
    m_reply = nullptr;
    m_manager.reset();
}

// The last act of the thread: what lives in it goes in it.
void Webfile::endTransfers()
{
    m_manager.reset();
    m_transferring = false;
}

void Webfile::report(bool success, void* pReturnSuccess, void* pLoop)
{
    *static_cast<bool*>(pReturnSuccess) = success;
    m_transferring = false;
    if (pLoop)
        QMetaObject::invokeMethod(static_cast<QEventLoop*>(pLoop), "quit", Qt::QueuedConnection);
}

void Webfile::slotError(QNetworkReply::NetworkError error)
{
    qDebug() << "error storage" << nameOf(error);
}

void Webfile::progress(qlonglong i, qlonglong total)
{
    emit signalProgress(i, total);
}

void Webfile::timeoutCheck()
{
    if (m_stalled == 0) {
        m_stalled = 1;
        return;
    }
    qDebug() << "Upload Time Out!!";
    emit signalTimeout();
}

void Webfile::tickTimeOut()
{
    m_stalled = 0;
}
