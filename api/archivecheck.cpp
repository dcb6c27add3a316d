// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archivecheck.h"

#include "api/limits.h"
#include "base/safepath.h"

#include <QSet>

namespace {

constexpr int encryptedFlag = 1;
constexpr int storedMethod = 0;
constexpr int deflatedMethod = 8;
constexpr quint32 unixTypeMask = 0170000;
constexpr quint32 unixFile = 0100000;
constexpr quint32 unixFolder = 0040000;

QStringRef withoutFinalSlash(const QString& name)
{
    return name.leftRef(name.endsWith(QLatin1Char('/')) ? name.size() - 1 : -1);
}

// Whether that many bytes in the archive can unpack to as many as the entry announces.
bool isPossible(const QuaZipFileInfo64& entry)
{
    if (entry.method == storedMethod)
        return entry.uncompressedSize == entry.compressedSize;
    return entry.uncompressedSize <= entry.compressedSize * limits::deflateRatio;
}

// A hidden folder of the workspace is no project, and may be one of those that imports are prepared in.
bool isInHiddenFolder(const QString& name)
{
    return name.startsWith(QLatin1Char('.')) && name.contains(QLatin1Char('/'));
}

QString faultOfEntry(const QuaZipFileInfo64& entry, quint64 archiveBytes)
{
    const quint32 type = (entry.externalAttr >> 16) & unixTypeMask;
    if (type != 0 && type != unixFile && type != unixFolder)
        return QStringLiteral("an entry is a link or a device");
    if (entry.flags & encryptedFlag)
        return QStringLiteral("an entry is encrypted");
    if (entry.method != storedMethod && entry.method != deflatedMethod)
        return QStringLiteral("an entry is compressed in an unknown way");
    if (entry.compressedSize > archiveBytes)
        return QStringLiteral("an entry is larger than the archive");
    if (!isPossible(entry))
        return QStringLiteral("an entry announces more than it can hold");
    const QString fault = pathFault(withoutFinalSlash(entry.name).toString());
    if (fault.isEmpty() && isInHiddenFolder(entry.name))
        return QStringLiteral("a project's folder would be hidden");
    return fault;
}

// Compares names without case, as some file systems do.
class NameClashes
{
public:
    bool add(const QString& name)
    {
        const QString key = withoutFinalSlash(name).toString().toCaseFolded();
        if (m_files.contains(key) || m_folders.contains(key))
            return false;
        (name.endsWith(QLatin1Char('/')) ? m_folders : m_files).insert(key);
        return true;
    }

    // Whether a part of the path to `name`, added before or after it, is a file.
    bool needsFileAsFolder(const QString& name)
    {
        QString parent = withoutFinalSlash(name).toString().toCaseFolded();
        for (int slash; (slash = parent.lastIndexOf(QLatin1Char('/'))) >= 0;) {
            parent.truncate(slash);
            if (m_files.contains(parent))
                return true;
            if (m_checked.contains(parent))
                return false;
            m_checked.insert(parent);
        }
        return false;
    }

private:
    QSet<QString> m_files;
    QSet<QString> m_folders;
    QSet<QString> m_checked;
};

QString faultOfNames(const QVector<QuaZipFileInfo64>& entries)
{
    NameClashes clashes;
    for (const QuaZipFileInfo64& entry : entries) {
        if (!clashes.add(entry.name))
            return QStringLiteral("a name occurs twice: ") + entry.name;
    }
    for (const QuaZipFileInfo64& entry : entries) {
        if (clashes.needsFileAsFolder(entry.name))
            return QStringLiteral("a file is also a folder: ") + entry.name;
    }
    return {};
}

} // namespace

QString archiveFault(const QVector<QuaZipFileInfo64>& entries, qint64 archiveBytes)
{
    if (entries.isEmpty())
        return QStringLiteral("it has no entries");
    if (entries.size() > limits::archiveEntries)
        return QStringLiteral("it has too many entries");
    quint64 packedBytes = 0;
    for (const QuaZipFileInfo64& entry : entries) {
        const QString fault = faultOfEntry(entry, archiveBytes);
        if (!fault.isEmpty())
            return fault + QStringLiteral(": ") + entry.name.left(100);
        packedBytes += entry.compressedSize;
    }
    if (packedBytes > quint64(archiveBytes))
        return QStringLiteral("its entries overlap");
    return faultOfNames(entries);
}
