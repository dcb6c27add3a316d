// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/storage/gcloud.h"
#include "cloud/sync/pushjournal.h"
#include "cloud/sync/syncjob.h"
#include "cloud/sync/syncplan.h"

/// Brings what was changed here in a project to the cloud: the files first, the directory map last, so that
/// nobody finds a map whose files are not there yet. When somebody else's map has come in between it plans
/// again. The pushes of two editors at the same time thus follow one another. From the first change of the
/// cloud on the project has a PushJournal, which stays.
class Push
{
public:
    Push(GCloud& cloud, SyncJob& job, const SyncedProject& project);

    /// Pushes. A project without files is left alone.
    SyncResult run();

private:
    StorageFault attempt();
    StorageFault readCloudMap();
    void knowOwnMap();
    bool makePlan();
    bool begin();
    StorageFault upload();
    StorageFault uploadOnce(QStringList& paths);
    StorageFault uploadMap();
    StorageFault remember();
    bool writeLocalMap();

    GCloud& m_cloud;
    SyncJob& m_job;
    const SyncedProject m_project;
    const std::optional<SyncRecord> m_record;
    const Dirmap m_local;
    std::optional<PushJournal> m_journal;
    std::optional<Dirmap> m_synced; // by the record, or by the journal whose map the cloud has
    Dirmap m_cloudMap;
    qint64 m_generation = 0; // of the cloud's map; 0 when it has none
    PushPlan m_plan;
    QSet<QString> m_uploaded; // paths that this push has brought already, under whatever plan
    bool m_changesCloud = false;
};
