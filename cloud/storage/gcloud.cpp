// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/gcloud.h"

#include "cloud/limits.h"
#include "cloud/logging.h"
#include "cloud/storage/accountkey.h"
#include "cloud/storage/assertion.h"
#include "cloud/storage/content.h"

#include <QDateTime>
#include <QMimeDatabase>

using std::chrono::seconds;

GCloud::GCloud(const Deployment& deployment, const QByteArray& bucket, QObject* parent)
    : QObject(parent)
    , m_deployment(deployment)
    , m_bucket(bucket.isEmpty() ? deployment.bucket.toUtf8() : bucket)
{
}

// ------------------------------------------------------------------------------------------------- the token

bool GCloud::checkToken()
{
    const bool isGood = m_tokenExpiry != 0 && !m_token.isNull() &&
                        m_tokenExpiry >= now() + seconds(limits::tokenReserve).count();
    return isGood || getToken();
}

bool GCloud::getToken()
{
    const QString url = m_deployment.hosts.token + QStringLiteral("/oauth2/v4/token");
    const Webfile::Headers form{{"Content-Type", "application/x-www-form-urlencoded"}};
    Webfile request(m_thread, url, form);
    if (postAssertion(request, url))
        return getTokenFinished(request.reply());
    if (!correctClock(request))
        return false;
    Webfile again(m_thread, url, form);
    return postAssertion(again, url) && getTokenFinished(again.reply());
}

bool GCloud::postAssertion(Webfile& request, const QString& url)
{
    QByteArray body = tokenRequest(assertion(m_deployment.serviceAccount.clientEmail, url, now(),
                                             m_deployment.serviceAccount.privateKey));
    QBuffer buffer(&body);
    if (!buffer.open(QIODevice::ReadWrite)) {
        qDebug() << "can't open bytearray on getToken";
        return false;
    }
    return request.post(&buffer);
}

// The token service refuses assertions of another time, and a player's clock may have lost its battery. True
// when the service's answer says that the clock was wrong.
bool GCloud::correctClock(const Webfile& answer)
{
    const std::optional<qint64> date =
        answer.reply() ? parseHttpDate(answer.reply()->rawHeader("Date")) : std::nullopt;
    if (!date || qAbs(*date - now()) < seconds(limits::clockTolerance).count())
        return false;
    qCWarning(lcCloud) << "This computer's clock is wrong by" << *date - QDateTime::currentSecsSinceEpoch()
                       << "s";
    m_clockCorrection += *date - now();
    return true;
}

bool GCloud::getTokenFinished(QIODevice* reply)
{
    const std::optional<AccessToken> token = parseTokenAnswer(reply->readAll());
    if (!token)
        return false;
    m_tokenExpiry = now() + token->lifetime;
    m_token = token->text;
    return true;
}

QByteArray GCloud::sign(const QByteArray& bytes) const
{
    return signatureOf(bytes, m_deployment.serviceAccount.privateKey);
}

qint64 GCloud::now() const
{
    return QDateTime::currentSecsSinceEpoch() + m_clockCorrection;
}

Webfile::Headers GCloud::headers() const
{
    return {{"Authorization", "Bearer " + m_token}};
}

// A request goes out with whatever token there is, and fails by the service's word when it has none.
bool GCloud::isReady()
{
    if (!m_deployment.isSet()) {
        qCWarning(lcCloud) << "No cloud is set up";
        return false;
    }
    checkToken();
    return true;
}

// --------------------------------------------------------------------------------------------------- objects

StorageResult GCloud::uploadData(const QByteArray& bytes, const QString& object, bool isPublic,
                                 std::optional<qint64> ifGeneration)
{
    if (!isReady())
        return finished(StorageFault::NotSetUp);
    QByteArray body = bytes;
    QBuffer buffer(&body);
    if (!buffer.open(QIODevice::ReadOnly)) {
        qDebug() << "can't open bytearray";
        return finished(StorageFault::LocalFile);
    }
    Webfile::Headers all = headers();
    all["Content-Length"] = QByteArray::number(bytes.size());
    all["Content-Type"] = QMimeDatabase().mimeTypeForData(bytes).name().toLatin1();
    Webfile request(m_thread, uploadUrl(storage(), object, isPublic, ifGeneration), all);
    request.post(&buffer);
    return finished(faultOf(*request.transfer()));
}

StorageResult GCloud::downloadData(const QString& object, qint64 limit)
{
    if (!isReady())
        return finished(StorageFault::NotSetUp);
    return finished(get(downloadUrl(storage(), object), limit));
}

StorageResult GCloud::get(const QString& url, qint64 limit)
{
    BoundedBuffer buffer(limit);
    if (!buffer.open(QIODevice::ReadWrite)) {
        qDebug() << "can't open bytearray";
        return StorageFault::LocalFile;
    }
    Webfile request(m_thread, url, headers());
    request.get(&buffer);
    StorageResult result = faultOf(*request.transfer());
    result.bytes = buffer.data();
    if (result.fault == StorageFault::LocalFile)
        result.fault = StorageFault::Unexpected; // it grew beyond the limit
    if (!result)
        return result;
    buffer.seek(0);
    result.generation = generationOf(*request.reply());
    if (!isWhole({result.bytes.size(), crc32c(0, result.bytes.constData(), result.bytes.size()), &buffer},
                 *request.reply()))
        result.fault = StorageFault::Damaged;
    return result;
}

StorageResult GCloud::uploadFile(const QString& path, const QString& object, bool isPublic)
{
    return carryOne(Transfer::Method::Post, uploadUrl(storage(), object, isPublic), path,
                    &GCloud::uploadProgress);
}

StorageResult GCloud::downloadFile(const QString& object, const QString& path)
{
    return carryOne(Transfer::Method::Get, downloadUrl(storage(), object), path, &GCloud::downloadProgress);
}

StorageResult GCloud::carryOne(Transfer::Method direction, const QString& url, const QString& path,
                               Progress progress)
{
    QVector<FileTransfer> file{{url, path}};
    carry(direction, file,
          [this, progress](int, qint64 bytes, qint64 total) { emit(this->*progress)(bytes, total); });
    return finished(file.constFirst().fault);
}

void GCloud::carry(Transfer::Method direction, QVector<FileTransfer>& files,
                   const FileTransfers::Observer& observer)
{
    if (!isReady()) {
        for (FileTransfer& file : files)
            file.fault = StorageFault::NotSetUp;
        return;
    }
    FileTransfers transfers(direction, files, headers(), observer);
    m_thread.run(transfers);
    for (const FileTransfer& file : qAsConst(files))
        forgetTokenIf(file.fault);
}

StorageResult GCloud::finished(const StorageResult& result)
{
    m_lastFault = result.fault;
    forgetTokenIf(result.fault);
    return result;
}

// A token can end before its time.
void GCloud::forgetTokenIf(StorageFault fault)
{
    if (fault == StorageFault::Refused)
        m_tokenExpiry = 0;
}

// ----------------------------------------------------------------------------------------------------- lists

std::optional<Listing> GCloud::list(const QString& prefix, const QString& delimiter)
{
    if (!isReady()) {
        finished(StorageFault::NotSetUp);
        return std::nullopt;
    }
    Listing all;
    QString pageToken;
    for (int pages = 0; pages < limits::listingPages; ++pages) {
        const std::optional<ListingPage> page = listPage(listUrl(storage(), prefix, delimiter, pageToken));
        if (!page)
            return std::nullopt;
        all.objects += page->listing.objects;
        all.prefixes += page->listing.prefixes;
        pageToken = page->nextPageToken;
        if (pageToken.isEmpty())
            return all;
    }
    qCWarning(lcCloud) << "A list has too many pages:" << prefix;
    finished(StorageFault::Unexpected);
    return std::nullopt;
}

std::optional<ListingPage> GCloud::listPage(const QString& url)
{
    StorageResult answer = get(url, limits::answerBytes);
    std::optional<ListingPage> page = answer ? parseListingPage(answer.bytes) : std::nullopt;
    if (answer && !page)
        answer.fault = StorageFault::Unexpected;
    finished(answer);
    return page;
}

QStringList GCloud::listFolders(const QString& prefix)
{
    return folderNames(list(prefix, QStringLiteral("/")).value_or(Listing()));
}

QStringList GCloud::listFiles(const QString& prefix, const QString& extension)
{
    return fileNames(list(prefix, QStringLiteral("/")).value_or(Listing()), extension);
}

QString GCloud::signedUrl(const QString& object) const
{
    if (!m_deployment.isSet())
        return {};
    const qint64 expires = now() + seconds(limits::signedUrlLife).count();
    return ::signedUrl({m_deployment.hosts.signedUrl, m_bucket}, object,
                       m_deployment.serviceAccount.clientEmail, expires,
                       sign(textToSign(m_bucket, object, expires)));
}
