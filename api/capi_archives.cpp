// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/archive.h"

#include <QtConcurrent>

QString CAPI::extractToWorkDirectory(QString zipFile)
{
    const QString archive = m_folder.resolved(zipFile);
    QString name = archiveProjectName(archive);
    if (name.isEmpty())
        return name;
    m_workspace.addToCache(name);
    QtConcurrent::run([this, archive, work = m_workspace.workDirectory()] {
        setExtractFinished(false);
        extractArchive(archive, work);
        setExtractFinished(true);
    });
    return name;
}

void CAPI::generateZipFile(QString zipFile, QString folder)
{
    setGenerateZipFinished(false);
    packArchive(m_folder.resolved(zipFile), m_workspace.workDirectory() + QLatin1Char('/') + folder);
    setGenerateZipFinished(true);
}

void CAPI::setExtractFinished(bool finished)
{
    if (m_extractFinished.exchange(finished) != finished || finished)
        emit onExtractFinishedChanged(finished);
}

void CAPI::setGenerateZipFinished(bool finished)
{
    if (m_generateZipFinished == finished && !finished)
        return;
    m_generateZipFinished = finished;
    emit onGenerateZipFinished(finished);
}
