// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "fingers.h"
#include "tree.h"

#include <QCoreApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QLocalServer>
#include <QLocalSocket>

/// Lets a test see what the unchanged program shows: a generic platform plugin that the environment loads
/// (QT_QPA_GENERIC_PLUGINS=probe). It serves a local socket in the folder NUVEX_PROBE, named by the process,
/// takes one line a connection, the touches to be made (an empty line for none), and answers with
/// windowTree() as one line. Clicks and keys come from the X server, which has no fingers.
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
    static void answer(QLocalSocket* socket)
    {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, socket, [socket] { carryOut(*socket); });
    }

    static void carryOut(QLocalSocket& socket)
    {
        if (!socket.canReadLine())
            return;
        if (const QByteArray touches = socket.readLine().trimmed(); !touches.isEmpty())
            touchWindow(touches);
        socket.write(windowTree() + '\n');
        socket.disconnectFromServer();
    }
};

#include "probe.moc"
