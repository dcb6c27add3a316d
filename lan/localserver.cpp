// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/localserver.h"

#include "lan/host.h"
#include "lan/limits.h"
#include "lan/logging.h"
#include "lan/peeraddress.h"
#include "lan/peermanager.h"
#include "lan/threadconnection.h"
#include "lan/workfolder.h"

#include <algorithm>

#include <sys/resource.h>
#include <unistd.h>

namespace {

bool isScarce(qintptr newestDescriptor)
{
    rlimit files{};
    ::getrlimit(RLIMIT_NOFILE, &files);
    return quint64(newestDescriptor) + limits::spareDescriptors >= files.rlim_cur;
}

} // namespace

LocalServer::LocalServer(LanHost& host, const QString& playerName,
                         const QList<QHostAddress>& broadcastAddresses, QObject* parent)
    : QTcpServer(parent)
    , m_host(host)
    , m_name(playerName)
{
    WorkFolder::clean(host.workDirectory());
    if (listen())
        qCInfo(lcLan).noquote() << playerName << "can be reached at TCP port" << serverPort();
    else
        qCWarning(lcLan) << "No players can connect:" << errorString();
    m_peerManager = new PeerManager(this, broadcastAddresses);
    m_peerManager->start();
    m_logTimer.setInterval(limits::logPeriod);
    connect(&m_logTimer, &QTimer::timeout, this, [this] { m_log.summarize(); });
    m_logTimer.start();
}

LocalServer::~LocalServer()
{
    close();
    for (const auto& connection : m_connections) {
        connection->disconnect(this);
        connection->quit();
    }
}

bool LocalServer::hasConnectionTo(const QHostAddress& address, int) const
{
    const QHostAddress plain = plainAddress(address);
    return std::any_of(m_connections.cbegin(), m_connections.cend(),
                       [&plain](const auto& connection) { return connection->hostAddress() == plain; });
}

std::shared_ptr<ThreadConnection> LocalServer::findConnection(const QString& name) const
{
    const auto found =
        std::find_if(m_connections.cbegin(), m_connections.cend(),
                     [&name](const auto& connection) { return connection->peerName() == name; });
    return found == m_connections.cend() ? nullptr : *found;
}

QStringList LocalServer::players() const
{
    QStringList names;
    for (const auto& connection : m_connections)
        names.append(connection->peerName());
    names.removeAll(QString()); // of those that have not said it
    names.removeDuplicates();
    return names;
}

void LocalServer::connectTo(const QHostAddress& address, quint16 port)
{
    if (int(m_connections.size()) >= limits::peers ||
        pendingConnections(false) >= limits::pendingConnections || hasConnectionTo(address, port))
        return;
    auto* connection = new ThreadConnection(m_host, m_log, m_name, plainAddress(address), port);
    addNewConnection(connection);
    connection->start();
}

void LocalServer::addNewConnection(ThreadConnection* connection)
{
    connect(connection, &ThreadConnection::connectionFinished, this, &LocalServer::connectionFinished);
    m_connections.emplace_back(connection);
}

void LocalServer::removeConnection(ThreadConnection* connection)
{
    const auto found = std::find_if(m_connections.rbegin(), m_connections.rend(),
                                    [connection](const auto& c) { return c.get() == connection; });
    if (found == m_connections.rend())
        return;
    const QString name = connection->peerName();
    if (!name.isEmpty() && m_log.admits(connection->hostAddress()))
        qCInfo(lcLan).noquote() << name << "has gone";
    m_host.connectionFinished(name);
    m_connections.erase(std::next(found).base());
}

void LocalServer::connectionFinished()
{
    auto* connection = qobject_cast<ThreadConnection*>(sender());
    if (!connection)
        return;
    connection->quit();
    connection->wait(); // no longer than it takes to return from the signal
    removeConnection(connection);
}

void LocalServer::incomingConnection(qintptr socketDescriptor)
{
    if (!mayAccept(socketDescriptor)) {
        ::close(int(socketDescriptor));
        return;
    }
    auto* connection = new ThreadConnection(m_host, m_log, m_name, socketDescriptor);
    addNewConnection(connection);
    connection->start();
}

bool LocalServer::mayAccept(qintptr socketDescriptor)
{
    if (isScarce(socketDescriptor)) {
        pauseAccepting(); // without any descriptor left, accepting would be tried again all the time
        QTimer::singleShot(limits::acceptPause, this, &QTcpServer::resumeAccepting);
    }
    const bool mayAccept = !isScarce(socketDescriptor) && int(m_connections.size()) < limits::peers &&
                           pendingConnections(true) < limits::pendingConnections &&
                           !hasPendingFrom(peerOf(socketDescriptor));
    if (!mayAccept && m_log.admits(peerOf(socketDescriptor)))
        qCWarning(lcLan) << "Too many connections: refusing one of" << peerOf(socketDescriptor).toString();
    return mayAccept;
}

int LocalServer::pendingConnections(bool incoming) const
{
    return int(std::count_if(m_connections.cbegin(), m_connections.cend(), [incoming](const auto& c) {
        return c->isIncoming() == incoming && c->isPending();
    }));
}

bool LocalServer::hasPendingFrom(const QHostAddress& address) const
{
    return std::any_of(m_connections.cbegin(), m_connections.cend(), [&address](const auto& c) {
        return c->isIncoming() && c->isPending() && c->hostAddress() == address;
    });
}
