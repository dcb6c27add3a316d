// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/storage/gcloud.h"
#include "cloud/sync/projectswap.h"
#include "cloud/sync/syncedproject.h"
#include "cloud/sync/syncjob.h"
#include "cloud/sync/syncplan.h"

/// Brings a project to the state that it has in the cloud: all at once, or not at all.
///
/// A file that was uploaded after the directory map belongs to a push that goes on or was broken off: the
/// fault is Unfinished then. What cannot be told is whether a file that is older than the map is the one that
/// the map means, for it has no hashes: a push that was broken off before another one's map came.
///
/// It plans by the directory maps, fetches what differs beside the old files, tries again what fails, and
/// changes the project only when all is there, with the player's project off the screen. A file that the
/// cloud does not have any more stays as it is while the others change; the pull is not complete then.
class Pull
{
public:
    Pull(GCloud& cloud, SyncJob& job, const SyncedProject& project);

    /// Whether `revision` says something new: it is not empty, nor the one pulled last and whole.
    bool isNews(const QString& revision) const;
    /// Pulls. `revision` goes into the record; empty: the one there stays. After a failure the project is as
    /// it was, unless filesChanged().
    SyncResult run(const QString& revision);
    /// Whether files of the project have changed.
    bool filesChanged() const { return m_filesChanged; }

private:
    SyncResult carryOut(const Dirmap& cloudMap, const QString& revision);
    void makePlan(const Dirmap& cloudMap);
    void tell() const;
    bool wouldEmpty() const;
    bool wouldBreak() const;
    void leaveOut(const QSet<QString>& paths);
    QSet<QString> obstructed() const;
    StorageFault fetch();
    StorageFault fetchOnce();
    StorageFault faultOf(const FileTransfer& file) const;
    bool applyPlan(const QString& revision);

    GCloud& m_cloud;
    SyncJob& m_job;
    const SyncedProject m_project;
    ProjectSwap m_swap;
    const std::optional<SyncRecord> m_record;
    const Dirmap m_local;
    PullPlan m_plan;
    qint64 m_mapGeneration = 0;
    bool m_fetchesMissing = false; // of this map, files that were not there before
    QSet<QString> m_missing;       // in the cloud
    bool m_filesChanged = false;
};
