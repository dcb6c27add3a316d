// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/localnetwork.h"

#include "api/capi.h"
#include "api/logging.h"
#include "api/playerview.h"
#include "lan/localserver.h"
#include "lan/threadconnection.h"
#include "qmldoc/syntaxtree.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>

namespace {

// The same for the whole life of the process: a restart in place is the same player.
QString playerName()
{
    static const QString name =
        QStringLiteral("Player_%1").arg(QRandomGenerator::global()->bounded(std::numeric_limits<int>::max()));
    return name;
}

QList<QHostAddress> addresses(const QStringList& texts)
{
    QList<QHostAddress> result;
    for (const QString& text : texts)
        result.append(QHostAddress(text));
    return result;
}

// Keeps every object alive that is to be deleted later, while it exists itself. QML ends the program when an
// object goes whose handler is being run, and a handler that waits in an event loop is.
class HeldDeletions : public QObject
{
public:
    HeldDeletions() { qApp->installEventFilter(this); }

    ~HeldDeletions() override
    {
        qApp->removeEventFilter(this);
        for (const QPointer<QObject>& object : qAsConst(m_held)) {
            if (object)
                object->deleteLater();
        }
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::DeferredDelete)
            return false;
        m_held.append(object);
        return true;
    }

private:
    QList<QPointer<QObject>> m_held;
};

} // namespace

LocalNetwork::LocalNetwork(CAPI& capi, QQuickView* view, const Deployment& deployment)
    : m_capi(capi)
    , m_view(view)
    , m_workDirectory(capi.getWorkDirectory())
    , m_broadcastAddresses(deployment.broadcastAddresses)
    , m_exchangeProject(deployment.exchangeProject)
    , m_chance(QRandomGenerator::global()->generate())
{
}

LocalNetwork::~LocalNetwork() = default;

void LocalNetwork::start()
{
    if (!m_server)
        m_server = std::make_unique<LocalServer>(*this, playerName(), addresses(m_broadcastAddresses));
}

quint16 LocalNetwork::port() const
{
    return m_server ? m_server->serverPort() : 0;
}

QStringList LocalNetwork::players() const
{
    return m_server ? m_server->players() : QStringList();
}

QString LocalNetwork::addressOf(const QString& player) const
{
    const auto connection = m_server ? m_server->findConnection(player) : nullptr;
    return connection ? connection->hostAddress().toString() : QString();
}

bool LocalNetwork::exchange(const QString& player, ProjectExchange::Direction direction,
                            const QString& project)
{
    return m_exchange.start(m_server.get(), player, direction, project);
}

void LocalNetwork::exchangeAtRandom(const QString& player)
{
    if (m_exchange.isRunning()) {
        qCWarning(lcApi) << "An exchange is running; refused the one with" << player;
        return;
    }
    start();
    const bool isOdd = m_chance.generate() % 2 == 1;
    const QString project = m_exchangeProject.isEmpty() ? m_capi.getBaseProjectName() : m_exchangeProject;
    if (!exchange(player, isOdd ? ProjectExchange::Direction::Fetch : ProjectExchange::Direction::Send,
                  project))
        return;
    QEventLoop loop;
    connect(&m_exchange, &ProjectExchange::finished, &loop, &QEventLoop::quit);
    const HeldDeletions held;
    loop.exec();
    m_exchange.cancel(); // in case that the program quits
}

bool LocalNetwork::isDocument(const QString& text) const
{
    return SyntaxTree(text).program() != nullptr;
}

void LocalNetwork::connectionStarted(const QString& playerName)
{
    QMetaObject::invokeMethod(
        this, [this, playerName] { emit m_capi.playerConnectionStarted(playerName); }, Qt::QueuedConnection);
}

void LocalNetwork::connectionFinished(const QString& playerName)
{
    QMetaObject::invokeMethod(
        this, [this, playerName] { emit m_capi.playerConnectionFinished(playerName); }, Qt::QueuedConnection);
}

void LocalNetwork::projectReceived(const QString& project)
{
    QMetaObject::invokeMethod(
        this,
        [this, project] {
            if (project == m_capi.getBaseProjectName())
                reload();
        },
        Qt::QueuedConnection);
}

void LocalNetwork::reload()
{
    PlayerView(m_view).unload();
    emit m_capi.reloadPlayer();
}
