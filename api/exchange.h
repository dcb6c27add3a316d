// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QStringList>

class CAPI;
class LocalNetwork;
class ProjectExchange;

/// The QML type Exchange of "Nuvex.Native" 1.1: the players of the local network, and the exchange of a
/// project with one of them. GUI thread.
///
///     import Nuvex.Native 1.1
///     Exchange { id: exchange }
///     Connections { target: exchange.status; function onFinished() { say(exchange.status.outcome); } }
///     ... model: exchange.players; onClicked: exchange.fetch(modelData, "Shop")
///
/// Nothing here waits: send() and fetch() return at once, and `status` tells the rest. The program has one
/// exchange at a time, which every object of this type shows and which goes on when its page is left.
/// CAPI.setConnectedPlayerName() uses the same one. Players appear once CAPI.startLocalServer() was called.
///
/// `status` has, all read-only and all notified by its signal changed(), ten times a second while it runs:
///     bool running      an exchange is under way; what follows is of that one, or of the last one
///     bool sending      it sends, else it fetches
///     string player     with whom
///     string project    a folder of the work directory
///     int files         that differ and are to be moved; 0 until that is known
///     int filesDone     of those
///     double bytes      of file content that came or went so far; the total is not known
///     string outcome    how it ended, a sentence for users; empty while running and before the first one
///     bool succeeded    everything that was to be moved was
/// and the signal finished(), when one has ended, also by cancel() or a lost connection, or could not begin.
/// Names of players, and so the outcome, come from the network: to be shown as plain text.
class Exchange : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QStringList players READ players NOTIFY playersChanged)
    Q_PROPERTY(ProjectExchange* status READ status CONSTANT)

public:
    /// Names of the connected players, each once, in the order in which they came.
    QStringList players() const;
    /// The exchange that is running or was the last one, as above. Null where there is no program around.
    ProjectExchange* status() const;

    /// Where a connected player is, as one writes it; empty when it is not connected.
    Q_INVOKABLE QString addressOf(const QString& player) const;
    /// Begins to send the project, a folder of the work directory, to a connected player. False when it does
    /// not begin: the status' outcome says why, unless another exchange is running.
    Q_INVOKABLE bool send(const QString& player, const QString& project);
    /// Begins to fetch the player's project of that name; as send().
    Q_INVOKABLE bool fetch(const QString& player, const QString& project);
    /// Ends the exchange soon, with an outcome; nothing when none is running.
    Q_INVOKABLE void cancel();

signals:
    void playersChanged();

private:
    void classBegin() override;
    void componentComplete() override {}
    LocalNetwork* network() const;

    QPointer<CAPI> m_capi;
};
