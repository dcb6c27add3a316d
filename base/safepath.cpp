// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/safepath.h"

#include "base/limits.h"

#include <QFileInfo>
#include <QVector>

#include <algorithm>

namespace {

bool isSafePart(const QStringRef& part)
{
    return !part.isEmpty() && part != QLatin1String(".") && part != QLatin1String("..") &&
           part.toUtf8().size() <= limits::pathPartBytes;
}

bool isUnsafeCharacter(QChar c)
{
    return c < QLatin1Char(' ') || c == QLatin1Char('\\') || c == QChar(0x7f);
}

bool hasDrive(const QString& path)
{
    return path.size() > 1 && path[1] == QLatin1Char(':');
}

bool isThere(const QFileInfo& info)
{
    return info.exists() || info.isSymLink(); // also one that leads nowhere
}

QString parentOf(const QString& path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}

// Whether what `path` leads to, links resolved, is `canonicalRoot` or lies below it. Of a path that does not
// exist yet the folders that do are looked at.
bool staysIn(const QString& canonicalRoot, QString path)
{
    while (!path.isEmpty() && !isThere(QFileInfo(path)))
        path = parentOf(path);
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical == canonicalRoot || canonical.startsWith(canonicalRoot + QLatin1Char('/'));
}

} // namespace

QString pathFault(const QString& path)
{
    if (path.toUtf8().size() > limits::pathBytes)
        return QStringLiteral("a name is too long");
    const QVector<QStringRef> parts = path.splitRef(QLatin1Char('/'));
    if (parts.size() > limits::pathParts)
        return QStringLiteral("a name is too deep");
    if (hasDrive(path) || std::any_of(path.cbegin(), path.cend(), isUnsafeCharacter) ||
        !std::all_of(parts.cbegin(), parts.cend(), isSafePart))
        return QStringLiteral("a name could lead out of the target");
    return {};
}

std::optional<QString> pathInside(const QString& root, const QString& path, LastLink lastLink)
{
    const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
    if (canonicalRoot.isEmpty() || !pathFault(path).isEmpty())
        return std::nullopt;
    const QString inside = canonicalRoot + QLatin1Char('/') + path;
    if (!staysIn(canonicalRoot, lastLink == LastLink::Follow ? inside : parentOf(inside)))
        return std::nullopt;
    return inside;
}
