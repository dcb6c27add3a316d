// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/sync/syncrecord.h"

/// Where a project lies on this computer, and where what is remembered of it.
///
/// The project is a folder of the workspace; record and journal lie in a folder of the same name in the area
/// of shared projects, so that a project holds nothing but its own files.
struct ProjectPlace
{
    QString folder;  ///< of the project; need not exist
    QString records; ///< folder of record and journal; need not exist

    QString recordFile() const { return records + QStringLiteral("/record.json"); }
    QString journalFile() const { return records + QStringLiteral("/journal.json"); }

    /// The place of `project`, a plain folder name; nothing, with a line in the log, for any other name.
    static std::optional<ProjectPlace> of(const QString& project, const QString& workFolder,
                                          const QString& recordFolder);
};

/// The JSON object in a file of the records; empty when there is none.
QJsonObject readJsonFile(const QString& path);

/// Writes a file of the records, whole or not at all, and its folder. False on failure, logged.
bool writeJsonFile(const QString& path, const QJsonObject& json);

/// Reads the record of a project, if there is a sound one for `source` and the project still has its map.
std::optional<SyncRecord> readRecord(const ProjectPlace& place, const QString& source);

/// Writes a project's record, whole or not at all. False on failure, logged.
bool writeRecord(const ProjectPlace& place, const SyncRecord& record);
