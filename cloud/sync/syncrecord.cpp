// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/syncrecord.h"

QJsonObject toJson(const SyncRecord& record)
{
    return {{"source", record.source},
            {"revision", record.revision},
            {"complete", record.complete},
            {"synced", QString::fromUtf8(dirmapText(record.synced).value_or(QByteArray()))}};
}

std::optional<SyncRecord> syncRecordFromJson(const QJsonObject& json)
{
    const std::optional<Dirmap> synced = parseDirmap(json.value("synced").toString().toUtf8());
    if (!json.value("source").isString() || !json.value("revision").isString() ||
        !json.value("complete").isBool() || !json.value("synced").isString() || !synced)
        return std::nullopt;
    return SyncRecord{json.value("source").toString(), json.value("revision").toString(),
                      json.value("complete").toBool(), *synced};
}
