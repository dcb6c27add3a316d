// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/syncplan.h"

#include "base/safepath.h"

#include <QHash>

#include <algorithm>

namespace {

// Revisions by path; no value for a path that a map does not have.
class Revisions
{
public:
    explicit Revisions(const Dirmap& map)
    {
        m_revisions.reserve(map.paths.size());
        for (int i = map.paths.size() - 1; i >= 0; --i) // of several lines the first counts
            m_revisions.insert(map.paths[i], map.revisions[i]);
    }

    std::optional<qint32> operator[](const QString& path) const
    {
        const auto found = m_revisions.constFind(path);
        return found == m_revisions.constEnd() ? std::nullopt : std::optional(*found);
    }
    bool contains(const QString& path) const { return m_revisions.contains(path); }

private:
    QHash<QString, qint32> m_revisions;
};

// A map that is built line by line, where a path without revision gets no line.
void append(Dirmap& map, const QString& path, std::optional<qint32> revision)
{
    if (revision)
        map.append(path, *revision);
}

// Any other revision will do where there is no higher or lower one.
qint32 next(qint32 revision)
{
    return qint32(quint32(revision) + 1);
}

qint32 previous(qint32 revision)
{
    return qint32(quint32(revision) - 1);
}

bool isBelowAFile(const QString& path, const Revisions& files)
{
    for (int slash = path.indexOf(QLatin1Char('/')); slash >= 0;
         slash = path.indexOf(QLatin1Char('/'), slash + 1)) {
        if (files.contains(path.left(slash)))
            return true;
    }
    return false;
}

bool canBeAFile(const QString& path, const Revisions& files)
{
    return pathFault(path).isEmpty() && path != QLatin1String("dirmap") && !isBelowAFile(path, files);
}

// The lines that files of a project can have, one a path.
Dirmap usable(const Dirmap& map, QStringList* refused = nullptr)
{
    Dirmap result;
    QSet<QString> seen;
    const Revisions files(map);
    for (int i = 0; i < map.paths.size(); ++i) {
        const QString& path = map.paths[i];
        if (seen.contains(path))
            continue;
        seen.insert(path);
        if (canBeAFile(path, files))
            result.append(path, map.revisions[i]);
        else if (refused)
            refused->append(path);
    }
    return result;
}

// The paths that have another revision, or none, on one of the sides.
QSet<QString> changedPaths(const Dirmap& from, const Dirmap& to)
{
    const DirmapChanges changes = changesBetween(from, to);
    QSet<QString> paths(changes.changed.paths.cbegin(), changes.changed.paths.cend());
    paths.unite(QSet<QString>(changes.gone.cbegin(), changes.gone.cend()));
    return paths;
}

Dirmap existingLines(const Dirmap& map, const std::function<bool(const QString&)>& exists)
{
    Dirmap result;
    for (int i = 0; i < map.paths.size(); ++i) {
        if (exists(map.paths[i]))
            result.append(map.paths[i], map.revisions[i]);
    }
    return result;
}

class PullPlanner
{
public:
    PullPlanner(const Dirmap& local, const std::optional<Dirmap>& synced, const Dirmap& cloud,
                const std::function<bool(const QString&)>& exists)
        : m_localMap(usable(local))
        , m_hasRecord(synced)
        , m_local(m_localMap)
        , m_synced(synced.value_or(Dirmap()))
        , m_cloudMap(usable(cloud, &m_plan.refused))
        , m_exists(exists)
    {
        if (synced)
            m_editedHere = changedPaths(*synced, m_localMap);
    }

    PullPlan plan()
    {
        const DirmapChanges changes = changesBetween(existingLines(m_localMap, m_exists), m_cloudMap);
        const QSet<QString> changed(changes.changed.paths.cbegin(), changes.changed.paths.cend());
        for (int i = 0; i < m_cloudMap.paths.size(); ++i) {
            const QString& path = m_cloudMap.paths[i];
            planFileOfCloud(path, m_cloudMap.revisions[i], changed.contains(path));
        }
        for (const QString& path : changes.gone)
            planFileGoneFromCloud(path);
        return m_plan;
    }

private:
    // Also a file that no map lists, once there is a record.
    bool isEdited(const QString& path) const
    {
        return (m_editedHere.contains(path) || (m_hasRecord && !m_local.contains(path))) && m_exists(path);
    }

    bool isDeleted(const QString& path, qint32 revision) const
    {
        return m_editedHere.contains(path) && !m_local.contains(path) && m_synced[path] == revision;
    }

    void keepLines(const QString& path)
    {
        append(m_plan.local, path, m_local[path]);
        append(m_plan.synced, path, m_synced[path]);
    }

    void planFileOfCloud(const QString& path, qint32 revision, bool isChanged)
    {
        if (isEdited(path)) {
            if (m_synced[path] != revision)
                m_plan.kept.append(path);
            keepLines(path);
        } else if (isDeleted(path, revision)) {
            keepLines(path);
        } else {
            if (isChanged)
                m_plan.fetch.append(path, revision);
            m_plan.local.append(path, revision);
            m_plan.synced.append(path, revision);
        }
    }

    void planFileGoneFromCloud(const QString& path)
    {
        if (isEdited(path))
            keepLines(path);
        else
            m_plan.remove.append(path);
    }

    PullPlan m_plan;
    const Dirmap m_localMap;
    const bool m_hasRecord;
    const Revisions m_local;
    const Revisions m_synced;
    const Dirmap m_cloudMap;
    const std::function<bool(const QString&)>& m_exists;
    QSet<QString> m_editedHere; // since the last sync; empty without a record
};

class PushPlanner
{
public:
    PushPlanner(const Dirmap& local, const QStringList& unlisted, const std::optional<Dirmap>& synced,
                const Dirmap& cloud, const QSet<QString>& theirs)
        : m_synced(synced.value_or(Dirmap()))
        , m_cloudMap(usable(cloud))
        , m_cloud(m_cloudMap)
        , m_localMap(withUnlisted(usable(local), unlisted))
        , m_local(m_localMap)
        , m_theirs(theirs)
    {
        findChanges(synced);
    }

    PushPlan plan()
    {
        for (const QString& path : qAsConst(m_localMap.paths))
            planFile(path);
        for (const QString& path : qAsConst(m_cloudMap.paths)) {
            if (!m_local.contains(path))
                planFile(path);
        }
        return m_plan;
    }

private:
    Dirmap withUnlisted(Dirmap map, const QStringList& unlisted) const
    {
        for (const QString& path : unlisted)
            map.append(path, next(std::max(m_synced[path].value_or(0), m_cloud[path].value_or(0))));
        return map;
    }

    // Without a record nobody knows on which side a file that differs has changed: it counts for both. One
    // that only the cloud has is the cloud's.
    void findChanges(const std::optional<Dirmap>& synced)
    {
        if (synced) {
            m_changedHere = changedPaths(*synced, m_localMap);
            m_changedThere = changedPaths(*synced, m_cloudMap);
            return;
        }
        const QStringList differing = changesBetween(m_cloudMap, m_localMap).changed.paths;
        m_changedHere = QSet<QString>(differing.cbegin(), differing.cend());
        const QSet<QString> inCloud(m_cloudMap.paths.cbegin(), m_cloudMap.paths.cend());
        m_changedThere = m_changedHere & inCloud;
    }

    void planFile(const QString& path)
    {
        const bool changedThere = m_changedThere.contains(path);
        if (!m_changedHere.contains(path))
            leave(path);
        else if (!m_local.contains(path))
            publishDeletion(path, changedThere);
        else if (changedThere)
            settleConflict(path);
        else
            publish(path, m_local[path] > m_cloud[path] ? *m_local[path] : next(highest(path)));
    }

    void leave(const QString& path)
    {
        append(m_plan.cloud, path, m_cloud[path]);
        append(m_plan.local, path, m_local[path]);
        append(m_plan.synced, path, m_local[path] == m_cloud[path] ? m_cloud[path] : m_synced[path]);
    }

    void publishDeletion(const QString& path, bool changedThere)
    {
        if (!changedThere)
            return;
        append(m_plan.cloud, path, m_cloud[path]);
        append(m_plan.synced, path, m_synced[path]);
    }

    void publish(const QString& path, qint32 revision)
    {
        for (Dirmap* map : {&m_plan.upload, &m_plan.cloud, &m_plan.local, &m_plan.synced})
            map->append(path, revision);
    }

    void settleConflict(const QString& path)
    {
        m_plan.conflicts.append(path);
        if (!m_theirs.contains(path)) {
            publish(path, next(highest(path)));
            return;
        }
        // As if it had not been edited here: the next pull gets or deletes it.
        const std::optional<qint32> cloud = m_cloud[path];
        const std::optional<qint32> unedited = cloud ? std::optional(previous(*cloud)) : m_synced[path];
        append(m_plan.cloud, path, cloud);
        append(m_plan.local, path, unedited);
        append(m_plan.synced, path, unedited);
    }

    qint32 highest(const QString& path) const
    {
        return std::max({m_local[path].value_or(0), m_synced[path].value_or(0), m_cloud[path].value_or(0)});
    }

    PushPlan m_plan;
    const Revisions m_synced;
    const Dirmap m_cloudMap;
    const Revisions m_cloud;
    const Dirmap m_localMap;
    const Revisions m_local;
    const QSet<QString>& m_theirs;
    QSet<QString> m_changedHere; // since the last sync
    QSet<QString> m_changedThere;
};

QString lines(const QString& action, const Dirmap& map)
{
    QString text;
    for (int i = 0; i < map.paths.size(); ++i)
        text += QStringLiteral("%1 %2 %3\n").arg(action, map.paths[i], QString::number(map.revisions[i]));
    return text;
}

QString lines(const QString& action, const QStringList& paths)
{
    QString text;
    for (const QString& path : paths)
        text += QStringLiteral("%1 %2\n").arg(action, path);
    return text;
}

// The lines of `map` for `paths` as `old` has them.
Dirmap withLinesOf(const Dirmap& map, const QSet<QString>& paths, const Dirmap& old)
{
    Dirmap result;
    const Revisions before(old);
    for (int i = 0; i < map.paths.size(); ++i) {
        const bool restored = paths.contains(map.paths[i]);
        append(result, map.paths[i], restored ? before[map.paths[i]] : std::optional(map.revisions[i]));
    }
    return result;
}

} // namespace

PullPlan planPull(const Dirmap& local, const std::optional<Dirmap>& synced, const Dirmap& cloud,
                  const std::function<bool(const QString&)>& exists)
{
    return PullPlanner(local, synced, cloud, exists).plan();
}

PullPlan withoutFiles(PullPlan plan, const QSet<QString>& missing, const Dirmap& local,
                      const std::optional<Dirmap>& synced)
{
    plan.fetch = withLinesOf(plan.fetch, missing, {});
    plan.local = withLinesOf(plan.local, missing, local);
    plan.synced = withLinesOf(plan.synced, missing, synced.value_or(local));
    return plan;
}

PushPlan planPush(const Dirmap& local, const QStringList& unlisted, const std::optional<Dirmap>& synced,
                  const Dirmap& cloud, const QSet<QString>& theirs)
{
    return PushPlanner(local, unlisted, synced, cloud, theirs).plan();
}

QString toText(const PullPlan& plan)
{
    return lines("fetch", plan.fetch) + lines("remove", plan.remove) + lines("keep", plan.kept) +
           lines("refuse", plan.refused);
}

QString toText(const PushPlan& plan)
{
    return lines("upload", plan.upload) + lines("conflict", plan.conflicts);
}
