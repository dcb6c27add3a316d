// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace localcloud {

/// An open file, closed with the object. What fails throws std::system_error with the path in its text.
class File
{
public:
    File() = default;
    /// Opens `path` with the flags of open(2); a file that this creates is readable by its owner alone.
    File(const std::string& path, int flags);
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;
    ~File();

    int descriptor() const { return m_descriptor; }
    std::int64_t size() const;
    /// Up to `count` bytes from `offset`; fewer only at the file's end.
    std::string read(std::int64_t offset, std::size_t count) const;
    /// Appends all of `bytes`.
    void append(std::string_view bytes) const;
    /// Cuts the file off behind `size` bytes.
    void truncate(std::int64_t size) const;
    /// Asks the kernel to begin storing `count` bytes from `offset`; does not wait.
    void beginStoring(std::int64_t offset, std::int64_t count) const;
    /// Returns when the content is on the disk.
    void sync() const;

private:
    int m_descriptor = -1;
    std::string m_path;
};

/// Puts `bytes` in place of the file `path`, whole or not at all, readable by its owner alone. Throws
/// std::system_error.
void replaceFile(const std::string& path, std::string_view bytes);

/// Returns when the entries of `folder` are on the disk. Throws std::system_error.
void syncFolder(const std::string& folder);

} // namespace localcloud
