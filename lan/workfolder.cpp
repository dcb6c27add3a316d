// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/workfolder.h"

#include "base/safepath.h"
#include "cloud/dirmap.h"
#include "cloud/limits.h"
#include "lan/exchangedmap.h"
#include "lan/host.h"
#include "lan/limits.h"

#include <QDir>

namespace {

const QString hiddenFolder = QStringLiteral(".incoming");
const QString mapName = QStringLiteral("dirmap");
const QString documentName = QStringLiteral("main.qml");

// The project of which `path` is the file `name`; empty when it is none.
QString projectOf(const QString& path, const QString& name)
{
    const QStringList parts = path.split(QLatin1Char('/'));
    return parts.size() == 2 && parts[1] == name ? parts[0] : QString();
}

} // namespace

WorkFolder::WorkFolder(const LanHost& host)
    : m_host(host)
    , m_path(host.workDirectory())
    , m_folder(m_path)
{
}

QString WorkFolder::faultForPeers(const QString& path)
{
    if (path.section(QLatin1Char('/'), 0, 0) == hiddenFolder)
        return QStringLiteral("the folder is for files that arrive");
    return pathFault(path);
}

QString WorkFolder::projectOfMap(const QString& path)
{
    return projectOf(path, mapName);
}

bool WorkFolder::hasMap(const QString& project) const
{
    QFile map;
    return bool(openForReading(project + QLatin1Char('/') + mapName, map));
}

Outcome WorkFolder::openForReading(const QString& path, QFile& file) const
{
    return m_folder.openForReading(path, file);
}

bool WorkFolder::hasRoomFor(qint64 bytes) const
{
    return bytes <= m_folder.bytesAvailable() - limits::diskReserveBytes;
}

std::unique_ptr<QTemporaryFile> WorkFolder::newFile() const
{
    const QDir folder(m_path + QLatin1Char('/') + hiddenFolder);
    auto file = std::make_unique<QTemporaryFile>(folder.filePath(QStringLiteral("XXXXXX")));
    // The folder is there but for the first time.
    if (!file->open() && !(folder.mkpath(QStringLiteral(".")) && file->open()))
        return nullptr;
    file->setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    return file;
}

QString WorkFolder::pathOf(const QTemporaryFile& file) const
{
    return hiddenFolder + QLatin1Char('/') + QFileInfo(file).fileName();
}

Outcome WorkFolder::put(QTemporaryFile& file, const QString& path) const
{
    if (!file.flush())
        return Outcome::failure(file.errorString());
    Outcome moved = mayReplace(file, path);
    if (moved)
        moved = m_folder.moveInto(file.fileName(), path);
    file.setAutoRemove(!moved);
    return moved;
}

Outcome WorkFolder::putMap(QTemporaryFile& file, const QString& project, const QSet<QString>& missed) const
{
    if (!file.seek(0))
        return Outcome::failure(file.errorString());
    QString fault;
    const std::optional<Dirmap> map = parseDirmap(file.read(limits::dirmapBytes + 1), &fault);
    if (!map)
        return Outcome::failure(fault);
    const Dirmap old = readDirmap(m_path + QLatin1Char('/') + project).value_or(Dirmap());
    if (losesDocument(old, *map))
        return Outcome::failure(QStringLiteral("lists no main.qml"));
    if (!missed.isEmpty()) {
        const QByteArray text = dirmapText(withLinesOf(old, *map, missed)).value_or(QByteArray());
        if (!file.resize(0) || !file.seek(0) || file.write(text) != text.size() || !file.flush())
            return Outcome::failure(file.errorString());
    }
    const Outcome synced = m_folder.sync();
    return synced ? put(file, project + QLatin1Char('/') + mapName) : synced;
}

// What has come may be the end of a broken connection or of a full disk there.
Outcome WorkFolder::mayReplace(QFile& file, const QString& path) const
{
    const bool isEmpty = file.size() == 0;
    QFile old;
    if ((!isEmpty && projectOf(path, documentName).isEmpty()) || !openForReading(path, old) ||
        old.size() == 0)
        return Outcome::success();
    if (isEmpty)
        return Outcome::failure(QStringLiteral("came empty"));
    if (isDocument(old) && !isDocument(file))
        return Outcome::failure(QStringLiteral("is no document"));
    return Outcome::success();
}

bool WorkFolder::isDocument(QFile& file) const
{
    return file.size() <= limits::documentBytes && file.seek(0) &&
           m_host.isDocument(QString::fromUtf8(file.readAll()));
}

void WorkFolder::clean(const QString& path)
{
    QDir(path + QLatin1Char('/') + hiddenFolder).removeRecursively();
}
