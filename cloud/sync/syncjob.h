// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/storage/storagefault.h"

#include <QMetaType>
#include <QSet>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

/// How far a pull or push is. Files go beside each other; it tells of the one that was begun last.
struct SyncProgress
{
    bool uploading = false;
    QString file;           ///< path in the project
    int number = 0;         ///< of the file, from 1
    int files = 0;          ///< in all
    qint64 bytes = 0;       ///< of the file, so far; 0 when it has just begun
    qint64 bytesTotal = -1; ///< of the file; -1 as long as it is unknown
};
Q_DECLARE_METATYPE(SyncProgress)

/// How a pull or push ended.
struct SyncResult
{
    StorageFault fault = StorageFault::None;
    bool complete = true; ///< false when, after a success, files were missing in the cloud
    bool isThere = true;  ///< false when the cloud has no directory map of the project, or an empty one
    QStringList kept;     ///< paths that a pull left alone, since they were edited here and are not published
    bool changedCloud = false; ///< whether a push has brought anything

    explicit operator bool() const { return fault == StorageFault::None; }
};
Q_DECLARE_METATYPE(SyncResult)

inline SyncResult failure(StorageFault fault)
{
    SyncResult result;
    result.fault = fault;
    return result;
}

/// A pull or push under way, as those who carry it out see the thread that they do it in.
class SyncJob
{
public:
    virtual ~SyncJob() = default;

    /// Whether it is to end before it decides for anything.
    virtual bool isCancelled() const = 0;
    /// Waits; false when the job is cancelled meanwhile.
    virtual bool pause(std::chrono::milliseconds time) = 0;
    /// Whether the file at `path` holds a document that can be loaded.
    virtual bool isDocument(const QString& path) const = 0;
    /// Takes the player's project off the screen and waits for that. False when the program ends meanwhile.
    virtual bool stopPlayer() = 0;
    /// Asks which of the files that have changed on both sides shall stay as they are in the cloud. Nothing
    /// when the job is cancelled.
    virtual std::optional<QSet<QString>> settle(const QStringList& conflicts) = 0;
    /// Tells how far it is. Also called from the transfer thread.
    virtual void report(const SyncProgress& progress) = 0;
};

/// Lets `attempt` try until it has no fault or one that will not pass soon, a few times with growing pauses
/// in between. Returns the last fault.
StorageFault persist(SyncJob& job, const std::function<StorageFault()>& attempt);
