// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archive.h"

#include "api/archivecheck.h"
#include "api/limits.h"
#include "api/logging.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTextCodec>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/statvfs.h>

namespace {

const QString stagingPrefix = QStringLiteral(".import-");

bool refuse(const QString& archive, const QString& reason)
{
    qCWarning(lcApi).noquote() << "Archive refused:" << archive << "-" << reason;
    return false;
}

// Reads the directory; stops one entry above the limit.
bool listEntries(QuaZip& zip, QVector<QuaZipFileInfo64>& entries)
{
    entries.clear();
    QuaZipFileInfo64 entry;
    for (bool more = zip.goToFirstFile(); more; more = zip.goToNextFile()) {
        if (!zip.getCurrentFileInfo(&entry))
            return false;
        entries.append(entry);
        if (entries.size() > limits::archiveEntries)
            return true;
    }
    return entries.size() == zip.getEntriesCount();
}

bool hasUnreadableName(const QVector<QuaZipFileInfo64>& entries)
{
    return std::any_of(entries.cbegin(), entries.cend(), [](const QuaZipFileInfo64& entry) {
        return entry.name.contains(QChar::ReplacementCharacter);
    });
}

// An archive opened for reading, and its directory once that was found safe.
//
// JlCompress is not used for reading: it cuts names at 256 bytes, follows links, passes over what it does not
// like, and on a late failure removes the older files that it had replaced.
class SafeArchive
{
public:
    explicit SafeArchive(const QString& path)
        : m_file(path)
        , m_zip(&m_file)
    {
    }

    const QVector<QuaZipFileInfo64>& entries() const { return m_entries; }

    bool open()
    {
        m_zip.setFileNameCodec("UTF-8");
        if (!m_file.open(QIODevice::ReadOnly))
            return refuse(m_file.fileName(), m_file.errorString());
        if (!m_zip.open(QuaZip::mdUnzip) || !listEntries(m_zip, m_entries))
            return refuse(m_file.fileName(), QStringLiteral("it is damaged or no ZIP file"));
        if (hasUnreadableName(m_entries)) { // from a tool that knows DOS names only
            m_zip.setFileNameCodec("IBM850");
            listEntries(m_zip, m_entries);
        }
        const QString fault = archiveFault(m_entries, m_file.size());
        return fault.isEmpty() || refuse(m_file.fileName(), fault);
    }

    // Unpacks every entry into the empty folder `target`.
    bool extractTo(const QString& target)
    {
        m_zip.goToFirstFile();
        for (const QuaZipFileInfo64& entry : qAsConst(m_entries)) {
            if (!extractEntry(entry, target + QLatin1Char('/') + entry.name))
                return refuse(m_file.fileName(), m_error + QStringLiteral(": ") + entry.name);
            m_zip.goToNextFile();
        }
        return true;
    }

private:
    bool fail(const QString& error)
    {
        m_error = error;
        return false;
    }

    bool extractEntry(const QuaZipFileInfo64& entry, const QString& path)
    {
        if (!makeFolder(path.left(path.lastIndexOf(QLatin1Char('/')))))
            return fail(QStringLiteral("cannot make the folder of an entry"));
        if (path.endsWith(QLatin1Char('/')))
            return true;
        QFile target(path);
        if (!target.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            return fail(target.errorString());
        QuaZipFile source(&m_zip);
        if (!source.open(QIODevice::ReadOnly))
            return fail(QStringLiteral("damaged"));
        return copy(source, target, entry.uncompressedSize);
    }

    bool makeFolder(const QString& path)
    {
        if (m_folders.contains(path))
            return true;
        m_folders.insert(path);
        return QDir().mkpath(path);
    }

    bool copy(QuaZipFile& source, QFile& target, quint64 size)
    {
        quint64 copied = 0;
        for (qint64 count; (count = source.read(m_buffer.data(), m_buffer.size())) > 0;) {
            copied += quint64(count);
            if (copied > size)
                return fail(QStringLiteral("longer than announced"));
            if (target.write(m_buffer.constData(), count) != count)
                return fail(target.errorString());
        }
        source.close(); // verifies the checksum
        return (copied == size && source.getZipError() == UNZ_OK) || fail(QStringLiteral("damaged"));
    }

    QFile m_file;
    QuaZip m_zip;
    QVector<QuaZipFileInfo64> m_entries;
    QSet<QString> m_folders;
    QByteArray m_buffer = QByteArray(64 * 1024, Qt::Uninitialized);
    QString m_error;
};

bool fits(const QVector<QuaZipFileInfo64>& entries, const QString& folder)
{
    // Asked of the kernel: QStorageInfo finds no file system where the root is not in the list of mounts.
    struct statvfs storage = {};
    if (statvfs(QFile::encodeName(folder).constData(), &storage) != 0)
        return false;
    quint64 needed = 0;
    for (const QuaZipFileInfo64& entry : entries)
        needed += entry.uncompressedSize + storage.f_frsize;
    return needed <= quint64(storage.f_bavail) * storage.f_frsize;
}

QFileInfoList childrenOf(const QString& folder)
{
    return QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted);
}

// Whether everything in `from` can take its place in `to`: no file against a folder, no link on the way.
bool canMerge(const QString& from, const QString& to)
{
    for (const QFileInfo& child : childrenOf(from)) {
        const QFileInfo old(to + QLatin1Char('/') + child.fileName());
        if (!old.exists() && !old.isSymLink())
            continue;
        const bool replacesFile = !child.isDir() && (old.isFile() || old.isSymLink());
        const bool joinsFolder = child.isDir() && old.isDir() && !old.isSymLink();
        if (!replacesFile && !joinsFolder)
            return refuse(old.filePath(), QStringLiteral("something else has this name"));
        if (joinsFolder && !canMerge(child.filePath(), old.filePath()))
            return false;
    }
    return true;
}

bool moveOver(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ||
           refuse(to, QString::fromLocal8Bit(std::strerror(errno)));
}

bool merge(const QString& from, const QString& to)
{
    for (const QFileInfo& child : childrenOf(from)) {
        const QString target = to + QLatin1Char('/') + child.fileName();
        if (child.isDir() && QFileInfo::exists(target)) {
            if (!merge(child.filePath(), target))
                return false;
        } else if (!moveOver(child.filePath(), target)) {
            return false;
        }
    }
    return true;
}

void removeAbandonedImports(const QString& folder)
{
    const QDateTime limit =
        QDateTime::currentDateTime().addSecs(-std::chrono::seconds(limits::abandonedImportAge).count());
    const QFileInfoList imports = QDir(folder).entryInfoList({stagingPrefix + QLatin1Char('*')},
                                                             QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& import : imports) {
        if (import.lastModified() < limit)
            QDir(import.filePath()).removeRecursively();
    }
}

} // namespace

QString archiveProjectName(const QString& zipFile)
{
    SafeArchive archive(zipFile);
    if (!archive.open())
        return {};
    QString name = archive.entries().constFirst().name;
    if (name.endsWith(QLatin1Char('/')))
        name.chop(1);
    return name;
}

bool extractArchive(const QString& zipFile, const QString& folder)
{
    removeAbandonedImports(folder);
    SafeArchive archive(zipFile);
    if (!archive.open())
        return false;
    if (!fits(archive.entries(), folder))
        return refuse(zipFile, QStringLiteral("not enough free space in ") + folder);
    const QTemporaryDir staging(folder + QLatin1Char('/') + stagingPrefix + QStringLiteral("XXXXXX"));
    if (!staging.isValid())
        return refuse(zipFile, staging.errorString());
    return archive.extractTo(staging.path()) && canMerge(staging.path(), folder) &&
           merge(staging.path(), folder);
}
