// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What the local network needs of the program. Must outlive everything that is given it; every member is
/// called from any thread and must not wait for another one.
class LanHost
{
public:
    virtual ~LanHost() = default;

    /// Absolute path of the folder that holds all projects; always the same.
    virtual QString workDirectory() const = 0;
    /// Whether `text` is a QML document, as far as its syntax tells.
    virtual bool isDocument(const QString& text) const = 0;
    /// A connected player has said its name. There may be several connections to one player.
    virtual void connectionStarted(const QString& playerName) = 0;
    /// A connection has ended; the name is empty when the player had not said it.
    virtual void connectionFinished(const QString& playerName) = 0;
    /// Files of the project, a folder in the work directory, have come from another player, the last of them
    /// too.
    virtual void projectReceived(const QString& project) = 0;
};
