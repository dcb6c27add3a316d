// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/staging.h"

#include "api/logging.h"

#include <QDir>

namespace {

bool putBack(const QDir& displaced, const QString& name, const QString& place)
{
    if (QFileInfo::exists(place))
        return true;
    const bool isBack = displaced.exists(name) && QDir().rename(displaced.filePath(name), place);
    if (isBack)
        qCInfo(lcApi) << "Put back the project" << name;
    else
        qCWarning(lcApi) << "Cannot put back the project" << displaced.filePath(name);
    return isBack;
}

} // namespace

QString staging::freshFolder(const StagingFolder& import)
{
    return import.path() + QStringLiteral("/fresh");
}

QString staging::displacedFolder(const StagingFolder& import)
{
    return import.path() + QStringLiteral("/displaced");
}

QString staging::unfinishedLink(const StagingFolder& exporting)
{
    return exporting.path() + QStringLiteral("/unfinished");
}

bool staging::putBackDisplaced(const StagingFolder& import, const QString& work)
{
    bool areBack = true;
    const QDir displaced(displacedFolder(import));
    for (const QString& name : displaced.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot))
        areBack = putBack(displaced, name, work + QLatin1Char('/') + name) && areBack;
    return areBack;
}

void staging::tidyUp(StagingFolder& import, const QString& work, const JobControl& control)
{
    if (putBackDisplaced(import, work))
        import.remove(control);
    else
        import.leave();
}
