// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/http/transfer.h"
#include "cloud/storage/storagefault.h"

#include <QVector>

#include <functional>
#include <map>

class SummedFile;

/// A file on its way from or to the storage.
struct FileTransfer
{
    QString url;
    QString path;                            ///< of the file on this computer, whose folder must exist
    StorageFault fault = StorageFault::None; ///< once it is over
    qint64 generation = 0;                   ///< of the object that was downloaded; 0 when it has none
};

/// Carries files in one direction, some beside each other on connections that are kept.
///
/// What was downloaded is whole, by length and hash, or its file is removed. Too many failures one behind the
/// other, or one to write, end it all: the rest has the same fault then. Of many that fail the log tells the
/// number.
class FileTransfers : public TransferTask
{
    Q_OBJECT

public:
    /// Told in the transfer thread how far the file at `index` is: `bytes` of `total`, which is -1 as long as
    /// it is unknown. Once with 0 bytes when it begins.
    using Observer = std::function<void(int index, qint64 bytes, qint64 total)>;

    /// `files` must stay until all has ended; `headers` go with each request.
    FileTransfers(Transfer::Method direction, QVector<FileTransfer>& files, const Transfer::Headers& headers,
                  const Observer& observer);
    ~FileTransfers() override;

protected:
    void begin(QNetworkAccessManager& manager) override;
    void cancel() override;

private:
    struct UnderWay;

    void startSome();
    void start(int index);
    std::unique_ptr<SummedFile> open(const QString& path) const;
    Transfer::Headers headersFor(const SummedFile& file) const;
    void settle(int index);
    StorageFault settled(UnderWay& done);
    void countFailures(StorageFault fault);
    void giveUp(StorageFault fault);

    const Transfer::Method m_direction;
    QVector<FileTransfer>& m_files;
    const Transfer::Headers m_headers;
    const Observer m_observer;
    QNetworkAccessManager* m_manager = nullptr;
    std::map<int, std::unique_ptr<UnderWay>> m_underWay;
    int m_next = 0;
    int m_failures = 0;
    int m_failuresInRow = 0;
    bool m_hasEnded = false;
};
