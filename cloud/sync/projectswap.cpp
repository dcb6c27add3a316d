// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/projectswap.h"

#include "base/confinedfolder.h"
#include "base/safepath.h"
#include "cloud/logging.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString folderOf(const QString& path)
{
    return path.left(qMax(0, path.lastIndexOf(QLatin1Char('/'))));
}

// A link is one, wherever it leads.
bool isPlainFile(const QFileInfo& info)
{
    return info.isSymLink() || (info.exists() && !info.isDir());
}

bool holdsOther(const QString& folder, const QString& project, const QSet<QString>& removed)
{
    QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (isPlainFile(files.fileInfo()) &&
            !removed.contains(QDir(project).relativeFilePath(files.filePath())))
            return true;
    }
    return false;
}

bool sync(const QString& folder)
{
    const Outcome synced = ConfinedFolder(folder).sync();
    if (!synced)
        qCWarning(lcCloud) << "Cannot sync" << folder << "-" << synced.reason();
    return bool(synced);
}

} // namespace

ProjectSwap::ProjectSwap(const ProjectPlace& place)
    : m_place(place)
    , m_journal(SwapJournal::fromJson(readJsonFile(place.journalFile())))
{
}

bool ProjectSwap::finish()
{
    return !m_journal.decided || carryOut();
}

// ------------------------------------------------------------------------------------------------- announced

// What stands in place of a folder that the path leads through; empty when nothing does.
QString ProjectSwap::fileAbove(const QString& path) const
{
    QString parent = folderOf(path);
    while (!parent.isEmpty() && !isPlainFile(QFileInfo(m_place.folder + QLatin1Char('/') + parent)))
        parent = folderOf(parent);
    return parent;
}

bool ProjectSwap::canTakePlace(const QString& path, const QSet<QString>& removed) const
{
    if (const QString above = fileAbove(path); !above.isEmpty())
        return removed.contains(above);
    const QFileInfo target(m_place.folder + QLatin1Char('/') + path);
    return !target.isDir() || target.isSymLink() || !holdsOther(target.filePath(), m_place.folder, removed);
}

bool ProjectSwap::prepare(const Dirmap& wanted, const QSet<QString>& taken)
{
    if (!QDir().mkpath(m_place.folder))
        return false;
    QHash<QString, SwapFile> files;
    for (int i = 0; i < wanted.paths.size(); ++i)
        files.insert(wanted.paths[i], announced(wanted.paths[i], wanted.revisions[i], taken));
    for (auto it = m_journal.files.cbegin(); it != m_journal.files.cend(); ++it) {
        if (!files.value(it.key()).fetched)
            removeTemporary(it->temporary);
    }
    m_journal = {false, files, {}, {}, {}};
    return writeJournal() && makeFolders();
}

// Announced before, so that they go again when it comes to nothing.
bool ProjectSwap::makeFolders() const
{
    return std::all_of(m_journal.files.cbegin(), m_journal.files.cend(), [this](const SwapFile& file) {
        return QDir().mkpath(folderOf(absolute(file.temporary)));
    });
}

SwapFile ProjectSwap::announced(const QString& path, qint32 revision, const QSet<QString>& taken) const
{
    const QString name = temporaryName(path, taken);
    const SwapFile before = m_journal.files.value(path);
    return {revision, name, before.fetched && before.revision == revision && before.temporary == name};
}

QString ProjectSwap::temporaryName(const QString& path, const QSet<QString>& taken) const
{
    QString name = path + QStringLiteral("_temp");
    if (!taken.contains(name) && pathFault(name).isEmpty() && fileAbove(path).isEmpty())
        return name;
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QLatin1Char('/') + QString::fromLatin1(hash) + QStringLiteral("_temp");
}

QString ProjectSwap::temporaryPath(const QString& path) const
{
    return absolute(m_journal.files.value(path).temporary);
}

QString ProjectSwap::absolute(const QString& temporary) const
{
    return temporary.startsWith(QLatin1Char('/')) ? m_place.records + temporary
                                                  : m_place.folder + QLatin1Char('/') + temporary;
}

void ProjectSwap::rollBack()
{
    for (const SwapFile& file : qAsConst(m_journal.files))
        removeTemporary(file.temporary);
    QFile::remove(m_place.journalFile());
    m_journal = {};
}

void ProjectSwap::removeTemporary(const QString& temporary) const
{
    if (temporary.startsWith(QLatin1Char('/')))
        QFile::remove(absolute(temporary));
    else
        removeFile(temporary);
}

// With the folders that are empty then.
void ProjectSwap::removeFile(const QString& path) const
{
    const std::optional<QString> inside = pathInside(m_place.folder, path, LastLink::Keep);
    if (!inside)
        return;
    if (isPlainFile(QFileInfo(*inside)) && !QFile::remove(*inside))
        qCWarning(lcCloud) << "Cannot delete" << *inside;
    for (QString parent = folderOf(path); !parent.isEmpty(); parent = folderOf(parent)) {
        if (!QDir(m_place.folder).rmdir(parent))
            return;
    }
}

// --------------------------------------------------------------------------------------------------- decided

bool ProjectSwap::commit(const QStringList& removed, const Dirmap& local, const SyncRecord& record)
{
    const std::optional<QByteArray> text = dirmapText(local);
    if (!text || !sync(m_place.folder))
        return false;
    m_journal.decided = true;
    m_journal.removals = removed;
    m_journal.dirmap = QString::fromUtf8(*text);
    m_journal.record = toJson(record);
    m_journal.decided = writeJournal();
    return m_journal.decided;
}

bool ProjectSwap::carryOut()
{
    for (const QString& path : qAsConst(m_journal.removals))
        removeFile(path);
    if (!moveFiles() || !writeMaps() || !sync(m_place.folder))
        return false;
    QFile::remove(m_place.journalFile());
    m_journal = {};
    return true;
}

// A temporary file that is not there any more has taken its place before.
bool ProjectSwap::moveFiles() const
{
    const ConfinedFolder project(m_place.folder);
    bool allMoved = true;
    for (auto it = m_journal.files.cbegin(); it != m_journal.files.cend(); ++it) {
        if (!it->fetched || !QFileInfo::exists(absolute(it->temporary)))
            continue;
        QDir(m_place.folder).rmdir(it.key()); // an empty folder may stand there
        if (const Outcome moved = project.moveInto(absolute(it->temporary), it.key()); !moved) {
            qCWarning(lcCloud) << "Cannot put in place" << it.key() << "-" << moved.reason();
            allMoved = false;
        }
    }
    return allMoved;
}

bool ProjectSwap::writeMaps() const
{
    const std::optional<Dirmap> map = parseDirmap(m_journal.dirmap.toUtf8());
    return map && writeDirmap(m_place.folder, *map) && writeJsonFile(m_place.recordFile(), m_journal.record);
}

bool ProjectSwap::writeJournal()
{
    return writeJsonFile(m_place.journalFile(), m_journal.toJson());
}

void recoverProjects(const QString& workFolder, const QString& recordFolder)
{
    const QStringList projects = QDir(recordFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& project : projects) {
        const std::optional<ProjectPlace> place = ProjectPlace::of(project, workFolder, recordFolder);
        if (!place || !QFile::exists(place->journalFile()))
            continue;
        ProjectSwap swap(*place);
        if (!swap.finish())
            qCWarning(lcCloud) << "An interrupted update cannot be finished yet:" << project;
        else if (QFile::exists(place->journalFile()))
            swap.rollBack();
    }
}

bool hasJournals(const QString& recordFolder)
{
    const QStringList projects = QDir(recordFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(projects.begin(), projects.end(), [&](const QString& project) {
        return QFile::exists(ProjectPlace{{}, recordFolder + QLatin1Char('/') + project}.journalFile());
    });
}
