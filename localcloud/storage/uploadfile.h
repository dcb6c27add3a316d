// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/contenthash.h"
#include "localcloud/base/file.h"

#include <string>
#include <string_view>

namespace localcloud {

/// A file that receives the content of an object, hashed on the way. What fails throws std::system_error.
class UploadFile
{
public:
    /// A new file.
    static UploadFile create(const std::string& path);
    /// The file of an upload that an earlier process began; reads what has arrived.
    static UploadFile reopen(const std::string& path);

    const std::string& path() const { return m_path; }
    /// Bytes that have arrived.
    std::int64_t size() const { return m_size; }
    std::string md5() const { return m_hash.md5(); }
    std::string crc32c() const { return m_hash.crc32cText(); }

    void append(std::string_view bytes);
    /// Returns when all of it is on the disk.
    void sync() const { m_file.sync(); }

private:
    UploadFile(const std::string& path, int flags);

    std::string m_path;
    File m_file;
    ContentHash m_hash;
    std::int64_t m_size = 0;
    std::int64_t m_storing = 0; // bytes that the kernel was asked to store
};

} // namespace localcloud
