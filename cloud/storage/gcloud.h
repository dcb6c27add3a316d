// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/deployment.h"
#include "cloud/http/webfile.h"
#include "cloud/storage/filetransfers.h"
#include "cloud/storage/listing.h"
#include "cloud/storage/objecturls.h"

/// How something asked of the storage ended.
struct StorageResult
{
    StorageFault fault = StorageFault::None;
    QByteArray bytes;      ///< what was downloaded into memory
    qint64 generation = 0; ///< of the object that was downloaded; 0 when it has none

    StorageResult(StorageFault how) // NOLINT: a fault is a result
        : fault(how)
    {
    }
    explicit operator bool() const { return fault == StorageFault::None; }
};

/// The client of the customer's cloud storage (Google Cloud Storage, JSON interface), signed in as the
/// deployment's service account.
///
/// It holds an access token, in memory only, and fetches a new one before a request when less than ten
/// minutes of its life are left. Operations block their caller as Webfile does; nothing is retried. Without a
/// deployment each fails at once. Object names are plain text. Used by one thread, besides shutDown() and
/// cancelAll().
class GCloud : public QObject
{
    Q_OBJECT

public:
    /// A client of `bucket`; an empty name means the deployment's.
    explicit GCloud(const Deployment& deployment, const QByteArray& bucket = {}, QObject* parent = nullptr);

    /// Makes sure of a token; false when there is none afterwards.
    bool checkToken();
    /// Fetches a new token.
    bool getToken();
    /// The account's signature of `bytes`, in base64; see signatureOf().
    QByteArray sign(const QByteArray& bytes) const;

    /// Uploads bytes; `isPublic` lets everybody read the object. With `ifGeneration` only when the object has
    /// this generation, 0 when there is none; else the fault is Changed.
    StorageResult uploadData(const QByteArray& bytes, const QString& object, bool isPublic = false,
                             std::optional<qint64> ifGeneration = std::nullopt);
    /// Uploads a file. `uploadProgress` tells how far it is.
    StorageResult uploadFile(const QString& path, const QString& object, bool isPublic = false);
    /// Downloads an object of at most `limit` bytes.
    StorageResult downloadData(const QString& object, qint64 limit);
    /// Downloads an object into a file, which is there afterwards only when it is whole. `downloadProgress`
    /// tells how far it is.
    StorageResult downloadFile(const QString& object, const QString& path);
    /// Downloads (Get) or uploads (Post) many files, some at once; see FileTransfers. Each has its own fault
    /// afterwards.
    void carry(Transfer::Method direction, QVector<FileTransfer>& files,
               const FileTransfers::Observer& observer);
    /// Where carry() finds an object, and where it brings one.
    QString urlToDownload(const QString& object) const { return downloadUrl(storage(), object); }
    QString urlToUpload(const QString& object) const { return uploadUrl(storage(), object, false); }

    /// Lists the objects below `prefix`, page after page, rolled up at `delimiter` unless it is empty.
    /// Nothing on failure; lastFault() says which.
    std::optional<Listing> list(const QString& prefix, const QString& delimiter);
    /// Names of the "folders" directly below `prefix`.
    QStringList listFolders(const QString& prefix);
    /// Names of the objects directly below `prefix` whose name has `extension` in it, in any case.
    QStringList listFiles(const QString& prefix, const QString& extension);
    /// A URL from which anybody can download the object for an hour. Empty without a deployment.
    QString signedUrl(const QString& object) const;

    /// How the last operation ended.
    StorageFault lastFault() const { return m_lastFault; }

    /// Ends what is under way as cancelled. Any thread.
    void cancelAll() { m_thread.cancelAll(); }
    /// The same, also for all that comes later. Any thread.
    void shutDown() { m_thread.shutDown(); }

    /// Takes the token from an answer of the token service. False, and everything stays, when it has none.
    Q_SLOT bool getTokenFinished(QIODevice* reply);

signals:
    void uploadProgress(qlonglong bytesSent, qlonglong bytesTotal);
    void downloadProgress(qlonglong bytesReceived, qlonglong bytesTotal);

private:
    using Progress = void (GCloud::*)(qlonglong, qlonglong);

    bool isReady();
    Webfile::Headers headers() const;
    Bucket storage() const { return {m_deployment.hosts.storage, m_bucket}; }
    qint64 now() const;
    bool postAssertion(Webfile& request, const QString& url);
    bool correctClock(const Webfile& answer);
    StorageResult get(const QString& url, qint64 limit);
    StorageResult carryOne(Transfer::Method direction, const QString& url, const QString& path,
                           Progress progress);
    StorageResult finished(const StorageResult& result);
    void forgetTokenIf(StorageFault fault);
    std::optional<ListingPage> listPage(const QString& url);

    const Deployment m_deployment;
    const QByteArray m_bucket;
    TransferThread m_thread;
    QByteArray m_token;
    qint64 m_tokenExpiry = 0;     // seconds since 1970 by now(); 0 as long as there was no token
    qint64 m_clockCorrection = 0; // seconds that this computer's clock is behind the token service's
    StorageFault m_lastFault = StorageFault::None;
};
