// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "lan/frame.h"
#include "lan/workfolder.h"

#include <QFile>
#include <QQueue>
#include <QSet>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

class ThreadConnection;

/// The socket to another player: moves bytes between it, frames and files. docs/lan-protocol.md describes
/// what is said; both ends say and answer the same things.
///
/// Lives in the thread of its owner, which it tells of everything that happened. What the peer may cost is
/// bounded by limits.h; beyond, the connection is closed with a line in the log.
class Connection : public QTcpSocket
{
    Q_OBJECT

public:
    /// `name` is the own player name; `owner` outlives this object.
    Connection(const QString& name, ThreadConnection* owner, QObject* parent = nullptr);
    ~Connection() override;

    /// Goes on with a socket that was accepted.
    void begin(qintptr socketDescriptor);
    /// Connects to a peer; a failure ends the owner's thread.
    void begin(const QHostAddress& address, quint16 port);

signals:
    /// Part of the interface; never emitted.
    void transferFinished();

public slots:
    /// Queues a file of the work directory to be sent; both paths are relative, here and there. One that
    /// cannot be read is not sent, and the owner told so.
    void sendFileToServer(QString localFilePath, QString serverFilePath);
    /// Queues a request for a file.
    void getFileFromServer(QString requestFile);

private:
    Q_SLOT void processReadyRead();
    Q_SLOT void processBytesWritten(qint64);
    Q_SLOT void readIncomingFile();
    Q_SLOT void readIntoBuffer();
    Q_SLOT void writeFromBuffer();
    Q_SLOT void writeOutcomingFile();
    Q_SLOT void whenConnectionError(QAbstractSocket::SocketError);
    Q_SLOT void whenDisconnected();

    // A frame to send and, of a file, where its content is.
    struct Outgoing
    {
        Frame frame;
        QString localPath;
    };
    enum class WriteState { Idle, Frame, Content };

    void whenConnected();
    void whenLate();
    void watch();
    void checkProgress();
    bool isSomethingOnTheWay() const;
    void drop(const QString& reason);
    bool mayLog() const;
    void complain(const char* verb, const QString& path, const QString& fault);

    void take(const Frame& frame);
    bool isPartOfPush(const QString& path) const;
    void takeName(const QString& name);
    void answer(const QString& path);
    void receive(const Frame& frame);
    std::unique_ptr<QTemporaryFile> fileForAnswer();
    std::unique_ptr<QTemporaryFile> fileForPush();
    void loseIncoming(const QString& fault);
    void finishIncoming();
    void takeAnswer(QTemporaryFile* file);
    void store(QTemporaryFile& file);
    Outcome storeMap(QTemporaryFile& file, const QString& project);

    void enqueue(const Outgoing& outgoing);
    void startNext();
    void start(const Outgoing& outgoing);
    bool openOutgoing();
    void writeChunk();
    void finishOutgoing(const Outcome& outcome);

    const QString m_name;
    ThreadConnection* m_owner;
    const WorkFolder m_baseDir;

    FrameReader m_reader;
    QString m_targetPath;                           // of the file that arrives
    std::unique_ptr<QTemporaryFile> m_incomingFile; // null while content is thrown away
    qint64 m_bytesToReceive = 0;
    bool m_receivingFile = false;
    QString m_pushedProject;        // whose map the peer has asked for last, and not sent since
    bool m_isReadingPaused = false; // until fewer frames wait to be sent
    int m_openRequests = 0;         // that have no complete answer yet
    QSet<QString> m_missed;         // what the peer has sent and could not be kept
    QTimer m_retryTimer;

    QQueue<Outgoing> m_waiting;
    Outgoing m_sending;
    QFile m_outgoingFile;
    qint64 m_bytesToSend = 0;
    WriteState m_writeState = WriteState::Idle;

    bool m_isConnected = false;
    QTimer m_deadline; // for connecting, then for the peer's name
    QTimer m_watch;    // runs while something is due
    bool m_hasMoved = false;
    int m_unsentBytes = 0; // in the system's hands when last looked at
    int m_stalledTicks = 0;
};
