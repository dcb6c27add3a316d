// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/dirmap.h"

#include "base/atomicfile.h"
#include "base/safepath.h"
#include "cloud/limits.h"
#include "cloud/logging.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace {

std::nullopt_t refuse(const char* reason, QString* fault = nullptr)
{
    if (fault)
        *fault = QLatin1String(reason);
    else
        qCWarning(lcCloud) << "Directory map refused:" << reason;
    return std::nullopt;
}

void appendLine(Dirmap& map, const QString& line)
{
    const int space = line.lastIndexOf(QLatin1Char(' '));
    map.append(line.left(qMax(space, 0)), line.midRef(space + 1).toInt());
}

// True when the file is gone afterwards.
bool removeInside(const QString& folder, const QString& path)
{
    const std::optional<QString> inside = pathInside(folder, path, LastLink::Keep);
    if (!inside) {
        qCWarning(lcCloud) << "Not deleted, leads out of the project:" << path;
        return false;
    }
    const QFileInfo info(*inside);
    if ((!info.exists() && !info.isSymLink()) || QFile::remove(*inside))
        return true;
    qCWarning(lcCloud) << "Cannot delete" << *inside;
    return false;
}

// Path to index of its first line.
QHash<QString, int> firstLines(const Dirmap& map)
{
    QHash<QString, int> lines;
    lines.reserve(map.paths.size());
    for (int i = map.paths.size() - 1; i >= 0; --i)
        lines.insert(map.paths[i], i);
    return lines;
}

} // namespace

void Dirmap::append(const QString& path, qint32 revision)
{
    paths.append(path);
    revisions.append(revision);
}

std::optional<Dirmap> parseDirmap(const QByteArray& text, QString* fault)
{
    if (text.size() > limits::dirmapBytes)
        return refuse("too large", fault);
    Dirmap map;
    int lines = 0;
    for (int start = 0; start < text.size(); ++lines) {
        int end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        if (end - start > limits::dirmapLineBytes)
            return refuse("a line is too long", fault);
        if (lines == limits::dirmapLines)
            return refuse("too many lines", fault);
        QString line = QString::fromUtf8(text.constData() + start, end - start);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.size() >= 2)
            appendLine(map, line);
        start = end + 1;
    }
    return map;
}

std::optional<QByteArray> dirmapText(const Dirmap& map)
{
    if (map.paths.size() > limits::dirmapLines)
        return refuse("too many entries");
    QByteArray text;
    for (int i = 0; i < map.paths.size(); ++i) {
        if (map.paths[i].contains(QLatin1Char('\n')))
            return refuse("a path has a line break");
        const QByteArray line = map.paths[i].toUtf8() + ' ' + QByteArray::number(map.revisions[i]);
        if (line.size() > limits::dirmapLineBytes)
            return refuse("a path is too long");
        text += line + '\n';
    }
    if (text.size() > limits::dirmapBytes)
        return refuse("too large");
    return text;
}

DirmapChanges changesBetween(const Dirmap& from, const Dirmap& to)
{
    DirmapChanges changes;
    const QHash<QString, int> known = firstLines(from);
    QSet<QString> kept;
    for (int i = 0; i < to.paths.size(); ++i) {
        const int line = known.value(to.paths[i], -1);
        if (line < 0 || from.revisions[line] != to.revisions[i])
            changes.changed.append(to.paths[i], to.revisions[i]);
        kept.insert(to.paths[i]);
    }
    for (const QString& path : from.paths) {
        if (!kept.contains(path))
            changes.gone.append(path);
    }
    return changes;
}

bool losesDocument(const Dirmap& from, const Dirmap& to)
{
    const QLatin1String document("main.qml");
    return from.paths.contains(document) && !to.paths.contains(document);
}

QVariantMap toVariantMap(const Dirmap& map)
{
    QVariantMap result;
    for (int i = 0; i < map.paths.size(); ++i)
        result.insert(map.paths[i], map.revisions[i]);
    return result;
}

Dirmap fromVariantMap(const QVariantMap& map)
{
    Dirmap result;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        result.append(it.key(), it.value().toInt());
    return result;
}

QString dirmapPath(const QString& folder)
{
    return folder + QStringLiteral("/dirmap");
}

std::optional<Dirmap> readDirmap(const QString& folder)
{
    QFile file(dirmapPath(folder));
    if (!file.exists())
        return Dirmap();
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return refuse("cannot be read");
    return parseDirmap(file.read(limits::dirmapBytes + 1));
}

bool writeDirmap(const QString& folder, const Dirmap& map)
{
    const std::optional<QByteArray> text = dirmapText(map);
    return text && writeFileAtomically(dirmapPath(folder), *text);
}

bool removeListedFiles(const QString& folder, const QString& listf)
{
    const std::optional<Dirmap> map = readDirmap(folder);
    if (!map)
        return false;
    const QStringList lines = listf.split(QLatin1Char('\n'));
    const QSet<QString> listed(lines.cbegin(), lines.cend());
    Dirmap kept;
    for (int i = 0; i < map->paths.size(); ++i) {
        if (!listed.contains(map->paths[i]) || !removeInside(folder, map->paths[i]))
            kept.append(map->paths[i], map->revisions[i]);
    }
    return writeDirmap(folder, kept);
}
