// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/sync/sharedfolderthread.h"
#include "tests/support/files.h"
#include "tests/support/localcloud.h"

#include <QDirIterator>
#include <QMap>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <atomic>

/// Files by their relative paths.
using Tree = QMap<QString, QByteArray>;

/// A computer with a workspace in which the project "Shop" is edited, published and played. One thread.
class Computer : public QObject, public CloudHost
{
public:
    explicit Computer(const Deployment& deployment)
        : m_deployment(deployment)
    {
        QDir(m_root.path()).mkpath("Work");
        QDir(m_root.path()).mkpath("ShareFolder");
        turnOn();
    }

    QString project() const { return m_root.filePath("Work/Shop"); }
    QString records() const { return m_root.filePath("ShareFolder/Shop"); }
    Dirmap map() const { return readDirmap(project()).value_or(Dirmap()); }

    /// Changes a file as the editor does: with the next revision in the project's map.
    void edit(const QString& path, const QByteArray& bytes)
    {
        put(path, bytes);
        QVariantMap lines = toVariantMap(map());
        lines[path] = lines.value(path).toInt() + 1;
        writeDirmap(project(), fromVariantMap(lines));
    }
    /// Writes a file without a line in the map.
    void put(const QString& path, const QByteArray& bytes) { write(project() + '/' + path, bytes); }
    void remove(const QString& path) { removeListedFiles(project(), path); }
    /// The project with everything that lies in it.
    Tree tree() const
    {
        Tree files;
        QDirIterator entries(project(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = QDir(project()).relativeFilePath(entries.next());
            files[path] = entries.fileInfo().isDir() ? QByteArray("(folder)") : contents(entries.filePath());
        }
        return files;
    }

    /// Publishes and waits; conflicts go to the answer set by settleConflicts(), else the local side wins.
    SyncResult push()
    {
        return push(m_theirs ? SharedFolderThread::Conflicts::Ask : SharedFolderThread::Conflicts::LocalWins);
    }
    SyncResult push(SharedFolderThread::Conflicts conflicts)
    {
        return resultOf(m_worker->push("Shop", conflicts));
    }
    void settleConflicts(const QStringList& theirs) { m_theirs = theirs; }
    QStringList conflicts; ///< that were asked for

    /// Pulls and waits; for ever, when it is to be tried again for ever.
    SyncResult pull(const QString& revision) { return resultOf(m_worker->pull("Shop", revision)); }
    SyncResult resultOf(int job)
    {
        if (job == 0)
            return failure(StorageFault::NoConnection);
        QSignalSpy ended(m_worker.get(), &SharedFolderThread::ended);
        const auto isIt = [job](const QList<QVariant>& arguments) { return arguments[0] == job; };
        m_worker->waitFor(job);
        const auto found = std::find_if(ended.begin(), ended.end(), isIt);
        return found == ended.end() ? SyncResult() : found->at(1).value<SyncResult>();
    }

    void turnOff() { m_worker.reset(); }
    void turnOn()
    {
        m_worker = std::make_unique<SharedFolderThread>(m_deployment, *this);
        QObject::connect(m_worker.get(), &SharedFolderThread::startUpdating, this,
                         [this] { said << "start"; });
        QObject::connect(m_worker.get(), &SharedFolderThread::projectUpdated, this,
                         [this](const QString& revision) { said << revision; });
        QObject::connect(m_worker.get(), &SharedFolderThread::reloadPlayer, this,
                         [this] { said << "reload"; });
        QObject::connect(m_worker.get(), &SharedFolderThread::conflictsFound, this,
                         [this](int job, const QStringList& paths) {
                             conflicts = paths;
                             m_worker->settle(job, m_theirs.value_or(QStringList()));
                         });
    }
    SharedFolderThread& worker() { return *m_worker; }

    QStringList said;                   ///< what the worker has announced; "stop" when it stopped the player
    std::function<void()> onStopPlayer; ///< called before it does
    std::atomic_bool online{true};

private:
    QString workDirectory() const override { return m_root.filePath("Work"); }
    QString shareFolder() const override { return m_root.filePath("ShareFolder"); }
    QString account() const override { return "a@b.c"; }
    bool isConnected() const override { return online; }
    bool isDocument(const QString& text) const override { return text != QLatin1String("{ broken"); }
    void stopPlayer(const std::function<void()>& done) override
    {
        QMetaObject::invokeMethod(this, [this, done] {
            if (onStopPlayer)
                onStopPlayer();
            said << "stop";
            done();
        });
    }

    const Deployment m_deployment;
    QTemporaryDir m_root;
    std::optional<QStringList> m_theirs;
    std::unique_ptr<SharedFolderThread> m_worker;
};
