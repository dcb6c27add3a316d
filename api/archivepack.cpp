// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archivepack.h"

#include "api/logging.h"
#include "api/staging.h"
#include "base/atomicfile.h"
#include "base/jobcontrol.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>

#include <zlib.h>

#include <algorithm>
#include <numeric>

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

// What goes into the archive, each folder before its files; an older archive may lie in the folder. Links are
// not followed, so a canonical `path` makes canonical ones.
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

QString canonicalPathOfFile(const QString& path)
{
    const QFileInfo info(path);
    return info.dir().canonicalPath() + QLatin1Char('/') + info.fileName();
}

qint64 sizeOf(const QFileInfoList& files)
{
    return std::accumulate(files.cbegin(), files.cend(), qint64(0), [](qint64 sum, const QFileInfo& file) {
        return sum + (file.isFile() ? file.size() : 0);
    });
}

bool isAscii(const QFileInfo& file)
{
    const QString path = file.filePath();
    return std::all_of(path.cbegin(), path.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

// Writes one archive. What old tools cannot read is used only where it is needed: names marked as UTF-8, and
// sizes and offsets of 64 bits.
class Packer
{
public:
    Packer(QIODevice* archive, const QString& root, JobControl& control)
        : m_archive(archive)
        , m_zip(archive)
        , m_root(root)
        , m_control(control)
        , m_buffer(64 * 1024, Qt::Uninitialized)
    {
        m_zip.setAutoClose(false);
        m_zip.setFileNameCodec("UTF-8");
    }

    Outcome pack(const QFileInfoList& files)
    {
        m_control.setTotal(sizeOf(files));
        m_zip.setUtf8Enabled(!std::all_of(files.cbegin(), files.cend(), isAscii));
        if (!m_zip.open(QuaZip::mdCreate))
            return Outcome::failure(QStringLiteral("it cannot be begun"));
        for (const QFileInfo& file : files) {
            Outcome added = file.isDir() ? addFolder(file) : addFile(file);
            if (!added)
                return added;
        }
        m_zip.close();
        return m_zip.getZipError() == ZIP_OK ? Outcome::success()
                                             : Outcome::failure(QStringLiteral("it cannot be finished"));
    }

private:
    static Outcome failure(const QFileInfo& source)
    {
        return Outcome::failure(source.filePath() + QStringLiteral(" cannot be added"));
    }

    bool open(QuaZipFile& entry, const QFileInfo& source, const QString& nameEnd, int method)
    {
        constexpr qint64 longBytes = 4'000'000'000;
        m_zip.setZip64Enabled(source.size() >= longBytes || m_archive->pos() >= longBytes);
        const QuaZipNewInfo info(m_root.relativeFilePath(source.filePath()) + nameEnd, source.filePath());
        return entry.open(QIODevice::WriteOnly, info, nullptr, 0, method);
    }

    Outcome addFolder(const QFileInfo& folder)
    {
        QuaZipFile entry(&m_zip);
        return open(entry, folder, QStringLiteral("/"), 0) ? Outcome::success() : failure(folder);
    }

    Outcome addFile(const QFileInfo& file)
    {
        QFile source(file.filePath());
        if (!source.open(QIODevice::ReadOnly))
            return Outcome::failure(file.filePath() + QStringLiteral(": ") + source.errorString());
        QuaZipFile entry(&m_zip);
        if (!open(entry, file, QString(), isCompressed(file) ? 0 : Z_DEFLATED))
            return failure(file);
        const bool copied = copy(source, entry);
        if (m_control.isCancelled())
            return Outcome::cancelled();
        entry.close();
        return copied && entry.getZipError() == ZIP_OK ? Outcome::success() : failure(file);
    }

    bool copy(QFile& source, QuaZipFile& entry)
    {
        qint64 count = 0;
        while (!m_control.isCancelled() && (count = source.read(m_buffer.data(), m_buffer.size())) > 0) {
            if (entry.write(m_buffer.constData(), count) != count)
                return false;
            m_control.advance(count);
        }
        return count == 0;
    }

    QIODevice* m_archive;
    QuaZip m_zip;
    QDir m_root;
    JobControl& m_control;
    QByteArray m_buffer;
};

Outcome pack(AtomicFile& archive, const QString& folder, JobControl& control)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    if (!QFileInfo(root).isDir())
        return Outcome::failure(QStringLiteral("no such folder: ") + folder);
    QDir().mkpath(QFileInfo(archive.target()).path());
    // Noted before it is made, so that a start after a crash finds it wherever it lies. A project in a place
    // where nothing can be noted is packed all the same.
    StagingFolder note;
    if (note.create(QFileInfo(folder).path(), staging::exportPrefix))
        QFile::link(archive.temporaryPath(), staging::unfinishedLink(note));
    Outcome done = archive.open();
    if (done) {
        QFileInfoList files;
        listFolder(root, files, canonicalPathOfFile(archive.target()));
        done = Packer(&archive.device(), root, control).pack(files);
    }
    return done ? archive.commit() : done;
}

} // namespace

Outcome packArchive(const QString& zipFile, const QString& folder, JobControl& control)
{
    AtomicFile archive(QDir::cleanPath(QFileInfo(zipFile).absoluteFilePath()));
    Outcome packed = pack(archive, folder, control);
    if (!packed && !packed.isCancelled())
        qCWarning(lcApi).noquote() << "Cannot pack" << archive.target() << "-" << packed.reason();
    return packed;
}
