// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/http/transfer.h"

#include <memory>

/// One HTTP POST or GET that blocks its caller until it ends, fails or stalls.
///
/// Construct, call post() or get() once, read the results, destroy. The network work runs in a transfer
/// thread; a caller on the program's main thread waits in a nested event loop, so the interface stays alive,
/// any other caller is blocked. What a Transfer is holds for it.
///
/// Used by one thread. When the program quits, or the object is destroyed by an event, during a transfer, the
/// transfer ends as cancelled.
class Webfile : public QObject
{
    Q_OBJECT

public:
    using Headers = Transfer::Headers;

    /// A transfer in a thread of its own. `headers` are raw request headers, name to value; they win over the
    /// defaults.
    Webfile(const QString& url, const Headers& headers, QObject* parent = nullptr);
    /// A transfer in `thread`, which must outlive it and keeps the connection.
    Webfile(TransferThread& thread, const QString& url, const Headers& headers);
    ~Webfile() override;

    /// Sends what `body`, open for reading, holds. True when the answer has status 200 or 206; one whose body
    /// exceeds limits::answerBytes is a failure.
    bool post(QIODevice* body);
    /// Writes the answer's body to `destination`, open for writing, as it arrives. True when the answer has
    /// status 200 or 206 and every byte could be written. On false, part of a body may have been written.
    bool get(QIODevice* destination);

    /// The last transfer; null when there was none.
    const Transfer* transfer() const { return m_transfer.get(); }
    /// Reply of the last transfer, whose body the caller of post() reads; owned by this object. Null when
    /// there was none or it did not finish.
    QNetworkReply* reply() const { return m_transfer ? m_transfer->reply() : nullptr; }
    /// A QNetworkReply::NetworkError; 0 after a success.
    qint32 errorCode() const { return m_transfer ? m_transfer->error() : 0; }
    /// HTTP status of an answer that came without a network error; else 0.
    qint32 httpStatus() const { return m_transfer ? m_transfer->httpStatus() : 0; }
    /// The answer's Content-Length; 0 when it had none, or the transfer failed in the network.
    quint64 contentLength() const;

signals:
    /// The transfer stalled. Emitted in the transfer thread.
    void signalTimeout();
    /// Bytes sent (POST) or received (GET) so far, and their total, -1 when unknown. Emitted in the transfer
    /// thread.
    void signalProgress(qlonglong i, qlonglong total);

private:
    bool run(Transfer::Method method, QIODevice* device);

    const QUrl m_url;
    const Headers m_headers;
    std::unique_ptr<TransferThread> m_ownThread;
    TransferThread& m_thread;
    std::unique_ptr<Transfer> m_transfer;
};
