// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archive.h"

#include "api/logging.h"
#include "cloud/atomicfile.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <quazip/JlCompress.h>

#include <zlib.h>

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

// Writes one archive; the first failure is kept and ends the work.
class Packer
{
public:
    Packer(QIODevice* archive, const QString& root, const QString& leftOut)
        : m_zip(archive)
        , m_root(root)
        , m_leftOut(leftOut)
    {
        m_zip.setAutoClose(false);
        m_zip.setUtf8Enabled(true);
    }

    QString error() const { return m_error; }

    bool pack()
    {
        const bool packed = m_zip.open(QuaZip::mdCreate) && packFolder(m_root.path());
        m_zip.close();
        return packed && (m_zip.getZipError() == ZIP_OK || fail(QStringLiteral("cannot be finished")));
    }

private:
    bool fail(const QString& error)
    {
        m_error = error;
        return false;
    }

    bool packFolder(const QString& path)
    {
        constexpr auto kinds = QDir::NoDotAndDotDot | QDir::NoSymLinks;
        const QDir folder(path);
        for (const QFileInfo& child : folder.entryInfoList(QDir::Dirs | kinds)) {
            if (!addFolder(child.filePath()) || !packFolder(child.filePath()))
                return false;
        }
        for (const QFileInfo& child : folder.entryInfoList(QDir::Files | kinds)) {
            if (child.absoluteFilePath() != m_leftOut && !addFile(child))
                return false;
        }
        return true;
    }

    bool addFolder(const QString& path)
    {
        QuaZipFile entry(&m_zip);
        const QuaZipNewInfo info(m_root.relativeFilePath(path) + QLatin1Char('/'), path);
        return entry.open(QIODevice::WriteOnly, info, nullptr, 0, 0) || fail(path);
    }

    bool addFile(const QFileInfo& file)
    {
        QFile source(file.filePath());
        if (!source.open(QIODevice::ReadOnly))
            return fail(file.filePath() + QStringLiteral(": ") + source.errorString());
        QuaZipFile entry(&m_zip);
        const QuaZipNewInfo info(m_root.relativeFilePath(file.filePath()), file.filePath());
        const int method = isCompressed(file) ? 0 : Z_DEFLATED;
        if (!entry.open(QIODevice::WriteOnly, info, nullptr, 0, method))
            return fail(file.filePath());
        const bool copied = JlCompress::copyData(source, entry);
        entry.close();
        return (copied && entry.getZipError() == ZIP_OK) || fail(file.filePath());
    }

    QuaZip m_zip;
    QDir m_root;
    QString m_leftOut;
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
    Packer packer(&archive, folder, zipFile);
    const bool packed = packer.pack() || fail(zipFile, packer.error());
    const bool written = archive.flush() && archive.error() == QFileDevice::NoError;
    archive.close();
    return packed && (written || fail(zipFile, archive.errorString()));
}

} // namespace

bool packArchive(const QString& zipFile, const QString& folder)
{
    const QString target = QFileInfo(zipFile).absoluteFilePath();
    if (!QFileInfo(folder).isDir())
        return fail(target, QStringLiteral("no such folder: ") + folder);
    QDir().mkpath(QFileInfo(target).path());
    QFile archive(temporaryPathBeside(target));
    if (packInto(archive, target, QFileInfo(folder).absoluteFilePath()) &&
        replaceFile(archive.fileName(), target))
        return true;
    archive.remove();
    return false;
}
