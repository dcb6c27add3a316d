// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/storage/gcloud.h"
#include "cloud/sync/cloudhost.h"
#include "cloud/sync/recordlock.h"
#include "cloud/sync/syncedproject.h"
#include "cloud/sync/syncjob.h"

#include <QThread>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

/// The worker that keeps projects and the account's shared folder in step, one job after the other.
///
/// All members belong to the GUI thread; the signals are emitted by the worker. A pull that was asked for by
/// a revision and fails is tried again, with growing pauses, until it succeeds, while other jobs go on; every
/// other job just fails. The destructor cuts off what is under way.
class SharedFolderThread : public QThread
{
    Q_OBJECT

public:
    /// Which side wins where a file has changed on both since they were last synced.
    enum class Conflicts {
        LocalWins, ///< this computer's
        Ask,       ///< whichever conflictsFound() is answered with by settle()
        GiveUp     ///< neither: the push ends, cancelled
    };

    /// Finishes or takes back what was going on when the program last ended. When another running program
    /// works on these projects, that waits, and so do all jobs, until it has ended. `host` must outlive this
    /// object.
    SharedFolderThread(const Deployment& deployment, CloudHost& host, QObject* parent = nullptr);
    ~SharedFolderThread() override;

    // Each queues a job and returns its number, which is 0, without a job, when there is nothing to do it
    // with: no cloud, no network, or no such name.

    /// Pulls a project from the account's shared folder when `revision` is another one than the one pulled
    /// last. Of the pulls of one project that wait only the last is done.
    int pull(const QString& project, const QString& revision);
    /// Pushes a project to the account's shared folder. When this is not a script's push (LocalWins), or it
    /// fails, it counts as begun until endPush().
    int push(const QString& project, Conflicts conflicts);
    /// Ends a push that has begun: its players have been told of it, or it is given up.
    int endPush(const QString& project);
    /// Gets the project `cloudFolder`, an account and a path such as "e@x/ShareFolder/Name", under its last
    /// name.
    int download(const QString& cloudFolder);

    /// The projects, of the account's, of which a push has begun, perhaps in an earlier run of the program,
    /// and that have not been changed here since.
    QStringList begunPushes() const;

    /// Waits until a job has ended, in a nested event loop; also ends when the program quits.
    void waitFor(int job);
    /// Ends a job, soon, unless it has decided already.
    void cancel(int job);
    /// Answers conflictsFound(): of the paths that it named those of `theirs` stay as they are in the cloud.
    void settle(int job, const QStringList& theirs);

signals:
    /// A pull that says something new has begun.
    void startUpdating();
    /// A pull has ended; the project is at `revision` now.
    void projectUpdated(const QString& revision);
    /// The player has to load its project again.
    void reloadPlayer();
    /// How far a job is; for each file when it begins, and then now and again.
    void progressed(int job, const SyncProgress& progress);
    /// A push waits for settle(), or cancel().
    void conflictsFound(int job, const QStringList& paths);
    void ended(int job, const SyncResult& result);

protected:
    void run() override;

private:
    enum class Kind { Pull, Push, EndPush, Download };
    struct Job
    {
        int number = 0;
        Kind kind = Kind::Pull;
        SyncedProject project;
        QString revision;
        Conflicts conflicts = Conflicts::LocalWins;
        int attempts = 0;                          // that have failed
        bool isAnnounced = false;                  // projectUpdated() was emitted
        std::chrono::steady_clock::time_point due; // not before, after a failure
    };
    class Worker;

    int queue(Job job);
    std::optional<Job> jobOf(Kind kind, const QString& project, const QString& cloudPath) const;
    QString sharedPath() const;
    bool isPending(int number) const;
    bool ownsProjects();
    std::optional<Job> takeJob();
    void awaitJob(std::unique_lock<std::mutex>& lock);
    void tryLater(Job job);
    void finish(const Job& job, const SyncResult& result);

    const Deployment m_deployment;
    CloudHost& m_host;
    RecordLock m_lock;                     // the worker's, once the constructor is through
    bool m_recovered = false;              // likewise
    GCloud m_cloud;                        // the worker's, besides cancelling
    QHash<QString, QString> m_pulledEmpty; // the worker's: source to revision where there was no project

    mutable std::mutex m_mutex; // guards the rest
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    std::vector<Job> m_later; // pulls that have failed
    int m_lastNumber = 0;
    int m_current = 0; // number of the job under way
    bool m_cancelCurrent = false;
    bool m_playerStopped = false;
    bool m_stopping = false;
    std::optional<QSet<QString>> m_theirs; // answer to conflictsFound()
};
