// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/cloudtransfers.h"

#include "api/cloudservices.h"
#include "api/logging.h"
#include "cloud/storage/catalog.h"

namespace {

const QString users = QStringLiteral("NUVEX/users/");

QString sharedFolder(const QString& account)
{
    return users + account + QStringLiteral("/ShareFolder/");
}

QVariantList toVariantList(const QVector<CatalogEntry>& catalog, const QString& root, const GCloud& storage)
{
    QVariantList entries;
    for (const CatalogEntry& entry : catalog) {
        entries.append(QVariantMap{{QStringLiteral("name"), entry.name},
                                   {QStringLiteral("source"), entry.object.mid(root.size())},
                                   {QStringLiteral("picture"),
                                    entry.picture.isEmpty() ? QString() : storage.signedUrl(entry.picture)},
                                   {QStringLiteral("bytes"), double(entry.bytes)},
                                   {QStringLiteral("updated"), entry.updated}});
    }
    return entries;
}

} // namespace

CloudTransfers::CloudTransfers()
{
    connect(&m_work, &BackgroundJob::finished, this, &CloudTransfers::endWork);
}

CloudTransfers::~CloudTransfers()
{
    if (m_services && m_job != 0)
        m_services->worker().cancel(m_job);
    if (m_storage)
        m_storage->shutDown();
}

void CloudTransfers::setServices(CloudServices& services)
{
    m_services = &services;
    m_storage = std::make_unique<GCloud>(services.deployment());
    connect(&services.worker(), &SharedFolderThread::ended, this, &CloudTransfers::endJob);
    connect(&services.worker(), &SharedFolderThread::progressed, this,
            [this](int job, const SyncProgress& progress) {
                if (job == m_job)
                    setProgress(progress);
            });
    connect(&services.worker(), &SharedFolderThread::conflictsFound, this,
            [this](int job, const QStringList& files) {
                if (job == m_job)
                    emit conflictsFound(files);
            });
    const auto advance = [this](qint64 bytes, qint64 total) {
        SyncProgress progress = m_progress;
        progress.bytes = bytes;
        progress.bytesTotal = total;
        setProgress(progress);
    };
    connect(m_storage.get(), &GCloud::downloadProgress, this, advance);
}

double CloudTransfers::progress() const
{
    if (m_progress.files == 0)
        return 0;
    const double ofFile = m_progress.bytesTotal > 0 ? bytes() / bytesTotal() : 0;
    return qBound(0.0, (m_progress.number - 1 + ofFile) / m_progress.files, 1.0);
}

// ----------------------------------------------------------------------------------------- what can be begun

void CloudTransfers::listProjects()
{
    if (begin())
        list(sharedFolder(m_services->account()), true);
}

void CloudTransfers::listArchives(const QString& folder)
{
    if (begin())
        list(QStringLiteral("NUVEX/") + folder + QLatin1Char('/'), false);
}

void CloudTransfers::list(const QString& prefix, bool areProjects)
{
    const auto work = [this, prefix, areProjects] {
        const std::optional<Listing> listing = m_storage->list(prefix, {});
        if (!listing)
            return m_storage->lastFault();
        m_entries = areProjects ? toVariantList(projectsIn(*listing, prefix), users, *m_storage)
                                : toVariantList(archivesIn(*listing, prefix), {}, *m_storage);
        return StorageFault::None;
    };
    startWork(work, [this] {
        emit listed(m_entries);
        end({});
    });
}

void CloudTransfers::downloadProject(const QString& source)
{
    if (begin())
        startJob(m_services->worker().download(source), [this] { end({}); });
}

void CloudTransfers::downloadArchive(const QString& source)
{
    if (!begin())
        return;
    const QString name = source.section(QLatin1Char('/'), -1);
    const QString path = m_services->store().pathOf(name);
    setProgress({false, name, 1, 1, 0, -1});
    const auto work = [this, source, path] {
        return path.isEmpty() ? StorageFault::LocalFile : m_storage->downloadFile(source, path).fault;
    };
    startWork(work, [this, path] {
        m_services->import(path);
        end({});
    });
}

void CloudTransfers::publish(const QString& project, const QString& picture)
{
    startPush(project, SharedFolderThread::Conflicts::Ask,
              [this, project, picture] { publishPicture(project, picture); });
}

void CloudTransfers::resume(const QString& project)
{
    startPush(project, SharedFolderThread::Conflicts::GiveUp, [this] { end({}); });
}

void CloudTransfers::startPush(const QString& project, SharedFolderThread::Conflicts conflicts,
                               const Then& then)
{
    if (!begin())
        return;
    if (m_services->account().isEmpty()) {
        refuse(StorageFault::NoAccount);
        return;
    }
    m_pushed = project;
    startJob(m_services->worker().push(project, conflicts), then);
}

QStringList CloudTransfers::begunPublishes() const
{
    return m_services ? m_services->worker().begunPushes() : QStringList();
}

void CloudTransfers::endPublish(const QString& project)
{
    if (m_services)
        m_services->worker().endPush(project);
}

// The project is published; its picture is not worth a failure.
void CloudTransfers::publishPicture(const QString& project, const QString& picture)
{
    if (picture.isEmpty() || !m_hasPublished) {
        end({});
        return;
    }
    const QString object = sharedFolder(m_services->account()) + project + QStringLiteral(".jpg");
    const auto work = [this, picture, object] {
        const StorageFault fault = m_storage->uploadFile(picture, object).fault;
        if (fault != StorageFault::None)
            qCWarning(lcApi).noquote() << "No picture for" << object << "-" << describe(fault);
        return StorageFault::None;
    };
    startWork(work, [this] { end({}); });
}

QString CloudTransfers::pictureFile()
{
    return m_services ? m_services->store().pathOf(QStringLiteral("picture.jpg")) : QString();
}

void CloudTransfers::settle(const QStringList& theirs)
{
    if (m_services && m_job != 0)
        m_services->worker().settle(m_job, theirs);
}

void CloudTransfers::cancel()
{
    if (!m_isRunning || !m_services)
        return;
    if (m_job != 0) {
        m_services->worker().cancel(m_job);
        if (!m_pushed.isEmpty())
            endPublish(m_pushed);
    }
    m_work.cancel();
    m_storage->cancelAll();
}

// ---------------------------------------------------------------------------------------- from begin to end

bool CloudTransfers::begin()
{
    if (m_isRunning || !m_services)
        return false;
    m_isRunning = true;
    m_pushed.clear();
    m_hasPublished = false;
    setProgress({});
    emit runningChanged();
    return true;
}

void CloudTransfers::setProgress(const SyncProgress& progress)
{
    m_progress = progress;
    emit progressChanged();
}

void CloudTransfers::startJob(int job, const Then& then)
{
    m_job = job;
    m_then = then;
    if (job == 0)
        refuse(m_services->faultWithoutJob());
}

void CloudTransfers::refuse(StorageFault fault)
{
    const QString error = describe(fault);
    QMetaObject::invokeMethod(
        this, [this, error] { end(error); }, Qt::QueuedConnection);
}

void CloudTransfers::endJob(int job, const SyncResult& result)
{
    if (m_job == 0 || job != m_job)
        return;
    m_job = 0;
    m_hasPublished = result.changedCloud;
    if (!result.kept.isEmpty())
        emit kept(result.kept);
    if (result.fault == StorageFault::None)
        m_then();
    else
        end(describe(result.fault), result.fault == StorageFault::Cancelled);
}

void CloudTransfers::startWork(const Work& work, const Then& then)
{
    m_then = then;
    m_work.start([work](JobControl& control) {
        const StorageFault fault = work();
        if (control.isCancelled())
            return Outcome::cancelled();
        return fault == StorageFault::None ? Outcome::success() : Outcome::failure(describe(fault));
    });
}

void CloudTransfers::endWork(const Outcome& outcome)
{
    if (outcome)
        m_then();
    else
        end(outcome.reason(), outcome.isCancelled());
}

void CloudTransfers::end(const QString& error, bool cancelled)
{
    m_isRunning = false;
    emit runningChanged();
    emit finished(cancelled ? QString() : error, cancelled);
}
