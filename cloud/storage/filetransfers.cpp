// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/filetransfers.h"

#include "cloud/limits.h"
#include "cloud/logging.h"
#include "cloud/storage/content.h"

#include <QMimeDatabase>

#include <utility>

struct FileTransfers::UnderWay
{
    std::unique_ptr<SummedFile> file;
    std::unique_ptr<Transfer> transfer; // uses the file, so it goes first
};

FileTransfers::FileTransfers(Transfer::Method direction, QVector<FileTransfer>& files,
                             const Transfer::Headers& headers, const Observer& observer)
    : m_direction(direction)
    , m_files(files)
    , m_headers(headers)
    , m_observer(observer)
{
}

FileTransfers::~FileTransfers() = default;

void FileTransfers::begin(QNetworkAccessManager& manager)
{
    m_manager = &manager;
    startSome();
}

void FileTransfers::startSome()
{
    while (m_next < m_files.size() && int(m_underWay.size()) < limits::transfersAtOnce)
        start(m_next++);
    if (m_underWay.empty() && !m_hasEnded) {
        m_hasEnded = true;
        if (m_failures > limits::loggedPaths)
            qCWarning(lcCloud) << "Files that could not be carried:" << m_failures << "of" << m_files.size();
        emit ended();
    }
}

void FileTransfers::start(int index)
{
    std::unique_ptr<SummedFile> file = open(m_files[index].path);
    if (!file) {
        m_files[index].fault = StorageFault::LocalFile;
        countFailures(StorageFault::LocalFile);
        return;
    }
    m_observer(index, 0, -1);
    auto transfer = std::make_unique<Transfer>(m_direction, QUrl(m_files[index].url, QUrl::TolerantMode),
                                               headersFor(*file), file.get());
    if (m_failures >= limits::loggedPaths)
        transfer->setSilent();
    connect(transfer.get(), &Transfer::progress, this, [this, index](qint64 bytes, qint64 total) {
        if (bytes > 0)
            m_observer(index, bytes, total);
    });
    // Queued: the transfer is destroyed, which must not happen while it emits.
    connect(
        transfer.get(), &Transfer::ended, this, [this, index] { settle(index); }, Qt::QueuedConnection);
    Transfer& begun = *transfer;
    m_underWay[index] = std::make_unique<UnderWay>(UnderWay{std::move(file), std::move(transfer)});
    begun.begin(*m_manager);
}

std::unique_ptr<SummedFile> FileTransfers::open(const QString& path) const
{
    QIODevice::OpenMode mode = QIODevice::ReadOnly;
    if (m_direction == Transfer::Method::Get)
        mode = QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered;
    auto file = std::make_unique<SummedFile>(path);
    if (file->open(mode))
        return file;
    qCWarning(lcCloud) << "Cannot open" << path << "-" << file->errorString();
    return nullptr;
}

Transfer::Headers FileTransfers::headersFor(const SummedFile& file) const
{
    Transfer::Headers headers = m_headers;
    if (m_direction == Transfer::Method::Post) {
        headers["Content-Length"] = QByteArray::number(file.size());
        headers["Content-Type"] = QMimeDatabase().mimeTypeForFile(file.fileName()).name().toLatin1();
    }
    return headers;
}

void FileTransfers::settle(int index)
{
    const auto found = m_underWay.find(index);
    if (found == m_underWay.end())
        return;
    const std::unique_ptr<UnderWay> done = std::move(found->second);
    m_underWay.erase(found);
    m_files[index].fault = settled(*done);
    if (const QNetworkReply* reply = done->transfer->reply())
        m_files[index].generation = generationOf(*reply);
    countFailures(m_files[index].fault);
    startSome();
}

StorageFault FileTransfers::settled(UnderWay& done)
{
    StorageFault fault = faultOf(*done.transfer);
    if (m_direction == Transfer::Method::Post)
        return fault;
    SummedFile& file = *done.file;
    if (fault == StorageFault::None && file.seek(0) &&
        !isWhole({file.size(), file.sum(), &file}, *done.transfer->reply()))
        fault = StorageFault::Damaged;
    file.close();
    if (fault != StorageFault::None)
        file.remove();
    return fault;
}

void FileTransfers::countFailures(StorageFault fault)
{
    m_failures += fault != StorageFault::None;
    const bool failed = fault != StorageFault::None && fault != StorageFault::Missing;
    m_failuresInRow = failed ? m_failuresInRow + 1 : 0;
    if (failed && (fault == StorageFault::LocalFile || m_failuresInRow == limits::failuresInRow))
        giveUp(fault);
}

// Those under way go on to their end.
void FileTransfers::giveUp(StorageFault fault)
{
    for (; m_next < m_files.size(); ++m_next)
        m_files[m_next].fault = fault;
}

void FileTransfers::cancel()
{
    if (m_hasEnded)
        return;
    giveUp(StorageFault::Cancelled);
    for (auto& [index, underWay] : m_underWay) {
        underWay->transfer->cancel();
        m_files[index].fault = settled(*underWay);
    }
    m_underWay.clear();
    startSome();
}
