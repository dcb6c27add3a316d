// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/sharedfolderthread.h"

#include "cloud/limits.h"
#include "cloud/logging.h"
#include "cloud/sync/pull.h"
#include "cloud/sync/push.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QRandomGenerator>

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

// Doubled each time, and somewhere between a half and the whole of that, lest all players come at once.
milliseconds pauseBefore(int attempts)
{
    const int doublings = std::min(attempts - 1, 16);
    const milliseconds most = std::min(limits::laterFirst * (1 << doublings), limits::laterMost);
    const auto half = int(most.count() / 2);
    return milliseconds(half + QRandomGenerator::global()->bounded(half + 1));
}

} // namespace

/// The worker's side of one job.
class SharedFolderThread::Worker : public SyncJob
{
public:
    Worker(SharedFolderThread& owner, Job& job)
        : m_owner(owner)
        , m_job(job)
    {
    }

    SyncResult carryOut()
    {
        if (!m_owner.ownsProjects())
            return failure(StorageFault::InUse);
        if (m_job.kind == Kind::EndPush) {
            removePushJournal(m_job.project.place);
            return {};
        }
        if (!m_owner.m_host.isConnected())
            return failure(StorageFault::NoConnection);
        if (!ProjectSwap(m_job.project.place).finish())
            return failure(StorageFault::LocalFile);
        switch (m_job.kind) {
        case Kind::Pull:
            return follow();
        case Kind::Download:
            return download();
        default:
            return push();
        }
    }

    bool isCancelled() const override
    {
        const std::lock_guard lock(m_owner.m_mutex);
        return mustEnd();
    }

    bool pause(milliseconds time) override
    {
        std::unique_lock lock(m_owner.m_mutex);
        return !m_owner.m_changed.wait_for(lock, time, [this] { return mustEnd(); });
    }

    bool isDocument(const QString& path) const override
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.size() <= limits::pulledDocumentBytes &&
               m_owner.m_host.isDocument(QString::fromUtf8(file.readAll()));
    }

    bool stopPlayer() override
    {
        m_owner.m_host.stopPlayer([&owner = m_owner] {
            const std::lock_guard lock(owner.m_mutex);
            owner.m_playerStopped = true;
            owner.m_changed.notify_all();
        });
        std::unique_lock lock(m_owner.m_mutex);
        m_owner.m_changed.wait(lock, [this] { return m_owner.m_playerStopped || m_owner.m_stopping; });
        return std::exchange(m_owner.m_playerStopped, false);
    }

    std::optional<QSet<QString>> settle(const QStringList& conflicts) override
    {
        if (m_job.conflicts == Conflicts::LocalWins)
            return QSet<QString>();
        if (m_job.conflicts == Conflicts::GiveUp) {
            qCWarning(lcCloud) << "Not published, changed in the cloud meanwhile:" << m_job.project.cloudPath;
            return std::nullopt;
        }
        emit m_owner.conflictsFound(m_job.number, conflicts);
        std::unique_lock lock(m_owner.m_mutex);
        m_owner.m_changed.wait(lock, [this] { return m_owner.m_theirs || mustEnd(); });
        return std::exchange(m_owner.m_theirs, std::nullopt);
    }

    void report(const SyncProgress& progress) override
    {
        const bool isNew = progress.bytes == 0;
        const bool isLast = progress.bytes == progress.bytesTotal;
        if (!isNew && !isLast && m_sinceReport.isValid() &&
            !m_sinceReport.hasExpired(limits::progressInterval.count()))
            return;
        m_sinceReport.start();
        emit m_owner.progressed(m_job.number, progress);
    }

private:
    // With the mutex locked.
    bool mustEnd() const { return m_owner.m_cancelCurrent || m_owner.m_stopping; }

    SyncResult follow()
    {
        Pull pull(m_owner.m_cloud, *this, m_job.project);
        const QString source = m_job.project.source();
        if (!pull.isNews(m_job.revision) || m_owner.m_pulledEmpty.value(source) == m_job.revision)
            return {};
        if (m_job.attempts == 0)
            emit m_owner.startUpdating();
        SyncResult result = pull.run(m_job.revision);
        m_owner.m_pulledEmpty[source] = result.isThere ? QString() : m_job.revision;
        announce(result, pull.filesChanged());
        return result;
    }

    // A revision is announced once, and again when a file that was missing has come.
    void announce(const SyncResult& result, bool filesChanged)
    {
        const bool isNew = result.fault == StorageFault::None && (!m_job.isAnnounced || filesChanged);
        if (isNew) {
            qDebug() << "aquuii";
            emit m_owner.projectUpdated(m_job.revision);
            m_job.isAnnounced = true;
        }
        if (isNew || filesChanged)
            emit m_owner.reloadPlayer();
    }

    SyncResult download()
    {
        Pull pull(m_owner.m_cloud, *this, m_job.project);
        SyncResult result = pull.run({});
        if (pull.filesChanged())
            emit m_owner.reloadPlayer();
        if (!result.isThere)
            result.fault = StorageFault::Missing;
        return result;
    }

    // A script counts the revision up itself, and nobody tells when.
    SyncResult push()
    {
        SyncResult result = Push(m_owner.m_cloud, *this, m_job.project).run();
        if (result && m_job.conflicts == Conflicts::LocalWins)
            removePushJournal(m_job.project.place);
        return result;
    }

    SharedFolderThread& m_owner;
    Job& m_job;
    QElapsedTimer m_sinceReport; // used in the transfer thread
};

SharedFolderThread::SharedFolderThread(const Deployment& deployment, CloudHost& host, QObject* parent)
    : QThread(parent)
    , m_deployment(deployment)
    , m_host(host)
    , m_lock(host.shareFolder())
    , m_cloud(deployment)
{
    qRegisterMetaType<SyncProgress>();
    qRegisterMetaType<SyncResult>();
    // A program that is being restarted may not have ended yet.
    QElapsedTimer clock;
    clock.start();
    while (!ownsProjects() && hasJournals(host.shareFolder()) && !clock.hasExpired(limits::lockWait.count()))
        QThread::msleep(ulong(limits::lockPause.count()));
}

bool SharedFolderThread::ownsProjects()
{
    if (!m_lock.isOurs())
        return false;
    if (!m_recovered)
        recoverProjects(m_host.workDirectory(), m_host.shareFolder());
    m_recovered = true;
    return true;
}

SharedFolderThread::~SharedFolderThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        m_changed.notify_all();
    }
    m_cloud.shutDown();
    if (wait(limits::workerEnd.count()))
        return;
    qCWarning(lcCloud) << "The cloud's worker does not end; it is terminated";
    terminate();
    wait();
}

// -------------------------------------------------------------------------------------------- the GUI thread

int SharedFolderThread::pull(const QString& project, const QString& revision)
{
    std::optional<Job> job = jobOf(Kind::Pull, project, sharedPath() + project);
    if (!job)
        return 0;
    job->revision = revision;
    const std::lock_guard lock(m_mutex);
    const auto isSame = [&](const Job& other) {
        return other.kind == Kind::Pull && other.project.source() == job->project.source();
    };
    m_later.erase(std::remove_if(m_later.begin(), m_later.end(), isSame), m_later.end());
    const auto waiting = std::find_if(m_jobs.begin(), m_jobs.end(), isSame);
    if (waiting == m_jobs.end())
        return queue(*job);
    waiting->revision = revision;
    return waiting->number;
}

int SharedFolderThread::push(const QString& project, Conflicts conflicts)
{
    std::optional<Job> job = jobOf(Kind::Push, project, sharedPath() + project);
    if (!job || !m_host.isConnected())
        return 0;
    job->conflicts = conflicts;
    const std::lock_guard lock(m_mutex);
    return queue(*job);
}

int SharedFolderThread::endPush(const QString& project)
{
    const std::optional<Job> job = jobOf(Kind::EndPush, project, sharedPath() + project);
    const std::lock_guard lock(m_mutex);
    return job ? queue(*job) : 0;
}

QStringList SharedFolderThread::begunPushes() const
{
    if (!m_deployment.isSet())
        return {};
    QStringList projects = QDir(m_host.shareFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    const auto isOther = [this](const QString& project) {
        const std::optional<Job> job = jobOf(Kind::Push, project, sharedPath() + project);
        return !job || !isPushBegun(job->project);
    };
    projects.erase(std::remove_if(projects.begin(), projects.end(), isOther), projects.end());
    return projects;
}

int SharedFolderThread::download(const QString& cloudFolder)
{
    const QString name = cloudFolder.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
    const QString path = QStringLiteral("NUVEX/users/") + cloudFolder;
    const std::optional<Job> job =
        jobOf(Kind::Download, name, path.endsWith(QLatin1Char('/')) ? path.chopped(1) : path);
    const std::lock_guard lock(m_mutex);
    return job ? queue(*job) : 0;
}

QString SharedFolderThread::sharedPath() const
{
    const QString account = m_host.account();
    return QStringLiteral("NUVEX/users/") + (account.isEmpty() ? QStringLiteral("guess") : account) +
           QStringLiteral("/ShareFolder/");
}

std::optional<SharedFolderThread::Job> SharedFolderThread::jobOf(Kind kind, const QString& project,
                                                                 const QString& cloudPath) const
{
    if (!m_deployment.isSet()) {
        qCWarning(lcCloud) << "No cloud is set up";
        return std::nullopt;
    }
    const auto place = ProjectPlace::of(project, m_host.workDirectory(), m_host.shareFolder());
    if (!place)
        return std::nullopt;
    Job job;
    job.kind = kind;
    job.project = {*place, cloudPath, m_deployment.bucket};
    return job;
}

// With the mutex locked.
int SharedFolderThread::queue(Job job)
{
    job.number = ++m_lastNumber;
    m_jobs.push_back(job);
    m_changed.notify_all();
    start(); // does nothing when it runs
    return job.number;
}

bool SharedFolderThread::isPending(int number) const
{
    const std::lock_guard lock(m_mutex);
    const auto isIt = [number](const Job& job) { return job.number == number; };
    return (number != 0 && m_current == number) || std::any_of(m_jobs.begin(), m_jobs.end(), isIt) ||
           std::any_of(m_later.begin(), m_later.end(), isIt);
}

void SharedFolderThread::waitFor(int job)
{
    QEventLoop loop;
    connect(this, &SharedFolderThread::ended, &loop, [&loop, job](int number) {
        if (number == job)
            loop.quit();
    });
    if (isPending(job))
        loop.exec();
}

void SharedFolderThread::cancel(int job)
{
    std::unique_lock lock(m_mutex);
    if (m_current == job) {
        m_cancelCurrent = true;
        m_changed.notify_all();
        m_cloud.cancelAll();
        return;
    }
    const auto isIt = [job](const Job& other) { return other.number == job; };
    const std::size_t before = m_jobs.size() + m_later.size();
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), isIt), m_jobs.end());
    m_later.erase(std::remove_if(m_later.begin(), m_later.end(), isIt), m_later.end());
    const bool found = m_jobs.size() + m_later.size() < before;
    lock.unlock();
    if (found)
        emit ended(job, failure(StorageFault::Cancelled));
}

void SharedFolderThread::settle(int job, const QStringList& theirs)
{
    const std::lock_guard lock(m_mutex);
    if (m_current != job)
        return;
    m_theirs = QSet<QString>(theirs.cbegin(), theirs.cend());
    m_changed.notify_all();
}

// ------------------------------------------------------------------------------------------------ the worker

void SharedFolderThread::run()
{
    while (std::optional<Job> job = takeJob()) {
        Worker worker(*this, *job);
        const SyncResult result = worker.carryOut();
        if (result.fault != StorageFault::None)
            qCWarning(lcCloud).noquote() << job->project.cloudPath << "-" << describe(result.fault);
        const bool isOpen = result.fault != StorageFault::None || !result.complete;
        if (job->kind == Kind::Pull && isOpen && !worker.isCancelled())
            tryLater(*job);
        else
            finish(*job, result);
    }
}

std::optional<SharedFolderThread::Job> SharedFolderThread::takeJob()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopping && m_jobs.empty())
        awaitJob(lock);
    if (m_stopping)
        return std::nullopt;
    Job job = m_jobs.front();
    m_jobs.pop_front();
    m_current = job.number;
    m_cancelCurrent = false;
    m_theirs.reset();
    return job;
}

// Waits for something new, or until a pull is to be tried again.
void SharedFolderThread::awaitJob(std::unique_lock<std::mutex>& lock)
{
    const auto earlier = [](const Job& a, const Job& b) { return a.due < b.due; };
    const auto next = std::min_element(m_later.begin(), m_later.end(), earlier);
    if (next == m_later.end()) {
        m_changed.wait(lock);
    } else if (next->due > steady_clock::now()) {
        m_changed.wait_until(lock, steady_clock::time_point(next->due));
    } else {
        m_jobs.push_back(*next);
        m_later.erase(next);
    }
}

void SharedFolderThread::tryLater(Job job)
{
    const std::lock_guard lock(m_mutex);
    job.due = steady_clock::now() + pauseBefore(++job.attempts);
    m_current = 0;
    const bool isReplaced = std::any_of(m_jobs.begin(), m_jobs.end(), [&](const Job& other) {
        return other.kind == Kind::Pull && other.project.source() == job.project.source();
    });
    if (!isReplaced)
        m_later.push_back(job);
}

void SharedFolderThread::finish(const Job& job, const SyncResult& result)
{
    {
        const std::lock_guard lock(m_mutex);
        m_current = 0;
    }
    emit ended(job.number, result);
}
