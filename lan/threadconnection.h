// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "lan/filebatch.h"

#include <QHostAddress>
#include <QTemporaryFile>
#include <QThread>

#include <atomic>
#include <deque>
#include <memory>

class LanHost;
class PeerLog;
class WorkFolder;

/// The thread of one connection to another player, and the way to it from other threads, which wait here for
/// transfers. The Connection itself lives on the thread's stack.
///
/// The object belongs to the GUI thread; members say where they may be called.
class ThreadConnection : public QThread
{
    Q_OBJECT

public:
    /// For a socket that was accepted; `name` is the own player name. `host` and `log` outlive this object.
    ThreadConnection(LanHost& host, PeerLog& log, const QString& name, qintptr socketDescriptor,
                     QObject* parent = nullptr);
    /// For a connection to be opened.
    ThreadConnection(LanHost& host, PeerLog& log, const QString& name, const QHostAddress& address,
                     quint16 port, QObject* parent = nullptr);
    /// Ends the connection.
    ~ThreadConnection() override;

    // --- any thread ---------------------------------------------------------------------------------------

    QHostAddress hostAddress() const { return m_hostAddress; }
    bool isIncoming() const { return m_socketDescriptor >= 0; }
    LanHost& host() const { return m_host; }
    PeerLog& log() const { return m_log; }
    /// The peer's player name; empty until it has said it.
    QString peerName() const;
    /// Whether the connection goes on without the peer having said its name.
    bool isPending() const;
    /// Bytes of file content that came or went so far.
    qint64 contentBytes() const { return m_contentBytes; }

    // --- any thread but the connection's, and one caller at a time in each direction -----------------------

    /// Sends the files of `batch` and waits until the last of them is handed to the system or the batch has
    /// ended. A file that cannot be read is missed.
    Outcome sendFilesAndWait(const std::shared_ptr<FileBatch>& batch);
    /// Asks for the files of `batch`, one after the other, and waits until the last of them is in its place
    /// or the batch has ended. A file that cannot be put there is missed, and so is one that comes empty
    /// while the one in its place is not: the peer may not have it.
    Outcome getFilesAndWait(const std::shared_ptr<FileBatch>& batch);

    // --- the connection's thread --------------------------------------------------------------------------

    void setPeerName(const QString& name);
    /// Ends the connection and, for `reason`, what is waited for; only the first reason counts.
    void end(const QString& reason);
    void countContent(qint64 bytes) { m_contentBytes += bytes; }
    /// The file that was sent first of those on the way is out, or was not sent, for the reason in `outcome`.
    /// The next one to send.
    std::optional<FileBatch::File> fileSent(const Outcome& outcome);
    /// Whether some caller still wants the answer that arrives next.
    bool wantsAnswer() const;
    /// An answer is there: the file to ask for now. fileReceived() follows.
    std::optional<FileBatch::File> nextToGet();
    /// Puts the answer, which is in `file`, or null when it could not be kept, in its place.
    void fileReceived(const WorkFolder& folder, QTemporaryFile* file);

signals:
    void signalSendFileToServer(QString localPath, QString targetPath);
    void signalGetFileFromServer(QString requestFile);
    /// The connection is gone; the last act of the thread.
    void connectionFinished();

protected:
    void run() override;

private:
    using Batches = std::deque<std::shared_ptr<FileBatch>>; // the first one is being worked on

    void enqueue(Batches& batches, const std::shared_ptr<FileBatch>& batch);
    std::optional<FileBatch::File> nextOf(Batches& batches);
    void finishFirst(Batches& batches, const Outcome& outcome);
    void endBatches();

    LanHost& m_host;
    PeerLog& m_log;
    const QString m_name;
    const QHostAddress m_hostAddress;
    const quint16 m_port = 0;
    const qintptr m_socketDescriptor = -1;
    std::atomic<qint64> m_contentBytes{0};
    QString m_endReason; // the connection's thread

    mutable std::mutex m_mutex; // guards everything below
    QString m_peerName;
    Batches m_sending;
    Batches m_getting;
    bool m_ended = false;
};
