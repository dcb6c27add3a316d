// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/dirmap.h"

#include <QJsonObject>

/// What is remembered of a project that was synced with the cloud.
struct SyncRecord
{
    QString source;       ///< bucket and path of the project in the cloud; another one makes the record void
    QString revision;     ///< pulled last; empty when none is known
    bool complete = true; ///< whether every file of that revision could be had
    Dirmap synced;        ///< the map that both sides had
};

inline bool operator==(const SyncRecord& a, const SyncRecord& b)
{
    return a.source == b.source && a.revision == b.revision && a.complete == b.complete &&
           a.synced == b.synced;
}

/// The record as JSON.
QJsonObject toJson(const SyncRecord& record);

/// Reads a record's JSON; nothing when a member is missing or of a wrong kind.
std::optional<SyncRecord> syncRecordFromJson(const QJsonObject& json);
