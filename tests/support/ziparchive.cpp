// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/ziparchive.h"

#include <quazip/quacrc32.h>

namespace {

constexpr quint16 version = 0x0314; // 2.0, made on Unix
constexpr quint16 utf8Flag = 0x0800;

void put(QByteArray& bytes, std::initializer_list<quint16> numbers)
{
    for (quint16 number : numbers)
        bytes.append(char(number & 0xff)).append(char(number >> 8));
}

void put32(QByteArray& bytes, std::initializer_list<quint32> numbers)
{
    for (quint32 number : numbers)
        put(bytes, {quint16(number & 0xffff), quint16(number >> 16)});
}

QByteArray packed(const ZipEntry& entry)
{
    if (!entry.deflate)
        return entry.data;
    const QByteArray zlib = qCompress(entry.data, 9); // a length, a header, the stream, a checksum
    return zlib.mid(6, zlib.size() - 10);
}

// The fields that an entry's own header and its directory record share.
void putCommon(QByteArray& bytes, const ZipEntry& entry, int packedSize, int nameSize)
{
    const quint16 flags = entry.moreFlags | (entry.utf8 ? utf8Flag : 0);
    const quint16 method = entry.method.value_or(entry.deflate ? 8 : 0);
    put(bytes, {20, flags, method, 0, 0x5821});
    put32(bytes,
          {entry.crc.value_or(QuaCrc32().calculate(entry.data)),
           entry.packedSize.value_or(quint32(packedSize)), entry.size.value_or(quint32(entry.data.size()))});
    put(bytes, {quint16(nameSize), 0});
}

} // namespace

QByteArray ZipArchive::bytes(quint32 bytesBefore) const
{
    QByteArray archive;
    QByteArray directory;
    for (const ZipEntry& entry : m_entries) {
        const quint32 offset = entry.offset.value_or(bytesBefore + quint32(archive.size()));
        const QByteArray data = packed(entry);
        const QByteArray localName = entry.localName.value_or(entry.name);
        put32(archive, {0x04034b50});
        putCommon(archive, entry, data.size(), localName.size());
        archive += localName + data;

        put32(directory, {0x02014b50});
        put(directory, {version});
        putCommon(directory, entry, data.size(), entry.name.size());
        put(directory, {0, 0, 0});
        put32(directory, {entry.unixMode << 16, offset});
        directory += entry.name;
    }
    const quint16 count = m_count.value_or(quint16(m_entries.size()));
    const quint32 directoryOffset = bytesBefore + quint32(archive.size());
    archive += directory;
    put32(archive, {0x06054b50});
    put(archive, {0, 0, count, count});
    put32(archive, {quint32(directory.size()), directoryOffset});
    put(archive, {0});
    return archive;
}
