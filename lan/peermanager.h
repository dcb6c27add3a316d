// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <QUdpSocket>

class LocalServer;

/// Announces this player on the local network, and lets the server connect to the players that announce
/// themselves. GUI thread.
class PeerManager : public QObject
{
    Q_OBJECT

public:
    /// Announces `owner`, its parent, to `broadcastAddresses`; with an empty list to nobody. The owner starts
    /// the announcing by start().
    PeerManager(LocalServer* owner, const QList<QHostAddress>& broadcastAddresses);

    void start() { m_broadcastTimer.start(); }

private:
    Q_SLOT void sendBroadcastDatagram();
    Q_SLOT void readBroadcastDatagram();

    void handle(const QByteArray& datagram, const QHostAddress& sender);

    LocalServer* m_localServer;
    QList<QHostAddress> m_broadcastAddresses;
    QList<QHostAddress> m_ownAddresses; // empty until something is announced, as nothing comes back before
    QUdpSocket m_broadcastSocket;
    QTimer m_broadcastTimer;
    int m_serverPort;
};
