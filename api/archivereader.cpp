// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archivereader.h"

#include "api/archivecheck.h"
#include "api/limits.h"
#include "api/logging.h"
#include "base/jobcontrol.h"
#include "base/safepath.h"

#include <QDir>
#include <QTextCodec>

#include <quazip/quazipfile.h>

#include <unistd.h>

namespace {

constexpr int utf8Flag = 0x800;

// Names without a mark come as Latin-1, that is as they are: from most tools UTF-8, from old ones DOS names.
QString decodedName(const QuaZipFileInfo64& entry)
{
    if (entry.flags & utf8Flag)
        return entry.name;
    const QByteArray bytes = entry.name.toLatin1();
    const QString name = QString::fromUtf8(bytes);
    return name.contains(QChar::ReplacementCharacter) ? QTextCodec::codecForName("IBM850")->toUnicode(bytes)
                                                      : name;
}

QString withoutFinalSlash(const QString& name)
{
    return name.endsWith(QLatin1Char('/')) ? name.chopped(1) : name;
}

} // namespace

QString archiveProjectName(const QString& zipFile)
{
    ArchiveReader archive(zipFile);
    Outcome outcome = archive.openFile();
    QuaZipFileInfo64 first;
    if (outcome && !(archive.m_zip.goToFirstFile() && archive.readEntry(first)))
        outcome = Outcome::failure(QStringLiteral("it has no entries"));
    QString name = withoutFinalSlash(first.name);
    if (outcome && !pathFault(name).isEmpty())
        outcome = Outcome::failure(pathFault(name));
    if (outcome)
        return name;
    qCWarning(lcApi).noquote() << "Cannot import" << zipFile << "-" << outcome.reason();
    return {};
}

ArchiveReader::ArchiveReader(const QString& zipFile)
    : m_file(zipFile)
    , m_zip(&m_file)
    , m_buffer(64 * 1024, Qt::Uninitialized)
{
    m_zip.setFileNameCodec("ISO-8859-1");
}

Outcome ArchiveReader::open()
{
    Outcome opened = openFile();
    if (!opened)
        return opened;
    if (!listEntries())
        return Outcome::failure(QStringLiteral("it is damaged"));
    const QString fault = archiveFault(m_entries, m_file.size());
    return fault.isEmpty() ? Outcome::success() : Outcome::failure(fault);
}

Outcome ArchiveReader::openFile()
{
    if (!m_file.open(QIODevice::ReadOnly))
        return Outcome::failure(m_file.errorString());
    return m_zip.open(QuaZip::mdUnzip) ? Outcome::success()
                                       : Outcome::failure(QStringLiteral("it is damaged or no ZIP file"));
}

bool ArchiveReader::readEntry(QuaZipFileInfo64& entry) const
{
    if (!m_zip.getCurrentFileInfo(&entry))
        return false;
    entry.name = decodedName(entry);
    return true;
}

// Stops one entry above the limit.
bool ArchiveReader::listEntries()
{
    QuaZipFileInfo64 entry;
    for (bool more = m_zip.goToFirstFile(); more; more = m_zip.goToNextFile()) {
        if (!readEntry(entry))
            return false;
        m_entries.append(entry);
        if (m_entries.size() > limits::archiveEntries)
            return true;
    }
    return m_entries.size() == m_zip.getEntriesCount();
}

Outcome ArchiveReader::extractTo(const QString& target, JobControl& control)
{
    m_zip.goToFirstFile();
    for (const QuaZipFileInfo64& entry : qAsConst(m_entries)) {
        if (control.isCancelled())
            return Outcome::cancelled();
        Outcome extracted = extractEntry(entry, target + QLatin1Char('/') + entry.name, control);
        if (extracted.isCancelled())
            return extracted;
        if (!extracted)
            return Outcome::failure(extracted.reason() + QStringLiteral(": ") + entry.name);
        m_zip.goToNextFile();
    }
    return Outcome::success();
}

Outcome ArchiveReader::extractEntry(const QuaZipFileInfo64& entry, const QString& path, JobControl& control)
{
    if (!makeFolder(path.left(path.lastIndexOf(QLatin1Char('/')))))
        return Outcome::failure(QStringLiteral("its folder cannot be made"));
    if (path.endsWith(QLatin1Char('/')))
        return Outcome::success();
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return Outcome::failure(target.errorString());
    QuaZipFile source(&m_zip);
    if (!source.open(QIODevice::ReadOnly))
        return Outcome::failure(QStringLiteral("damaged"));
    return copy(source, target, entry.uncompressedSize, control);
}

bool ArchiveReader::makeFolder(const QString& path)
{
    if (m_folders.contains(path))
        return true;
    m_folders.insert(path);
    return QDir().mkpath(path);
}

Outcome ArchiveReader::copy(QuaZipFile& source, QFile& target, quint64 size, JobControl& control)
{
    quint64 copied = 0;
    for (qint64 count; (count = source.read(m_buffer.data(), m_buffer.size())) > 0;) {
        copied += quint64(count);
        if (control.isCancelled())
            return Outcome::cancelled();
        if (copied > size)
            return Outcome::failure(QStringLiteral("longer than announced"));
        if (target.write(m_buffer.constData(), count) != count)
            return Outcome::failure(qt_error_string(errno));
        control.advance(count);
        if ((m_unsynced += count) >= limits::unsyncedBytes && ::syncfs(target.handle()) == 0)
            m_unsynced = 0;
    }
    source.close(); // verifies the checksum
    return copied == size && source.getZipError() == UNZ_OK ? Outcome::success()
                                                            : Outcome::failure(QStringLiteral("damaged"));
}
