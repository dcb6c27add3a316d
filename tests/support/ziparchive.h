// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

/// One entry of a ZIP archive under construction; what is not set is written truthfully.
struct ZipEntry
{
    QByteArray name;
    QByteArray data;
    bool deflate = false;
    bool utf8 = true;
    quint16 moreFlags = 0;
    quint32 unixMode = 0;                ///< type and permissions
    std::optional<quint16> method;       ///< in place of stored or deflated
    std::optional<quint32> size;         ///< announced size, unpacked
    std::optional<quint32> packedSize;   ///< announced size in the archive
    std::optional<quint32> crc;          ///< announced checksum
    std::optional<QByteArray> localName; ///< name in the entry's own header
    std::optional<quint32> offset;       ///< where the directory says that the entry begins
};

/// Writes ZIP archives byte by byte, honest or hostile ones, independently of any library that reads them.
class ZipArchive
{
public:
    ZipArchive() = default;
    ZipArchive(std::initializer_list<ZipEntry> entries)
        : m_entries(entries)
    {
    }

    ZipArchive& add(const ZipEntry& entry)
    {
        m_entries.append(entry);
        return *this;
    }
    /// Announces another number of entries than there are.
    ZipArchive& announce(quint16 count)
    {
        m_count = count;
        return *this;
    }
    /// The archive's bytes, for a file in which `bytesBefore` others precede them without being counted in.
    QByteArray bytes(quint32 bytesBefore = 0) const;

private:
    QVector<ZipEntry> m_entries;
    std::optional<quint16> m_count;
};
