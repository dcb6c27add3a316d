// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/pull.h"

#include "cloud/limits.h"
#include "cloud/logging.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

std::optional<Dirmap> syncedOf(const std::optional<SyncRecord>& record)
{
    return record ? std::optional(record->synced) : std::nullopt;
}

QSet<QString> toSet(const QStringList& list)
{
    return {list.cbegin(), list.cend()};
}

} // namespace

Pull::Pull(GCloud& cloud, SyncJob& job, const SyncedProject& project)
    : m_cloud(cloud)
    , m_job(job)
    , m_project(project)
    , m_swap(project.place)
    , m_record(readRecord(project.place, project.source()))
    , m_local(readDirmap(project.place.folder).value_or(Dirmap()))
{
}

bool Pull::isNews(const QString& revision) const
{
    const bool isPulled = m_record && m_record->revision == revision && m_record->complete;
    return !revision.isEmpty() && !isPulled;
}

SyncResult Pull::run(const QString& revision)
{
    StorageResult answer = StorageFault::None;
    const StorageFault fault = persist(m_job, [&] {
        answer = m_cloud.downloadData(m_project.object(QStringLiteral("dirmap")), limits::dirmapBytes);
        return answer.fault;
    });
    m_mapGeneration = answer.generation;
    m_fetchesMissing =
        m_record && !m_record->complete && (revision.isEmpty() || m_record->revision == revision);
    QDir().mkpath(m_project.place.folder);
    if (fault != StorageFault::None && fault != StorageFault::Missing)
        return failure(fault);
    const std::optional<Dirmap> cloudMap = answer ? parseDirmap(answer.bytes) : Dirmap();
    if (!cloudMap)
        return failure(StorageFault::Unexpected);
    if (!cloudMap->isEmpty())
        return carryOut(*cloudMap, revision);
    SyncResult nothing;
    nothing.isThere = false;
    return nothing;
}

SyncResult Pull::carryOut(const Dirmap& cloudMap, const QString& revision)
{
    makePlan(cloudMap);
    tell();
    if (m_plan.refused.size() == cloudMap.paths.size() || wouldEmpty())
        return failure(StorageFault::Unexpected);
    leaveOut(obstructed());
    const StorageFault fault = fetch();
    if (fault != StorageFault::None)
        return failure(fault);
    if (wouldBreak()) {
        m_swap.leave();
        return failure(StorageFault::Unexpected);
    }
    leaveOut(m_missing);
    if (!applyPlan(revision))
        return failure(StorageFault::LocalFile);
    return {StorageFault::None, m_missing.isEmpty(), true, m_plan.kept};
}

// Most pulls find every map as it was, and need no look at each path then but whether it is there.
void Pull::makePlan(const Dirmap& cloudMap)
{
    const auto exists = [this](const QString& path) {
        const QFileInfo info(m_project.place.folder + QLatin1Char('/') + path);
        return info.isSymLink() || (info.exists() && !info.isDir());
    };
    const bool isUnchanged = m_record && cloudMap == m_local && m_record->synced == m_local &&
                             std::all_of(m_local.paths.cbegin(), m_local.paths.cend(), exists);
    if (!isUnchanged) {
        m_plan = planPull(m_local, syncedOf(m_record), cloudMap, exists);
        return;
    }
    m_plan.local = m_local;
    m_plan.synced = m_local;
}

void Pull::tell() const
{
    qCInfo(lcCloud) << "Pull of" << m_project.cloudPath << "- files to fetch:" << m_plan.fetch.paths.size()
                    << "to remove:" << m_plan.remove.size();
    qCDebug(lcCloud).noquote() << toText(m_plan);
    if (!m_plan.kept.isEmpty())
        qCWarning(lcCloud) << "Edited here and not published, so not pulled:" << someOf(m_plan.kept);
    if (!m_plan.refused.isEmpty())
        qCWarning(lcCloud) << "Not possible as files of a project:" << someOf(m_plan.refused);
}

bool Pull::wouldEmpty() const
{
    const bool empties = losesDocument(m_local, m_plan.local);
    if (empties)
        qCWarning(lcCloud) << "Not pulled, its map lists no main.qml:" << m_project.cloudPath;
    return empties;
}

// A document that plays is not given up for a text that none is.
bool Pull::wouldBreak() const
{
    const QString document = QStringLiteral("main.qml");
    const bool breaks = m_plan.fetch.paths.contains(document) && !m_missing.contains(document) &&
                        m_job.isDocument(m_project.place.folder + QLatin1Char('/') + document) &&
                        !m_job.isDocument(m_swap.temporaryPath(document));
    if (breaks)
        qCWarning(lcCloud) << "Not pulled, its main.qml is no document:" << m_project.cloudPath;
    return breaks;
}

void Pull::leaveOut(const QSet<QString>& paths)
{
    if (paths.isEmpty())
        return;
    qCWarning(lcCloud) << "Left as they are, for the cloud has them no more or there is no place:"
                       << someOf(paths.values());
    m_plan = withoutFiles(m_plan, paths, m_local, syncedOf(m_record));
}

QSet<QString> Pull::obstructed() const
{
    const QSet<QString> removed = toSet(m_plan.remove);
    QSet<QString> paths;
    for (const QString& path : m_plan.fetch.paths) {
        if (!m_swap.canTakePlace(path, removed))
            paths.insert(path);
    }
    return paths;
}

StorageFault Pull::fetch()
{
    if (m_plan.fetch.isEmpty()) {
        m_swap.rollBack();
        return StorageFault::None;
    }
    if (!m_swap.prepare(m_plan.fetch, toSet(m_local.paths) + toSet(m_plan.local.paths)))
        return StorageFault::LocalFile;
    const StorageFault fault = persist(m_job, [this] { return fetchOnce(); });
    if (fault == StorageFault::Unfinished)
        qCWarning(lcCloud) << "Not pulled, there are files newer than its map:" << m_project.cloudPath;
    if (fault == StorageFault::Cancelled || fault == StorageFault::LocalFile)
        m_swap.rollBack();
    else if (fault != StorageFault::None)
        m_swap.leave();
    return fault;
}

StorageFault Pull::fetchOnce()
{
    QStringList paths;
    QVector<FileTransfer> files;
    for (const QString& path : qAsConst(m_plan.fetch.paths)) {
        if (m_swap.isFetched(path) || m_missing.contains(path))
            continue;
        paths.append(path);
        files.append({m_cloud.urlToDownload(m_project.object(path)), m_swap.temporaryPath(path)});
    }
    m_cloud.carry(Transfer::Method::Get, files, [this, &paths](int index, qint64 bytes, qint64 total) {
        const int files = m_plan.fetch.paths.size();
        m_job.report({false, paths[index], files - paths.size() + index + 1, files, bytes, total});
    });
    StorageFault worst = m_job.isCancelled() ? StorageFault::Cancelled : StorageFault::None;
    for (int i = 0; i < files.size(); ++i) {
        const StorageFault fault = faultOf(files[i]);
        if (fault == StorageFault::None)
            m_swap.setFetched(paths[i]);
        else if (fault == StorageFault::Missing)
            m_missing.insert(paths[i]);
        else if (worst != StorageFault::Cancelled && worst != StorageFault::LocalFile)
            worst = fault;
    }
    return worst;
}

// Generations are times.
StorageFault Pull::faultOf(const FileTransfer& file) const
{
    const bool isNewer = m_mapGeneration != 0 && file.generation > m_mapGeneration;
    return isNewer && file.fault == StorageFault::None && !m_fetchesMissing ? StorageFault::Unfinished
                                                                            : file.fault;
}

bool Pull::applyPlan(const QString& revision)
{
    const SyncRecord after{m_project.source(), revision.isEmpty() && m_record ? m_record->revision : revision,
                           m_missing.isEmpty(), m_plan.synced};
    if (!m_plan.changesFiles())
        return (m_plan.local == m_local || writeDirmap(m_project.place.folder, m_plan.local)) &&
               (after == m_record || writeRecord(m_project.place, after));
    if (!m_swap.commit(m_plan.remove, m_plan.local, after)) {
        m_swap.rollBack();
        return false;
    }
    m_filesChanged = m_job.stopPlayer();
    return m_filesChanged && m_swap.carryOut();
}
