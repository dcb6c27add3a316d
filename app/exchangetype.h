// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/capi.h"

#include <QPointer>
#include <QQmlParserStatus>
#include <QStringList>

class LocalNetwork;
class ProjectExchange;

/// The QML type Exchange: the players of the local network, and the exchange of a project with one of them.
/// The program has one exchange at a time, which every object of this type shows. GUI thread.
///
/// Players are there once CAPI.startLocalServer() was called.
class ExchangeType : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QStringList players READ players NOTIFY playersChanged)
    Q_PROPERTY(ProjectExchange* status READ status NOTIFY statusChanged)

public:
    void classBegin() override {}
    void componentComplete() override;

    /// Names of the connected players, each once, in the order in which they came.
    QStringList players() const;
    /// The exchange that is running or was the last one: running, sending, player, project, filesDone, files,
    /// bytes, outcome, succeeded, and its signal finished(). Null where there is no program around.
    ProjectExchange* status() const;

    /// Begins to send the project, a folder of the work directory, to a connected player. False when it does
    /// not begin: the status' outcome says why, unless another exchange is running.
    Q_INVOKABLE bool send(const QString& player, const QString& project);
    /// Begins to fetch the player's project of that name; as send().
    Q_INVOKABLE bool fetch(const QString& player, const QString& project);
    /// Ends the exchange soon, with an outcome; nothing when none is running.
    Q_INVOKABLE void cancel();

signals:
    void playersChanged();
    void statusChanged();

private:
    LocalNetwork* network() const;

    QPointer<CAPI> m_capi;
};
