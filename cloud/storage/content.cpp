// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/content.h"

#include <QCryptographicHash>
#include <QNetworkReply>
#include <QtEndian>

#include <array>
#include <cstring>

namespace {

constexpr quint32 polynomial = 0x82f63b78U; // reflected

constexpr std::array<quint32, 256> makeTable()
{
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < table.size(); ++i) {
        quint32 value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ ((value & 1) != 0 ? polynomial : 0);
        table[i] = value;
    }
    return table;
}

constexpr std::array<quint32, 256> table = makeTable();

quint32 withTable(quint32 state, const char* bytes, qint64 size)
{
    for (; size > 0; --size, ++bytes)
        state = (state >> 8) ^ table[(state ^ quint8(*bytes)) & 0xff];
    return state;
}

#ifdef __x86_64__
__attribute__((target("sse4.2"))) quint32 withInstruction(quint32 state, const char* bytes, qint64 size)
{
    constexpr int step = sizeof(quint64);
    quint64 wide = state;
    for (; size >= step; size -= step, bytes += step) {
        quint64 word = 0;
        std::memcpy(&word, bytes, step);
        wide = __builtin_ia32_crc32di(wide, word);
    }
    return withTable(quint32(wide), bytes, size);
}
#endif

// The value of `name` in a header of the form "crc32c=...,md5=...".
QByteArray hashIn(const QByteArray& header, const QByteArray& name)
{
    const QList<QByteArray> hashes = header.split(',');
    for (const QByteArray& hash : hashes) {
        const QByteArray trimmed = hash.trimmed();
        if (trimmed.startsWith(name + '='))
            return QByteArray::fromBase64(trimmed.mid(name.size() + 1));
    }
    return {};
}

QByteArray bigEndian(quint32 sum)
{
    QByteArray bytes(sizeof(sum), '\0');
    qToBigEndian(sum, bytes.data());
    return bytes;
}

QByteArray md5(QIODevice& device)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    return hash.addData(&device) ? hash.result() : QByteArray();
}

} // namespace

quint32 crc32c(quint32 sum, const char* bytes, qint64 size)
{
#ifdef __x86_64__
    if (__builtin_cpu_supports("sse4.2"))
        return ~withInstruction(~sum, bytes, size);
#endif
    return ~withTable(~sum, bytes, size);
}

qint64 SummedFile::writeData(const char* bytes, qint64 size)
{
    const qint64 written = QFile::writeData(bytes, size);
    if (written > 0)
        m_sum = crc32c(m_sum, bytes, written);
    return written;
}

qint64 BoundedBuffer::writeData(const char* bytes, qint64 size)
{
    if (this->size() + size <= m_limit)
        return QBuffer::writeData(bytes, size);
    setErrorString(QStringLiteral("more than %1 bytes").arg(m_limit));
    return -1;
}

bool isWhole(const ReceivedContent& content, const QNetworkReply& reply)
{
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && length.toLongLong() != content.bytes)
        return false;
    const QByteArray hashes = reply.rawHeader("X-Goog-Hash");
    const QByteArray sum = hashIn(hashes, "crc32c");
    if (!sum.isEmpty())
        return sum == bigEndian(content.crc32c);
    const QByteArray digest = hashIn(hashes, "md5");
    if (!digest.isEmpty())
        return digest == md5(*content.device);
    const bool hasEnd = length.isValid() || reply.rawHeader("Transfer-Encoding") == "chunked";
    return hasEnd && !reply.rawHeader("Content-Type").startsWith("text/html");
}

qint64 generationOf(const QNetworkReply& reply)
{
    return reply.rawHeader("X-Goog-Generation").toLongLong();
}
