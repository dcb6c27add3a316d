// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/pushjournal.h"

#include <QFile>

namespace {

QString fileOf(const ProjectPlace& place)
{
    return place.records + QStringLiteral("/push.json");
}

QString textOf(const Dirmap& map)
{
    return QString::fromUtf8(dirmapText(map).value_or(QByteArray()));
}

} // namespace

std::optional<PushJournal> readPushJournal(const SyncedProject& project)
{
    const QJsonObject json = readJsonFile(fileOf(project.place));
    const auto mapOf = [&json](const char* member) {
        return parseDirmap(json.value(member).toString().toUtf8());
    };
    const std::optional<Dirmap> local = mapOf("local");
    const std::optional<Dirmap> cloud = mapOf("cloud");
    const std::optional<Dirmap> synced = mapOf("synced");
    if (json.value("source").toString() != project.source() || !local || !cloud || !synced)
        return std::nullopt;
    return PushJournal{project.source(), *local, *cloud, *synced};
}

bool writePushJournal(const ProjectPlace& place, const PushJournal& journal)
{
    return writeJsonFile(fileOf(place), {{"source", journal.source},
                                         {"local", textOf(journal.local)},
                                         {"cloud", textOf(journal.cloud)},
                                         {"synced", textOf(journal.synced)}});
}

void removePushJournal(const ProjectPlace& place)
{
    QFile::remove(fileOf(place));
}

bool isPushBegun(const SyncedProject& project)
{
    const std::optional<PushJournal> journal = readPushJournal(project);
    return journal && QFile::exists(project.place.folder) &&
           readDirmap(project.place.folder).value_or(Dirmap()) == journal->local;
}
