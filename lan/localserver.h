// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "lan/peerlog.h"

#include <QTcpServer>
#include <QTimer>

#include <memory>
#include <vector>

class LanHost;
class PeerManager;
class ThreadConnection;

/// Accepts other players of the local network, connects to those that announce themselves, and keeps the
/// connections, each of which has a thread. GUI thread.
///
/// Their number is bounded by limits.h, and so is the number of those that have not said their name: beyond,
/// an accepted connection is closed at once and an announcement passed over.
class LocalServer : public QTcpServer
{
    Q_OBJECT

public:
    /// Listens on a port that the system chooses, and announces it to `broadcastAddresses`; with an empty
    /// list to nobody. What a killed run left half received is deleted.
    LocalServer(LanHost& host, const QString& playerName, const QList<QHostAddress>& broadcastAddresses,
                QObject* parent = nullptr);
    /// Ends all connections and waits for their threads.
    ~LocalServer() override;

    QString playerName() const { return m_name; }
    /// Whether there is a connection with this address, or one being opened; the port does not matter.
    bool hasConnectionTo(const QHostAddress& address, int port) const;
    /// The first connection to the player of that name; null without one. Keep it only as long as it is
    /// needed, and let go of it in the GUI thread.
    std::shared_ptr<ThreadConnection> findConnection(const QString& name) const;
    /// Names of the connected players, each once, in the order of their connections.
    QStringList players() const;

    /// Opens a connection, unless there is one with the address or there are too many.
    void connectTo(const QHostAddress& address, quint16 port);

    /// Takes over a connection whose thread is started afterwards.
    Q_SLOT void addNewConnection(ThreadConnection* connection);
    /// Tells the host that the connection is over and lets go of it; nothing when it is not listed.
    Q_SLOT void removeConnection(ThreadConnection* connection);
    /// For the signal of a connection: joins its thread and removes it.
    Q_SLOT void connectionFinished();

protected:
    void incomingConnection(qintptr socketDescriptor) override;

private:
    bool mayAccept(qintptr socketDescriptor);
    int pendingConnections(bool incoming) const;
    bool hasPendingFrom(const QHostAddress& address) const;

    LanHost& m_host;
    const QString m_name;
    PeerManager* m_peerManager;
    PeerLog m_log;
    QTimer m_logTimer;
    std::vector<std::shared_ptr<ThreadConnection>> m_connections; // in order of creation
};
