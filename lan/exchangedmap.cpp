// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/exchangedmap.h"

#include <QHash>

namespace {

QHash<QString, qint32> revisionsOf(const Dirmap& map)
{
    QHash<QString, qint32> revisions;
    // Of a path that is there twice the first line counts.
    for (int i = map.paths.size() - 1; i >= 0; --i)
        revisions.insert(map.paths[i], map.revisions[i]);
    return revisions;
}

} // namespace

Dirmap withLinesOf(const Dirmap& old, const Dirmap& map, const QSet<QString>& kept)
{
    const QHash<QString, qint32> revisions = revisionsOf(old);
    Dirmap result;
    for (int i = 0; i < map.paths.size(); ++i) {
        const QString& path = map.paths[i];
        if (!kept.contains(path))
            result.append(path, map.revisions[i]);
        else if (revisions.contains(path))
            result.append(path, revisions[path]);
    }
    return result;
}

Dirmap withChanges(const Dirmap& map, const Dirmap& changes)
{
    QHash<QString, qint32> revisions = revisionsOf(changes);
    Dirmap result = map;
    for (int i = 0; i < map.paths.size(); ++i)
        result.revisions[i] = revisions.value(map.paths[i], map.revisions[i]);
    for (const QString& path : map.paths)
        revisions.remove(path);
    for (const QString& path : changes.paths) {
        if (revisions.contains(path))
            result.append(path, revisions.take(path));
    }
    return result;
}
