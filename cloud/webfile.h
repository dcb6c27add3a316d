// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QEventLoop>
#include <QHash>
#include <QNetworkReply>
#include <QObject>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <memory>

class QNetworkAccessManager;
class QThread;

/// One HTTP POST or GET that blocks its caller until it ends, fails or stalls.
///
/// Construct, call post() or get() once, read the results, destroy. The network work runs in a thread that
/// the object owns and lives in; a caller on the program's main thread waits in a nested event loop, so the
/// interface stays alive, any other caller is blocked. Redirects are not followed. Nothing is retried.
///
/// Call and destroy it from the same thread; never from its own, which rules out deleteLater(). When the
/// program quits, or the object is destroyed by an event, during a transfer, the transfer ends as cancelled.
class Webfile : public QObject
{
    Q_OBJECT

public:
    using Headers = QHash<QByteArray, QByteArray>;

    /// `headers` are raw request headers, name to value; they win over the default "User-Agent". The object
    /// is destroyed with `parent`, but is no child of it, since it lives in another thread.
    Webfile(const QString& url, const Headers& headers, QObject* parent = nullptr);
    ~Webfile() override;

    /// Sends what `body`, open for reading, holds. True when the answer has status 200 or 206; one whose body
    /// exceeds limits::answerBytes is a failure.
    bool post(QIODevice* body);
    /// Writes the answer's body to `destination`, open for writing, as it arrives. True when the answer has
    /// status 200 or 206 and every byte could be written. On false, part of a body may have been written.
    bool get(QIODevice* destination);

    /// Reply of the last transfer, whose body the caller of post() reads; owned by this object. Null when
    /// there was none or it did not finish.
    QNetworkReply* reply() const { return m_reply; }
    /// A QNetworkReply::NetworkError; 0 after a success.
    qint32 errorCode() const { return m_errorCode; }
    /// HTTP status of an answer that came without a network error; else 0.
    qint32 httpStatus() const { return m_httpStatus; }
    /// The answer's Content-Length; 0 when it had none.
    quint64 contentLength() const { return m_contentLength; }

signals:
    /// The transfer stalled. Emitted in the object's thread.
    void signalTimeout();
    /// Bytes sent (POST) or received (GET) so far, and their total, -1 when unknown. Emitted in the object's
    /// thread.
    void signalProgress(qlonglong i, qlonglong total);

private:
    Q_SLOT void slotPost(void* pReturnSuccess, void* pLoop, QIODevice* file);
    Q_SLOT void slotGet(void* pReturnSuccess, void* pLoop, QIODevice* file);
    Q_SLOT void slotError(QNetworkReply::NetworkError error);
    Q_SLOT void progress(qlonglong i, qlonglong total);
    Q_SLOT void timeoutCheck();
    Q_SLOT void tickTimeOut();

    using Progress = void (QNetworkReply::*)(qint64, qint64);

    bool transfer(const char* slot, QIODevice* device);
    void stopThread();

    QNetworkRequest begin();
    void receive(QIODevice* destination);
    void limitAnswer();
    bool finish(Progress progressSignal);
    bool wait(std::chrono::milliseconds interval, Progress progressSignal);
    bool judge(bool inTime);
    bool judgeStatus();
    void dropTransfer();
    void endTransfers();
    void report(bool success, void* pReturnSuccess, void* pLoop);

    std::shared_ptr<QEventLoop> m_callerLoop; // shared with the waiting call, which may outlive the object
    QUrl m_url;
    Headers m_headers;
    QThread* m_thread = nullptr;
    std::unique_ptr<QNetworkAccessManager> m_manager;
    QNetworkReply* m_reply = nullptr;
    quint64 m_contentLength = 0;
    qint32 m_errorCode = 0;
    qint32 m_httpStatus = 0;
    std::chrono::milliseconds m_timeout;
    qint32 m_stalled = 0;
    bool m_writeFailed = false;
    std::atomic_bool m_transferring{false}; // set around a transfer; orders what both threads see
};
