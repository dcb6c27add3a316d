// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/archivepack.h"
#include "api/archivereader.h"

QString CAPI::extractToWorkDirectory(QString zipFile)
{
    const QString archive = m_folder.resolved(zipFile);
    QString name = archiveProjectName(archive);
    if (name.isEmpty())
        return name;
    m_workspace.addToCache(name);
    m_imports.start(archive);
    return name;
}

void CAPI::generateZipFile(QString zipFile, QString folder)
{
    setGenerateZipFinished(false);
    JobControl untilDone;
    const Outcome packed = packArchive(m_folder.resolved(zipFile),
                                       m_workspace.workDirectory() + QLatin1Char('/') + folder, untilDone);
    Q_UNUSED(packed) // a failure is in the log
    setGenerateZipFinished(true);
}

void CAPI::setGenerateZipFinished(bool finished)
{
    if (m_generateZipFinished == finished && !finished)
        return;
    m_generateZipFinished = finished;
    emit onGenerateZipFinished(finished);
}
