// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tree.h"

#include <QCoreApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QLocalServer>
#include <QLocalSocket>

/// Lets a test see what the unchanged program shows: a generic platform plugin that the environment loads
/// (QT_QPA_GENERIC_PLUGINS=probe). It serves a local socket in the folder NUVEX_PROBE, named by the process,
/// and answers each connection with windowTree() as one line. It only looks; clicks and keys come from the X
/// server.
class ProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        auto* server = new QLocalServer; // the application owns and deletes it
        server->listen(qEnvironmentVariable("NUVEX_PROBE") + '/' +
                       QString::number(QCoreApplication::applicationPid()));
        connect(server, &QLocalServer::newConnection, server,
                [server] { answer(server->nextPendingConnection()); });
        return server;
    }

private:
    static void listen(QLocalServer& server, const QString& name)
    {
        server.close();
        QLocalServer::removeServer(name);
        server.listen(name);
    }

    static void answer(QLocalSocket* socket)
    {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        socket->write(windowTree() + '\n');
        socket->disconnectFromServer();
    }
};

#include "probe.moc"
