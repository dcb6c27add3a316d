// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/swapjournal.h"

#include <QJsonArray>

QJsonObject SwapJournal::toJson() const
{
    QJsonArray rows;
    for (auto it = files.begin(); it != files.end(); ++it)
        rows.append(QJsonArray{it.key(), it->revision, it->temporary, it->fetched});
    return {{"decided", decided},
            {"files", rows},
            {"removals", QJsonArray::fromStringList(removals)},
            {"dirmap", dirmap},
            {"record", record}};
}

SwapJournal SwapJournal::fromJson(const QJsonObject& json)
{
    SwapJournal journal;
    journal.decided = json.value("decided").toBool();
    const QJsonArray rows = json.value("files").toArray();
    for (const QJsonValue& row : rows)
        journal.files.insert(row[0].toString(), {row[1].toInt(), row[2].toString(), row[3].toBool()});
    const QJsonArray paths = json.value("removals").toArray();
    for (const QJsonValue& path : paths)
        journal.removals.append(path.toString());
    journal.dirmap = json.value("dirmap").toString();
    journal.record = json.value("record").toObject();
    return journal;
}
