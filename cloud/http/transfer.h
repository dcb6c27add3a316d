// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/http/transferthread.h"

#include <QDebug>
#include <QHash>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

/// One HTTP request: a GET into a device or a POST from one.
///
/// Redirects are not followed, nothing is retried, no body is unpacked. A transfer that makes no progress for
/// between one and two of limits::transferStall is given up. The body of a GET is never in memory as a whole;
/// the answer's body of a POST is, up to limits::answerBytes. It must go before the transfer thread does.
class Transfer : public TransferTask
{
    Q_OBJECT

public:
    enum class Method { Get, Post };
    using Headers = QHash<QByteArray, QByteArray>;

    /// `device`, open for writing (GET) or reading (POST), must stay until the transfer has ended. `headers`
    /// win over the ones that every request has.
    Transfer(Method method, const QUrl& url, const Headers& headers, QIODevice* device);
    ~Transfer() override;

    /// It says nothing in the log about how it ends. Before it begins.
    void setSilent() { m_isSilent = true; }

    /// Status 200 or 206, and every byte could be written.
    bool succeeded() const { return m_succeeded; }
    /// A QNetworkReply::NetworkError; 0 after a success.
    QNetworkReply::NetworkError error() const { return m_error; }
    /// HTTP status of an answer that came without a network error; else 0.
    int httpStatus() const { return m_httpStatus; }
    /// The reply, once the transfer has ended with an answer; owned by this object, at home in the transfer
    /// thread. Null without one.
    QNetworkReply* reply() const { return m_reply; }
    /// The device did not take every byte.
    bool writeFailed() const { return m_writeFailed; }

signals:
    /// Bytes sent (POST) or received (GET) so far, and their total, -1 when unknown. In the transfer thread.
    void progress(qint64 bytes, qint64 total);
    /// It made no progress for too long. In the transfer thread.
    void stalled();

protected:
    void begin(QNetworkAccessManager& manager) override;
    void cancel() override;

private:
    friend class FileTransfers; // whose transfers are its children in the transfer thread

    QDebug debug() const;
    QNetworkRequest request() const;
    void send(QNetworkAccessManager& manager);
    void watch();
    void receive();
    void limitAnswer();
    void take(qint64 bytes, qint64 total);
    void checkForStall();
    void finish();
    void judge();
    void judgeStatus();
    void dropReply();

    const Method m_method;
    const QUrl m_url;
    const Headers m_headers;
    QIODevice* const m_device;
    QNetworkReply* m_reply = nullptr;
    QTimer m_stallTimer{this};
    QNetworkReply::NetworkError m_error = QNetworkReply::NoError;
    int m_httpStatus = 0;
    bool m_quiet = false;   // no progress since the timer's last tick
    bool m_stalled = false; // for good
    bool m_succeeded = false;
    bool m_writeFailed = false;
    bool m_hasEnded = false;
    bool m_isSilent = false;
    mutable QString m_unheard; // what a silent one would have said
};
