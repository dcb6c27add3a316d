// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/projecttree.h"

#include "base/safepath.h"
#include "cloud/logging.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace {

// The map itself, the editor's frame and safety copy, the document that the editor plays, files on their way.
bool isScratch(const QString& path)
{
    static const QSet<QString> names{"dirmap", "editor05.qml", "main.savestatus", "main2.qml"};
    return names.contains(path) || path.endsWith(QLatin1String("_temp")) ||
           path.endsWith(QLatin1String(".part"));
}

bool isHidden(const QString& path)
{
    return path.startsWith(QLatin1Char('.')) || path.contains(QLatin1String("/."));
}

} // namespace

ProjectTree lookAtProject(const QString& folder, const Dirmap& map)
{
    ProjectTree tree;
    for (int i = 0; i < map.paths.size(); ++i) {
        if (QFileInfo(folder + QLatin1Char('/') + map.paths[i]).isFile())
            tree.listed.append(map.paths[i], map.revisions[i]);
    }
    const QSet<QString> listed(map.paths.cbegin(), map.paths.cend());
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = QDir(folder).relativeFilePath(files.next());
        if (listed.contains(path) || isScratch(path) || isHidden(path))
            continue;
        if (pathFault(path).isEmpty())
            tree.unlisted.append(path);
        else
            qCWarning(lcCloud) << "Not published, for its name:" << path;
    }
    tree.unlisted.sort();
    return tree;
}
