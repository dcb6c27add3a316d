// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/push.h"

#include "cloud/limits.h"
#include "cloud/logging.h"
#include "cloud/sync/projecttree.h"

Push::Push(GCloud& cloud, SyncJob& job, const SyncedProject& project)
    : m_cloud(cloud)
    , m_job(job)
    , m_project(project)
    , m_record(readRecord(project.place, project.source()))
    , m_local(readDirmap(project.place.folder).value_or(Dirmap()))
    , m_journal(readPushJournal(project))
{
    if (m_record)
        m_synced = m_record->synced;
}

SyncResult Push::run()
{
    StorageFault fault = StorageFault::Changed;
    for (int plans = 0; fault == StorageFault::Changed && plans < limits::pushPlans; ++plans)
        fault = attempt();
    SyncResult result = failure(fault);
    result.changedCloud = m_changesCloud;
    return result;
}

StorageFault Push::attempt()
{
    const Dirmap written = m_plan.cloud;
    StorageFault fault = readCloudMap();
    if (fault != StorageFault::None)
        return fault;
    // The answer to the upload was lost, or it was sent a second time by the network stack.
    if (!written.isEmpty() && m_cloudMap == written)
        return remember();
    knowOwnMap();
    if (!makePlan())
        return StorageFault::Cancelled;
    if (m_plan.local.isEmpty())
        return StorageFault::None;
    if (m_plan.cloud == m_cloudMap)
        return remember();
    if (!begin())
        return StorageFault::LocalFile;
    fault = upload();
    if (fault == StorageFault::None)
        fault = uploadMap();
    return fault == StorageFault::None ? remember() : fault;
}

// The program's last run has brought this map and ended before it could write that down.
void Push::knowOwnMap()
{
    if (m_journal && m_journal->cloud == m_cloudMap)
        m_synced = m_journal->synced;
}

bool Push::begin()
{
    m_changesCloud = true;
    m_journal = PushJournal{m_project.source(), m_local, m_plan.cloud, m_plan.synced};
    return writePushJournal(m_project.place, *m_journal);
}

StorageFault Push::readCloudMap()
{
    return persist(m_job, [this] {
        const StorageResult answer =
            m_cloud.downloadData(m_project.object(QStringLiteral("dirmap")), limits::dirmapBytes);
        const std::optional<Dirmap> map = parseDirmap(answer.bytes);
        m_cloudMap = answer && map ? *map : Dirmap();
        m_generation = answer.generation;
        if (answer && !map)
            return StorageFault::Unexpected;
        return answer.fault == StorageFault::Missing ? StorageFault::None : answer.fault;
    });
}

// False when the job is cancelled.
bool Push::makePlan()
{
    const ProjectTree tree = lookAtProject(m_project.place.folder, m_local);
    const auto planned = [&](const QSet<QString>& theirs) {
        return planPush(tree.listed, tree.unlisted, m_synced, m_cloudMap, theirs);
    };
    m_plan = planned({});
    // What stands in the cloud under a map of others may be what this push has brought: it wins in any case.
    QStringList questions;
    for (const QString& path : qAsConst(m_plan.conflicts)) {
        if (!m_uploaded.contains(path))
            questions.append(path);
    }
    if (!questions.isEmpty()) {
        const std::optional<QSet<QString>> theirs = m_job.settle(questions);
        if (!theirs)
            return false;
        m_plan = planned(*theirs & QSet<QString>(questions.cbegin(), questions.cend()));
    }
    qCInfo(lcCloud) << "Push to" << m_project.cloudPath << "- files to upload:" << m_plan.upload.paths.size();
    qCDebug(lcCloud).noquote() << toText(m_plan);
    return !m_job.isCancelled();
}

StorageFault Push::upload()
{
    QStringList left = m_plan.upload.paths;
    return persist(m_job, [this, &left] { return uploadOnce(left); });
}

// Leaves in `paths` those that failed.
StorageFault Push::uploadOnce(QStringList& paths)
{
    QVector<FileTransfer> files;
    for (const QString& path : qAsConst(paths))
        files.append(
            {m_cloud.urlToUpload(m_project.object(path)), m_project.place.folder + QLatin1Char('/') + path});
    m_cloud.carry(Transfer::Method::Post, files, [this, &paths](int index, qint64 bytes, qint64 total) {
        const int files = m_plan.upload.paths.size();
        m_job.report({true, paths[index], files - paths.size() + index + 1, files, bytes, total});
    });
    QStringList failed;
    StorageFault worst = m_job.isCancelled() ? StorageFault::Cancelled : StorageFault::None;
    for (int i = 0; i < files.size(); ++i) {
        if (files[i].fault == StorageFault::None) {
            m_uploaded.insert(paths[i]);
            continue;
        }
        failed.append(paths[i]);
        if (worst != StorageFault::Cancelled)
            worst = files[i].fault;
    }
    paths = failed;
    return worst;
}

StorageFault Push::uploadMap()
{
    const std::optional<QByteArray> text = dirmapText(m_plan.cloud);
    if (!text)
        return StorageFault::LocalFile;
    return persist(m_job, [&] {
        return m_cloud.uploadData(*text, m_project.object(QStringLiteral("dirmap")), false, m_generation)
            .fault;
    });
}

StorageFault Push::remember()
{
    const SyncRecord after{m_project.source(), m_record ? m_record->revision : QString(),
                           !m_record || m_record->complete, m_plan.synced};
    const bool written = writeLocalMap() && writeRecord(m_project.place, after);
    return written ? StorageFault::None : StorageFault::LocalFile;
}

// What was saved meanwhile has counted up in the map, and goes with the next push.
bool Push::writeLocalMap()
{
    const QString& folder = m_project.place.folder;
    if (m_plan.local == m_local || !(readDirmap(folder).value_or(Dirmap()) == m_local))
        return true;
    if (!writeDirmap(folder, m_plan.local))
        return false;
    if (m_journal)
        m_journal->local = m_plan.local;
    return !m_journal || writePushJournal(m_project.place, *m_journal);
}
