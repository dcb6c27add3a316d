// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/peermanager.h"

#include "lan/announcement.h"
#include "lan/limits.h"
#include "lan/localserver.h"
#include "lan/logging.h"
#include "lan/peeraddress.h"

#include <QNetworkInterface>

PeerManager::PeerManager(LocalServer* owner, const QList<QHostAddress>& broadcastAddresses)
    : QObject(owner)
    , m_localServer(owner)
    , m_broadcastAddresses(broadcastAddresses)
    , m_serverPort(owner->serverPort())
{
    if (!m_broadcastSocket.bind(QHostAddress::Any, announcementPort,
                                QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint))
        qCWarning(lcLan) << "No announcements can be received:" << m_broadcastSocket.errorString();
    for (const QHostAddress& address : broadcastAddresses)
        qCInfo(lcLan).noquote() << "Announced to" << address.toString() << "at UDP port" << announcementPort;
    connect(&m_broadcastSocket, &QUdpSocket::readyRead, this, &PeerManager::readBroadcastDatagram);
    m_broadcastTimer.setInterval(limits::announceInterval);
    connect(&m_broadcastTimer, &QTimer::timeout, this, &PeerManager::sendBroadcastDatagram);
}

void PeerManager::sendBroadcastDatagram()
{
    if (m_broadcastAddresses.isEmpty())
        return;
    m_ownAddresses = QNetworkInterface::allAddresses(); // anew, since interfaces come and go
    const QByteArray datagram = announcement(m_localServer->playerName().toUtf8(), quint16(m_serverPort));
    for (const QHostAddress& address : qAsConst(m_broadcastAddresses))
        m_broadcastSocket.writeDatagram(datagram, address, announcementPort);
}

void PeerManager::readBroadcastDatagram()
{
    QByteArray datagram;
    QHostAddress sender;
    // What is left after so many is signalled anew.
    for (int i = 0; i < limits::datagramsAtOnce && m_broadcastSocket.hasPendingDatagrams(); ++i) {
        datagram.resize(limits::datagramBytes + 1);
        const qint64 size = m_broadcastSocket.readDatagram(datagram.data(), datagram.size(), &sender);
        if (size < 0 || size > limits::datagramBytes)
            continue;
        datagram.resize(int(size));
        handle(datagram, plainAddress(sender));
    }
}

void PeerManager::handle(const QByteArray& datagram, const QHostAddress& sender)
{
    const std::optional<quint16> port = announcedPort(datagram);
    if (port && !m_ownAddresses.contains(sender))
        m_localServer->connectTo(sender, *port);
}
