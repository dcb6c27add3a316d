// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archive.h"

#include "api/logging.h"
#include "base/atomicfile.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <quazip/JlCompress.h>

#include <zlib.h>

#include <algorithm>

namespace {

// Media and archives: a second compression costs time and gains nothing.
bool isCompressed(const QFileInfo& file)
{
    static const QSet<QString> suffixes{
        QStringLiteral("7z"),   QStringLiteral("aac"),  QStringLiteral("avi"),   QStringLiteral("bz2"),
        QStringLiteral("flac"), QStringLiteral("gif"),  QStringLiteral("gz"),    QStringLiteral("jpeg"),
        QStringLiteral("jpg"),  QStringLiteral("m4a"),  QStringLiteral("m4v"),   QStringLiteral("mkv"),
        QStringLiteral("mov"),  QStringLiteral("mp3"),  QStringLiteral("mp4"),   QStringLiteral("mpeg"),
        QStringLiteral("mpg"),  QStringLiteral("oga"),  QStringLiteral("ogg"),   QStringLiteral("ogv"),
        QStringLiteral("opus"), QStringLiteral("png"),  QStringLiteral("webm"),  QStringLiteral("webp"),
        QStringLiteral("wmv"),  QStringLiteral("woff"), QStringLiteral("woff2"), QStringLiteral("xz"),
        QStringLiteral("zip")};
    return suffixes.contains(file.suffix().toLower());
}

// What goes into the archive, each folder before its files; an older archive may lie in the folder.
void listFolder(const QString& path, QFileInfoList& result, const QString& leftOut)
{
    constexpr auto kinds = QDir::NoDotAndDotDot | QDir::NoSymLinks;
    const QDir folder(path);
    for (const QFileInfo& child : folder.entryInfoList(QDir::Dirs | kinds)) {
        result.append(child);
        listFolder(child.filePath(), result, leftOut);
    }
    for (const QFileInfo& child : folder.entryInfoList(QDir::Files | kinds)) {
        if (child.filePath() != leftOut)
            result.append(child);
    }
}

bool isAscii(const QFileInfo& file)
{
    const QString path = file.filePath();
    return std::all_of(path.cbegin(), path.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

// Writes one archive; the first failure is kept and ends the work. What old tools cannot read is used only
// where it is needed: names marked as UTF-8, and sizes and offsets of 64 bits.
class Packer
{
public:
    Packer(QIODevice* archive, const QString& root)
        : m_archive(archive)
        , m_zip(archive)
        , m_root(root)
    {
        m_zip.setAutoClose(false);
        m_zip.setFileNameCodec("UTF-8");
    }

    QString error() const { return m_error; }

    bool pack(const QFileInfoList& files)
    {
        m_zip.setUtf8Enabled(!std::all_of(files.cbegin(), files.cend(), isAscii));
        const auto add = [this](const QFileInfo& file) {
            return file.isDir() ? addFolder(file) : addFile(file);
        };
        const bool packed = m_zip.open(QuaZip::mdCreate) && std::all_of(files.cbegin(), files.cend(), add);
        m_zip.close();
        return packed && (m_zip.getZipError() == ZIP_OK || fail(QStringLiteral("cannot be finished")));
    }

private:
    bool fail(const QString& error)
    {
        m_error = error;
        return false;
    }

    bool open(QuaZipFile& entry, const QFileInfo& source, const QString& nameEnd, int method)
    {
        constexpr qint64 longBytes = 4'000'000'000;
        m_zip.setZip64Enabled(source.size() >= longBytes || m_archive->pos() >= longBytes);
        const QuaZipNewInfo info(m_root.relativeFilePath(source.filePath()) + nameEnd, source.filePath());
        return entry.open(QIODevice::WriteOnly, info, nullptr, 0, method) ||
               fail(QStringLiteral("cannot add ") + source.filePath());
    }

    bool addFolder(const QFileInfo& folder)
    {
        QuaZipFile entry(&m_zip);
        return open(entry, folder, QStringLiteral("/"), 0);
    }

    bool addFile(const QFileInfo& file)
    {
        QFile source(file.filePath());
        if (!source.open(QIODevice::ReadOnly))
            return fail(file.filePath() + QStringLiteral(": ") + source.errorString());
        QuaZipFile entry(&m_zip);
        if (!open(entry, file, QString(), isCompressed(file) ? 0 : Z_DEFLATED))
            return false;
        const bool copied = JlCompress::copyData(source, entry);
        entry.close();
        return (copied && entry.getZipError() == ZIP_OK) ||
               fail(QStringLiteral("cannot add ") + file.filePath());
    }

    QIODevice* m_archive;
    QuaZip m_zip;
    QDir m_root;
    QString m_error;
};

bool fail(const QString& zipFile, const QString& reason)
{
    qCWarning(lcApi).noquote() << "Cannot pack" << zipFile << "-" << reason;
    return false;
}

bool packInto(QFile& archive, const QString& zipFile, const QString& folder)
{
    if (!archive.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return fail(zipFile, archive.errorString());
    QFileInfoList files;
    listFolder(folder, files, zipFile);
    Packer packer(&archive, folder);
    const bool packed = packer.pack(files) || fail(zipFile, packer.error());
    const bool written = archive.flush() && archive.error() == QFileDevice::NoError;
    archive.close();
    return packed && (written || fail(zipFile, archive.errorString()));
}

} // namespace

bool packArchive(const QString& zipFile, const QString& folder)
{
    const QString target = QDir::cleanPath(QFileInfo(zipFile).absoluteFilePath());
    if (!QFileInfo(folder).isDir())
        return fail(target, QStringLiteral("no such folder: ") + folder);
    QDir().mkpath(QFileInfo(target).path());
    QFile archive(temporaryPathBeside(target));
    if (packInto(archive, target, QDir::cleanPath(QFileInfo(folder).absoluteFilePath())) &&
        replaceFile(archive.fileName(), target))
        return true;
    archive.remove();
    return false;
}
