// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "lan/host.h"
#include "lan/projectexchange.h"

#include <QRandomGenerator>

#include <memory>

class CAPI;
class LocalServer;
class QQuickView;
struct Deployment;

/// The program's part in the local network: the server, once it is started, and one exchange at a time. Tells
/// the network what it needs of the program, and the program what happens. GUI thread; the members of
/// LanHost, any thread.
class LocalNetwork : public QObject, public LanHost
{
    Q_OBJECT

public:
    /// `capi` emits the signals of connections and of a reload; both it and `view`, which may be null,
    /// outlive this object.
    LocalNetwork(CAPI& capi, QQuickView* view, const Deployment& deployment);
    ~LocalNetwork() override;

    /// Starts the server, unless it is there.
    void start();
    /// TCP port of the server; 0 before it is started.
    quint16 port() const;
    /// Names of the connected players.
    QStringList players() const;
    /// Address of a connected player; empty when it is not connected.
    QString addressOf(const QString& player) const;

    /// See ProjectExchange::start().
    bool exchange(const QString& player, ProjectExchange::Direction direction, const QString& project);
    ProjectExchange& projectExchange() { return m_exchange; }

    /// Exchanges the deployment's project, or without one the current one, with a player: sends or fetches by
    /// chance. Returns when that is over or the program quits; refused while an exchange is running.
    ///
    /// Events are processed meanwhile, but nothing is deleted by deleteLater(), such as the page whose
    /// handler has called.
    void exchangeAtRandom(const QString& player);
    /// Makes chance repeatable.
    void seed(quint32 value) { m_chance.seed(value); }

    QString workDirectory() const override { return m_workDirectory; }
    bool isDocument(const QString& text) const override;
    void connectionStarted(const QString& playerName) override;
    void connectionFinished(const QString& playerName) override;
    void projectReceived(const QString& project) override;

private:
    void reload();

    CAPI& m_capi;
    QQuickView* m_view;
    const QString m_workDirectory;
    const QStringList m_broadcastAddresses;
    const QString m_exchangeProject;
    QRandomGenerator m_chance;
    std::unique_ptr<LocalServer> m_server;
    ProjectExchange m_exchange; // uses the server
};
