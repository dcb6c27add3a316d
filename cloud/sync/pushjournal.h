// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/sync/syncedproject.h"

/// A push that has begun. It stands with the project's record until the players are told of it, so that the
/// next run of the program can end what this one could not.
struct PushJournal
{
    QString source; ///< bucket and path of the project in the cloud
    Dirmap local;   ///< the project's own map; another one, and the project was changed since
    Dirmap cloud;   ///< the cloud's map at the end
    Dirmap synced;  ///< the map last synced, then
};

/// Reads the journal of a project's push, if there is a sound one for the project's source.
std::optional<PushJournal> readPushJournal(const SyncedProject& project);

/// Writes the journal of a project's push, whole or not at all. False on failure, logged.
bool writePushJournal(const ProjectPlace& place, const PushJournal& journal);

/// Ends the journal of a project's push, if there is one.
void removePushJournal(const ProjectPlace& place);

/// Whether a push of the project has begun and its files still are those that it began with.
bool isPushBegun(const SyncedProject& project);
