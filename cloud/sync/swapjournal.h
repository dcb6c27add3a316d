// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QStringList>

/// A file that is on its way into a project.
struct SwapFile
{
    qint32 revision = 0;
    QString temporary;    ///< where it waits: a path in the project or, with "/" first, among the records
    bool fetched = false; ///< whether it is whole and there
};

/// What a ProjectSwap is about to do, as it stands on the disk meanwhile.
struct SwapJournal
{
    bool decided = false;           ///< it will be done; until then it can be left
    QHash<QString, SwapFile> files; ///< by their paths in the project
    QStringList removals;           ///< paths of files that go, once it is decided
    QString dirmap;                 ///< text of the project's map afterwards, likewise
    QJsonObject record;             ///< the project's record afterwards, likewise

    QJsonObject toJson() const;
    /// What is not readable in `json` is left out.
    static SwapJournal fromJson(const QJsonObject& json);
};
