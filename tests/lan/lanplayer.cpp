// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// A player without a window, for tests and measurements: lanplayer WORK-DIRECTORY NAME [ANNOUNCE-TO...]
//
// Commands on standard input: connect ADDRESS PORT, players, send PLAYER PROJECT, fetch PLAYER PROJECT,
// cancel, quit. On standard output it says what happens: port N, players A B, started NAME, finished NAME,
// received PROJECT, progress FILES-DONE FILES, ended yes|no MILLISECONDS OUTCOME.

#include "lan/host.h"
#include "lan/localserver.h"
#include "lan/projectexchange.h"
#include "qmldoc/syntaxtree.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>

#include <iostream>

namespace {

class Host : public LanHost
{
public:
    explicit Host(const QString& workDirectory)
        : m_workDirectory(workDirectory)
    {
    }

    QString workDirectory() const override { return m_workDirectory; }
    bool isDocument(const QString& text) const override { return SyntaxTree(text).program() != nullptr; }
    void connectionStarted(const QString& name) override { say("started " + name); }
    void connectionFinished(const QString& name) override { say("finished " + name); }
    void projectReceived(const QString& project) override { say("received " + project); }

    static void say(const QString& line)
    {
        static std::mutex mutex;
        const std::lock_guard lock(mutex);
        std::cout << line.toStdString() << std::endl;
    }

private:
    QString m_workDirectory;
};

class Player : public QObject
{
public:
    explicit Player(const QStringList& arguments)
        : m_host(arguments.value(1))
        , m_server(m_host, arguments.value(2), addresses(arguments.mid(3)))
    {
        connect(&m_exchange, &ProjectExchange::finished, this, [this] {
            Host::say(QStringLiteral("ended %1 %2 %3")
                          .arg(m_exchange.hasSucceeded() ? "yes" : "no")
                          .arg(m_clock.elapsed())
                          .arg(m_exchange.outcome()));
        });
        connect(&m_exchange, &ProjectExchange::changed, this, [this] {
            Host::say(QStringLiteral("progress %1 %2").arg(m_exchange.filesDone()).arg(m_exchange.files()));
        });
        Host::say(QStringLiteral("port %1").arg(m_server.serverPort()));
    }

    void obey(const QStringList& words)
    {
        const QString command = words.value(0);
        if (command == "connect")
            m_server.connectTo(QHostAddress(words.value(1)), words.value(2).toUShort());
        else if (command == "players")
            Host::say("players " + m_server.players().join(' '));
        else if (command == "send" || command == "fetch")
            exchange(words);
        else if (command == "cancel")
            m_exchange.cancel();
        else
            QCoreApplication::quit();
    }

private:
    static QList<QHostAddress> addresses(const QStringList& texts)
    {
        QList<QHostAddress> result;
        for (const QString& text : texts)
            result.append(QHostAddress(text));
        return result;
    }

    void exchange(const QStringList& words)
    {
        const auto direction =
            words[0] == "send" ? ProjectExchange::Direction::Send : ProjectExchange::Direction::Fetch;
        m_clock.start();
        m_exchange.start(&m_server, words.value(1), direction, words.value(2));
    }

    Host m_host;
    LocalServer m_server;
    ProjectExchange m_exchange;
    QElapsedTimer m_clock;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    Player player(QCoreApplication::arguments());
    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &player, [&player] {
        std::string line;
        do { // what has been read ahead is not signalled again
            std::getline(std::cin, line);
            player.obey(QString::fromStdString(line).split(' '));
        } while (std::cin && std::cin.rdbuf()->in_avail() > 0);
    });
    return QCoreApplication::exec();
}
