// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/projectstate.h"

#include "base/atomicfile.h"
#include "base/safepath.h"
#include "cloud/logging.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

std::optional<ProjectPlace> ProjectPlace::of(const QString& project, const QString& workFolder,
                                             const QString& recordFolder)
{
    if (pathFault(project).isEmpty() && !project.contains(QLatin1Char('/')))
        return ProjectPlace{workFolder + QLatin1Char('/') + project,
                            recordFolder + QLatin1Char('/') + project};
    qCWarning(lcCloud) << "Not the name of a project:" << shortened(project);
    return std::nullopt;
}

QJsonObject readJsonFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

bool writeJsonFile(const QString& path, const QJsonObject& json)
{
    QDir().mkpath(QFileInfo(path).path());
    return writeFileAtomically(path, QJsonDocument(json).toJson(QJsonDocument::Compact));
}

std::optional<SyncRecord> readRecord(const ProjectPlace& place, const QString& source)
{
    const std::optional<SyncRecord> record = syncRecordFromJson(readJsonFile(place.recordFile()));
    const bool isGood = record && record->source == source && QFile::exists(dirmapPath(place.folder));
    return isGood ? record : std::nullopt;
}

bool writeRecord(const ProjectPlace& place, const SyncRecord& record)
{
    return writeJsonFile(place.recordFile(), toJson(record));
}
