// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/exports.h"

#include "api/archivepack.h"
#include "api/capi.h"

Exports::Exports()
{
    connect(&m_job, &BackgroundJob::progressChanged, this, &Exports::progressChanged);
    connect(&m_job, &BackgroundJob::finished, this, [this](const Outcome& outcome) {
        emit runningChanged();
        emit finished(outcome.reason(), outcome.isCancelled());
    });
}

void Exports::start(const QString& zipFile, const QString& project)
{
    CAPI* capi = CAPI::of(this);
    if (!capi || isRunning())
        return;
    const QString target = capi->resolvedPath(zipFile);
    const QString folder = capi->getWorkDirectory() + QLatin1Char('/') + project;
    m_job.start([target, folder](JobControl& control) { return packArchive(target, folder, control); });
    emit runningChanged();
}
