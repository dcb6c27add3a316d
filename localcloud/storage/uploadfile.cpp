// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/uploadfile.h"

#include "localcloud/limits.h"

#include <fcntl.h>

namespace localcloud {

UploadFile::UploadFile(const std::string& path, int flags)
    : m_path(path)
    , m_file(path, O_RDWR | O_APPEND | flags)
{
}

UploadFile UploadFile::create(const std::string& path)
{
    return {path, O_CREAT | O_EXCL};
}

UploadFile UploadFile::reopen(const std::string& path)
{
    UploadFile upload(path, 0);
    for (std::string piece; !(piece = upload.m_file.read(upload.m_size, limits::pieceBytes)).empty();) {
        upload.m_hash.add(piece);
        upload.m_size += static_cast<std::int64_t>(piece.size());
    }
    return upload;
}

// A disk that fills up leaves part of a piece in the file; what counts is what was hashed.
void UploadFile::append(std::string_view bytes)
{
    try {
        m_file.append(bytes);
    } catch (...) {
        m_file.truncate(m_size);
        throw;
    }
    m_hash.add(bytes);
    m_size += static_cast<std::int64_t>(bytes.size());
    if (m_size - m_storing >= limits::writeBehindBytes) {
        m_file.beginStoring(m_storing, m_size - m_storing);
        m_storing = m_size;
    }
}

} // namespace localcloud
