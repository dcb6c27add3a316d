// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/catalog.h"

#include <QMap>
#include <QSet>

namespace {

QSet<QString> namesIn(const Listing& listing)
{
    QSet<QString> names;
    for (const ListedObject& object : listing.objects)
        names.insert(object.name);
    return names;
}

void add(CatalogEntry& entry, const ListedObject& object)
{
    entry.bytes += object.bytes;
    entry.updated =
        qMax(entry.updated, object.updated); // in this form of time, the later is the greater text
}

QString firstOf(const QStringList& candidates, const QSet<QString>& names)
{
    for (const QString& candidate : candidates) {
        if (names.contains(candidate))
            return candidate;
    }
    return {};
}

} // namespace

QVector<CatalogEntry> projectsIn(const Listing& listing, const QString& prefix)
{
    const QSet<QString> names = namesIn(listing);
    QMap<QString, CatalogEntry> projects;
    for (const ListedObject& object : listing.objects) {
        const int end = object.name.indexOf(QLatin1Char('/'), prefix.size());
        const QString folder = object.name.left(end);
        if (end <= prefix.size() || !names.contains(folder + QStringLiteral("/dirmap")))
            continue;
        CatalogEntry& entry = projects[folder];
        entry.name = folder.mid(prefix.size());
        entry.object = folder;
        entry.picture = firstOf({folder + QStringLiteral(".jpg")}, names);
        add(entry, object);
    }
    return projects.values().toVector();
}

QVector<CatalogEntry> archivesIn(const Listing& listing, const QString& prefix)
{
    const QSet<QString> names = namesIn(listing);
    QMap<QString, CatalogEntry> archives;
    for (const ListedObject& object : listing.objects) {
        const QString file = object.name.mid(prefix.size());
        const int end = file.size() - QStringLiteral(".zip").size();
        if (end <= 0 || file.contains(QLatin1Char('/')) ||
            !file.endsWith(QLatin1String(".zip"), Qt::CaseInsensitive))
            continue;
        const QString base = prefix + file.left(end);
        CatalogEntry& entry = archives[file];
        entry.name = file.left(end);
        entry.object = object.name;
        entry.picture = firstOf({base + QStringLiteral(".jpg"), base + QStringLiteral(".png")}, names);
        add(entry, object);
    }
    return archives.values().toVector();
}
