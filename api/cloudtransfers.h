// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/backgroundjob.h"
#include "cloud/storage/gcloud.h"
#include "cloud/sync/sharedfolderthread.h"

#include <QPointer>
#include <QVariant>

#include <memory>

class CloudServices;

/// Lists, downloads and publishes without ever blocking, for pages. One at a time: each member that begins
/// something does nothing while running. What is under way is cancelled when this object goes. GUI thread.
class CloudTransfers : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(bool uploading READ isUploading NOTIFY progressChanged)
    Q_PROPERTY(QString file READ file NOTIFY progressChanged)
    Q_PROPERTY(int fileNumber READ fileNumber NOTIFY progressChanged)
    Q_PROPERTY(int files READ files NOTIFY progressChanged)
    Q_PROPERTY(double bytes READ bytes NOTIFY progressChanged)
    Q_PROPERTY(double bytesTotal READ bytesTotal NOTIFY progressChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    /// Without setServices() it does nothing.
    CloudTransfers();
    ~CloudTransfers() override;

    /// What it works with, which must outlive this object. Once.
    void setServices(CloudServices& services);

    bool isRunning() const { return m_isRunning; }

    // How far it is. Files go beside each other; it tells of the one that was begun last.

    bool isUploading() const { return m_progress.uploading; }
    /// Path in the project, or name of the archive; empty as long as no file is on its way.
    QString file() const { return m_progress.file; }
    /// Of the file, from 1, and of all; 0 before the first.
    int fileNumber() const { return m_progress.number; }
    int files() const { return m_progress.files; }
    /// Of that file, so far and in all, which is -1 as long as it is unknown.
    double bytes() const { return double(m_progress.bytes); }
    double bytesTotal() const { return double(m_progress.bytesTotal); }
    /// Of the whole, 0 to 1, by files.
    double progress() const;

    // Each begins something that ends with finished(). The lists come with listed() before.

    /// Lists the projects that the account has published.
    Q_INVOKABLE void listProjects();
    /// Lists the store: the archives of a folder for all accounts.
    Q_INVOKABLE void listArchives(const QString& folder = QStringLiteral("Demos"));
    /// Gets a project, the "source" of an entry of listProjects(), in place of the one of that name here,
    /// whose unpublished edits stay.
    Q_INVOKABLE void downloadProject(const QString& source);
    /// Gets an archive, the "source" of an entry of listArchives(), and begins its import; the type Imports
    /// tells about that.
    Q_INVOKABLE void downloadArchive(const QString& source);
    /// Publishes a project of the work directory, by its name. `picture`, a path, is a JPEG of what it looks
    /// like, which the lists show; without one the older stays. The project's revision in the database, which
    /// players follow, is to be counted up afterwards.
    Q_INVOKABLE void publish(const QString& project, const QString& picture = {});

    /// Whether the last publish has brought anything: there may have been nothing to bring, or all of it may
    /// have been settled to stay as it is in the cloud.
    Q_INVOKABLE bool hasPublished() const { return m_hasPublished; }

    // A publish is over when its players have been told of the new revision, or it was cancelled. One that
    // the program's end or a failure has cut off leaves files in the cloud without their map, which nobody
    // installs.

    /// The account's projects whose publish was cut off and that have not been changed here since.
    Q_INVOKABLE QStringList begunPublishes() const;
    /// Goes on with such a publish. Cancelled when somebody else has published the same files meanwhile.
    Q_INVOKABLE void resume(const QString& project);
    /// The players of a project have been told of what was published.
    Q_INVOKABLE void endPublish(const QString& project);

    /// A path at which a picture to publish may be saved for the time being; empty on failure, logged.
    Q_INVOKABLE QString pictureFile();
    /// Answers conflictsFound(): those of `theirs` stay as they are in the cloud, the others are overwritten.
    Q_INVOKABLE void settle(const QStringList& theirs);
    /// Ends what is under way; finished() follows. What had to be decided already is done nevertheless.
    Q_INVOKABLE void cancel();

signals:
    void runningChanged();
    void progressChanged();
    /// Maps sorted by "name": besides that "source" for the downloads, "picture", the URL of one or empty,
    /// good for an hour, "bytes", size of the whole, "updated", a time as RFC 3339 has it.
    void listed(const QVariantList& entries);
    /// A publish waits for settle(), or cancel(): these files have changed in the cloud, too.
    void conflictsFound(const QStringList& files);
    /// A download has left these files as they are, since they were edited here and are not published.
    void kept(const QStringList& files);
    /// It is over. `error` says in words why it failed; it is empty after a success and when cancelled.
    void finished(const QString& error, bool cancelled);

private:
    using Work = std::function<StorageFault()>;
    using Then = std::function<void()>;

    bool begin();
    void startJob(int job, const Then& then);
    void startPush(const QString& project, SharedFolderThread::Conflicts conflicts, const Then& then);
    void refuse(StorageFault fault);
    void startWork(const Work& work, const Then& then);
    void list(const QString& prefix, bool areProjects);
    void publishPicture(const QString& project, const QString& picture);
    void setProgress(const SyncProgress& progress);
    void endJob(int job, const SyncResult& result);
    void endWork(const Outcome& outcome);
    void end(const QString& error, bool cancelled = false);

    QPointer<CloudServices> m_services;
    bool m_isRunning = false;
    SyncProgress m_progress;
    Then m_then;      // what follows a success of what is under way
    int m_job = 0;    // the worker's; 0 when none is under way
    QString m_pushed; // project that is being published; empty for anything else
    bool m_hasPublished = false;
    std::unique_ptr<GCloud> m_storage; // the pool thread's, besides cancelling
    QVariantList m_entries;            // the pool thread's while it works
    BackgroundJob m_work;
};
