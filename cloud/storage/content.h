// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QFile>

class QNetworkReply;

/// CRC-32C (RFC 3720, appendix B.4) of `size` bytes behind bytes whose sum is `sum`; 0 is that of none.
quint32 crc32c(quint32 sum, const char* bytes, qint64 size);

/// A file that is written once, from start to end, and summed up meanwhile.
class SummedFile : public QFile
{
public:
    using QFile::QFile;

    /// CRC-32C of what was written.
    quint32 sum() const { return m_sum; }

protected:
    qint64 writeData(const char* bytes, qint64 size) override;

private:
    quint32 m_sum = 0;
};

/// Bytes in memory that refuse to grow beyond a limit.
class BoundedBuffer : public QBuffer
{
public:
    explicit BoundedBuffer(qint64 limit)
        : m_limit(limit)
    {
    }

protected:
    qint64 writeData(const char* bytes, qint64 size) override;

private:
    const qint64 m_limit;
};

/// What was received of an object.
struct ReceivedContent
{
    qint64 bytes = 0;
    quint32 crc32c = 0;
    QIODevice* device = nullptr; ///< open for reading, at its start; for a hash that the sum cannot replace
};

/// Whether `content` is all that the answer `reply` spoke of: of its length, and of the hash that the storage
/// gives, CRC-32C or, where there is none, MD5. An answer without both counts only when its end was told and
/// it is no page of somebody in between (text/html).
bool isWhole(const ReceivedContent& content, const QNetworkReply& reply);

/// The generation of the object that an answer brings; 0 when it does not say.
qint64 generationOf(const QNetworkReply& reply);
