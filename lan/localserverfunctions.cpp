// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/localserverfunctions.h"

#include "cloud/limits.h"
#include "lan/exchangedmap.h"
#include "lan/host.h"
#include "lan/limits.h"
#include "lan/logging.h"
#include "lan/threadconnection.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace {

const QString mapName = QStringLiteral("dirmap");
const QString cancelledText = QStringLiteral("cancelled");

QString inProject(const QString& folder, const QString& file)
{
    return folder + QLatin1Char('/') + file;
}

// The lines of `map` that can be exchanged: the map itself goes last, and no path may lead out.
Dirmap exchangeable(const QString& folder, const Dirmap& map)
{
    Dirmap result;
    QStringList refused;
    for (int i = 0; i < map.paths.size(); ++i) {
        if (!WorkFolder::faultForPeers(inProject(folder, map.paths[i])).isEmpty())
            refused.append(map.paths[i]);
        else if (map.paths[i] != mapName)
            result.append(map.paths[i], map.revisions[i]);
    }
    if (!refused.isEmpty())
        qCWarning(lcLan) << "Not exchanged, no path of a file:" << refused.first().left(limits::loggedPath)
                         << "and" << refused.size() - 1 << "more";
    return result;
}

Outcome allMoved(int moved, int files)
{
    if (moved == files)
        return Outcome::success();
    return Outcome::failure(QStringLiteral("%1 of %2 files could not be kept").arg(files - moved).arg(files));
}

} // namespace

LocalServerFunctions::LocalServerFunctions(ThreadConnection& connection)
    : m_connection(connection)
    , m_work(connection.host())
    , m_bytesBefore(connection.contentBytes())
{
}

Outcome LocalServerFunctions::shareUp(const QString& folder)
{
    qDebug() << "SHAREUP";
    const Dirmap local = localDirmap(folder);
    Dirmap remote;
    if (Outcome fetched = fetchRemoteDirmap(folder, remote); !fetched)
        return fetched;
    if (local.isEmpty())
        return Outcome::failure(QStringLiteral("the project has no list of its files; saving it makes one"));
    const Dirmap changed = exchangeable(folder, changesBetween(remote, local).changed);
    if (changed.isEmpty())
        return Outcome::success();
    if (Outcome sent = moveFiles(&ThreadConnection::sendFilesAndWait, folder, changed); !sent)
        return sent;
    const Dirmap moved = withLinesOf({}, changed, m_missed);
    if (Outcome sent = sendDirmap(folder, withChanges(remote, moved)); !sent)
        return sent;
    return confirm(folder, changed);
}

Outcome LocalServerFunctions::shareDown(const QString& folder)
{
    qDebug() << "SHAREDOWN";
    Dirmap remote;
    if (Outcome fetched = fetchRemoteDirmap(folder, remote); !fetched)
        return fetched;
    if (remote.isEmpty())
        return Outcome::failure(QStringLiteral("the player has no such project"));
    const Dirmap changed = exchangeable(folder, changesBetween(localDirmap(folder), remote).changed);
    if (changed.isEmpty())
        return Outcome::success();
    const QDir project(projectPath(folder));
    std::copy_if(changed.paths.cbegin(), changed.paths.cend(), std::back_inserter(m_replacedFiles),
                 [&project](const QString& path) { return project.exists(path); });
    if (Outcome fetched = moveFiles(&ThreadConnection::getFilesAndWait, folder, changed); !fetched)
        return fetched;
    Dirmap last;
    const Outcome fetchedLast = fetchRemoteDirmap(folder, last);
    // The first map is kept: a file that has changed since then comes again the next time.
    if (Outcome kept = keepDirmap(folder, remote); !kept)
        return kept;
    if (fetchedLast && !(last == remote))
        return Outcome::failure(QStringLiteral("the project has changed meanwhile"));
    return allMoved(changed.paths.size() - m_missed.size(), changed.paths.size());
}

void LocalServerFunctions::cancel()
{
    const std::lock_guard lock(m_mutex);
    m_cancelled = true;
    if (m_running)
        m_running->end(cancelledText);
}

LocalServerFunctions::Progress LocalServerFunctions::progress() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_files)
        return {};
    return {m_files->finished(), m_files->size(), m_connection.contentBytes() - m_bytesBefore};
}

Outcome LocalServerFunctions::moveFiles(Move move, const QString& folder, const Dirmap& files)
{
    QVector<FileBatch::File> list;
    for (const QString& path : files.paths)
        list.append({inProject(folder, path), inProject(folder, path)});
    const auto batch = std::make_shared<FileBatch>(list);
    {
        const std::lock_guard lock(m_mutex);
        m_files = batch;
    }
    Outcome moved = run(move, batch);
    for (const QString& path : batch->missed())
        m_missed.insert(path.mid(folder.size() + 1));
    m_movedFiles = batch->finished() - m_missed.size();
    return moved;
}

Outcome LocalServerFunctions::sendDirmap(const QString& folder, const Dirmap& map)
{
    const auto file = m_work.newFile();
    const std::optional<QByteArray> text = dirmapText(map);
    if (!file || !text || file->write(*text) != text->size() || !file->flush())
        return Outcome::failure(QStringLiteral("the list of files cannot be written"));
    return run(&ThreadConnection::sendFilesAndWait, std::make_shared<FileBatch>(QVector<FileBatch::File>{
                                                        {m_work.pathOf(*file), inProject(folder, mapName)}}));
}

// Nothing in the protocol says that a file has arrived, but the map that the peer has afterwards does.
Outcome LocalServerFunctions::confirm(const QString& folder, const Dirmap& sent)
{
    Dirmap there;
    if (Outcome fetched = fetchRemoteDirmap(folder, there); !fetched)
        return fetched;
    m_movedFiles = sent.paths.size() - changesBetween(there, sent).changed.paths.size();
    return allMoved(m_movedFiles, sent.paths.size());
}

Outcome LocalServerFunctions::fetchRemoteDirmap(const QString& folder, Dirmap& map)
{
    const auto place = m_work.newFile();
    if (!place)
        return Outcome::failure(QStringLiteral("nothing can be written to the folder of projects here"));
    const auto batch = std::make_shared<FileBatch>(
        QVector<FileBatch::File>{{m_work.pathOf(*place), inProject(folder, mapName)}});
    if (Outcome fetched = run(&ThreadConnection::getFilesAndWait, batch); !fetched)
        return fetched;
    QFile file(place->fileName()); // another file than the one it replaces
    std::optional<Dirmap> parsed;
    if (batch->missed().isEmpty() && file.open(QIODevice::ReadOnly))
        parsed = parseDirmap(file.read(limits::dirmapBytes + 1));
    if (!parsed)
        return Outcome::failure(QStringLiteral("the player's list of files cannot be read"));
    map = *parsed;
    return Outcome::success();
}

Outcome LocalServerFunctions::keepDirmap(const QString& folder, const Dirmap& map)
{
    const auto file = m_work.newFile();
    const std::optional<QByteArray> text = dirmapText(map);
    if (!file || !text || file->write(*text) != text->size())
        return Outcome::failure(QStringLiteral("the list of files cannot be written"));
    Outcome kept = m_work.putMap(*file, folder, m_missed);
    if (kept)
        m_connection.host().projectReceived(folder);
    return kept;
}

Outcome LocalServerFunctions::run(Move move, const std::shared_ptr<FileBatch>& batch)
{
    {
        const std::lock_guard lock(m_mutex);
        m_running = batch;
        if (m_cancelled)
            batch->end(cancelledText);
    }
    return (m_connection.*move)(batch);
}

QString LocalServerFunctions::projectPath(const QString& folder) const
{
    return m_connection.host().workDirectory() + QLatin1Char('/') + folder;
}

Dirmap LocalServerFunctions::localDirmap(const QString& folder) const
{
    return readDirmap(projectPath(folder)).value_or(Dirmap());
}
