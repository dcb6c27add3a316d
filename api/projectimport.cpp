// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/projectimport.h"

#include "api/archivereader.h"
#include "api/logging.h"
#include "api/projectmerge.h"
#include "api/staging.h"
#include "base/folderexchange.h"
#include "base/jobcontrol.h"
#include "base/sync.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <sys/statvfs.h>

namespace {

Outcome failure(const QString& path, const QString& reason)
{
    return Outcome::failure(path + QStringLiteral(": ") + reason);
}

QFileInfoList childrenOf(const QString& folder)
{
    return QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted);
}

// One import on its way from the archive to the work folder.
class ProjectImport
{
public:
    ProjectImport(const QString& zipFile, const QString& work, JobControl& control, const QString& folder)
        : m_archive(zipFile)
        , m_work(work)
        , m_control(control)
        , m_folder(folder)
    {
    }

    ~ProjectImport()
    {
        if (!m_staging.path().isEmpty())
            staging::tidyUp(m_staging, m_work, m_control);
    }
    Q_DISABLE_COPY(ProjectImport)

    QStringList projects() const { return m_projects; }

    Outcome run()
    {
        for (const auto step : {&ProjectImport::open, &ProjectImport::reserveSpace, &ProjectImport::unpack,
                                &ProjectImport::complete, &ProjectImport::sync, &ProjectImport::place}) {
            Outcome done = m_control.isCancelled() ? Outcome::cancelled() : (this->*step)();
            if (!done)
                return done;
        }
        return Outcome::success();
    }

private:
    Outcome open() { return m_archive.open(); }

    Outcome reserveSpace()
    {
        // Asked of the kernel: QStorageInfo finds no file system where the root is not in the list of mounts.
        struct statvfs storage = {};
        if (statvfs(QFile::encodeName(m_work).constData(), &storage) != 0)
            return failure(m_work, qt_error_string(errno));
        quint64 bytes = 0;
        for (const QuaZipFileInfo64& entry : m_archive.entries())
            bytes += entry.uncompressedSize;
        m_control.setTotal(qint64(bytes));
        const quint64 needed = bytes + quint64(m_archive.entries().size()) * storage.f_frsize;
        return needed <= quint64(storage.f_bavail) * storage.f_frsize
                   ? Outcome::success()
                   : failure(m_work, QStringLiteral("not enough free space"));
    }

    Outcome unpack()
    {
        const Outcome made = m_staging.create(m_work, staging::importPrefix);
        if (!made)
            return failure(m_work, made.reason());
        m_fresh = staging::freshFolder(m_staging);
        const QString target =
            m_folder.isEmpty() || !lacksFolder() ? m_fresh : m_fresh + QLatin1Char('/') + m_folder;
        if (!QDir().mkpath(target) || !QDir().mkpath(staging::displacedFolder(m_staging)))
            return failure(m_staging.path(), qt_error_string(errno));
        return m_archive.extractTo(target, m_control);
    }

    bool lacksFolder() const
    {
        bool hasFiles = false;
        bool hasProject = false;
        for (const QuaZipFileInfo64& entry : m_archive.entries()) {
            if (entry.name == QLatin1String("main.qml"))
                return true;
            hasFiles = hasFiles || !entry.name.contains(QLatin1Char('/'));
            hasProject = hasProject || entry.name.section(QLatin1Char('/'), 1) == QLatin1String("main.qml");
        }
        return hasFiles && !hasProject;
    }

    // Completes each unpacked project with what the older one has besides.
    Outcome complete()
    {
        for (const QFileInfo& fresh : childrenOf(m_fresh)) {
            const QFileInfo old(m_work + QLatin1Char('/') + fresh.fileName());
            if (!old.exists() && !old.isSymLink())
                continue;
            Outcome completed = canReplace(old, fresh);
            if (completed && fresh.isDir())
                completed = keepOtherFiles(old.filePath(), fresh.filePath(), m_control);
            if (!completed)
                return completed;
        }
        return Outcome::success();
    }

    Outcome sync()
    {
        const Outcome synced = m_staging.sync();
        return synced ? synced : failure(m_work, synced.reason());
    }

    Outcome place()
    {
        for (const QFileInfo& fresh : childrenOf(m_fresh)) {
            const QString target = m_work + QLatin1Char('/') + fresh.fileName();
            const Outcome placed =
                fresh.isDir() && QFileInfo::exists(target) ? replace(fresh, target) : move(fresh, target);
            if (!placed)
                return failure(target, placed.reason());
            if (fresh.isDir())
                m_projects.append(fresh.fileName());
        }
        if (!syncPath(m_work))
            qCWarning(lcApi) << "Cannot sync the folder" << m_work << "-" << qt_error_string(errno);
        return Outcome::success();
    }

    Outcome replace(const QFileInfo& fresh, const QString& target) const
    {
        return replaceFolder(fresh.filePath(), target,
                             staging::displacedFolder(m_staging) + QLatin1Char('/') + fresh.fileName());
    }

    static Outcome move(const QFileInfo& fresh, const QString& target)
    {
        return std::rename(QFile::encodeName(fresh.filePath()).constData(),
                           QFile::encodeName(target).constData()) == 0
                   ? Outcome::success()
                   : Outcome::failure(qt_error_string(errno));
    }

    ArchiveReader m_archive;
    QString m_work;
    JobControl& m_control;
    QString m_folder;        // for a project without one
    StagingFolder m_staging; // what was displaced goes with it
    QString m_fresh;
    QStringList m_projects;
};

} // namespace

ImportResult importArchive(const QString& zipFile, const QString& work, JobControl& control,
                           const QString& folder)
{
    ProjectImport import(zipFile, work, control, folder);
    const Outcome outcome = import.run();
    if (!outcome && !outcome.isCancelled())
        qCWarning(lcApi).noquote() << "Cannot import" << zipFile << "-" << outcome.reason();
    return {outcome, import.projects()};
}
