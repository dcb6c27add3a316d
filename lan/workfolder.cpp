// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/workfolder.h"

#include "base/safepath.h"
#include "cloud/dirmap.h"
#include "cloud/limits.h"
#include "lan/exchangedmap.h"
#include "lan/limits.h"
#include "lan/logging.h"

#include <QDir>

namespace {

const QString hiddenFolder = QStringLiteral(".incoming");
const QString mapName = QStringLiteral("dirmap");

} // namespace

WorkFolder::WorkFolder(const QString& path)
    : m_path(path)
    , m_folder(path)
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
    const QStringList parts = path.split(QLatin1Char('/'));
    return parts.size() == 2 && parts[1] == mapName ? parts[0] : QString();
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
    if (!file->open() && !(folder.mkpath(QStringLiteral(".")) && file->open())) {
        qCWarning(lcLan) << "Nothing can be received:" << file->errorString() << folder.path();
        return nullptr;
    }
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
    Outcome moved = m_folder.moveInto(file.fileName(), path);
    file.setAutoRemove(!moved);
    return moved;
}

Outcome WorkFolder::putMap(QTemporaryFile& file, const QString& project, const QSet<QString>& missed) const
{
    Outcome outcome = missed.isEmpty() ? Outcome::success() : keepRevisions(file, project, missed);
    if (outcome && !file.flush())
        outcome = Outcome::failure(file.errorString());
    if (outcome)
        outcome = m_folder.sync();
    return outcome ? put(file, project + QLatin1Char('/') + mapName) : outcome;
}

Outcome WorkFolder::keepRevisions(QTemporaryFile& file, const QString& project,
                                  const QSet<QString>& missed) const
{
    file.seek(0);
    const std::optional<Dirmap> map = parseDirmap(file.read(limits::dirmapBytes + 1));
    if (!map)
        return Outcome::failure(QStringLiteral("the list of files is not readable"));
    const Dirmap old = readDirmap(m_path + QLatin1Char('/') + project).value_or(Dirmap());
    const QByteArray text = dirmapText(withLinesOf(old, *map, missed)).value_or(QByteArray());
    if (!file.resize(0) || file.write(text) != text.size())
        return Outcome::failure(file.errorString());
    return Outcome::success();
}

void WorkFolder::clean(const QString& path)
{
    QDir(path + QLatin1Char('/') + hiddenFolder).removeRecursively();
}
