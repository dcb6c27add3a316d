// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace localcloud {

namespace {

[[noreturn]] void fail(const char* action, const std::string& path)
{
    throw std::system_error(errno, std::generic_category(), std::string("cannot ") + action + " " + path);
}

// Returns when that is on the disk.
void moveFile(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0)
        fail("rename", from);
    syncFolder(std::filesystem::path(to).parent_path().string());
}

} // namespace

File::File(const std::string& path, int flags)
    : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, 0600))
    , m_path(path)
{
    if (m_descriptor < 0)
        fail("open", path);
}

File::File(File&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_path(std::move(other.m_path))
{
}

File& File::operator=(File&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_path, other.m_path);
    return *this;
}

File::~File()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

std::int64_t File::size() const
{
    struct stat status = {};
    if (::fstat(m_descriptor, &status) != 0)
        fail("look at", m_path);
    return status.st_size;
}

std::string File::read(std::int64_t offset, std::size_t count) const
{
    std::string bytes(count, '\0');
    std::size_t done = 0;
    while (done < count) {
        const ssize_t n = ::pread(m_descriptor, bytes.data() + done, count - done,
                                  static_cast<off_t>(offset + static_cast<std::int64_t>(done)));
        if (n < 0 && errno != EINTR)
            fail("read", m_path);
        if (n == 0)
            break;
        done += n > 0 ? static_cast<std::size_t>(n) : 0;
    }
    bytes.resize(done);
    return bytes;
}

void File::append(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(m_descriptor, bytes.data(), bytes.size());
        if (n < 0 && errno != EINTR)
            fail("write", m_path);
        bytes.remove_prefix(n > 0 ? static_cast<std::size_t>(n) : 0);
    }
}

void File::truncate(std::int64_t size) const
{
    if (::ftruncate(m_descriptor, size) != 0)
        fail("cut off", m_path);
}

void File::beginStoring(std::int64_t offset, std::int64_t count) const
{
    // Only a hint: where the file system does not know it, sync() has more to do.
    ::sync_file_range(m_descriptor, offset, count, SYNC_FILE_RANGE_WRITE);
}

void File::sync() const
{
    if (::fdatasync(m_descriptor) != 0)
        fail("store", m_path);
}

void replaceFile(const std::string& path, std::string_view bytes)
{
    const std::string beside = path + "." + std::to_string(::getpid()) + ".tmp";
    try {
        const File file(beside, O_WRONLY | O_CREAT | O_TRUNC);
        file.append(bytes);
        file.sync();
        moveFile(beside, path);
    } catch (...) {
        ::unlink(beside.c_str());
        throw;
    }
}

void syncFolder(const std::string& folder)
{
    const File opened(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (::fsync(opened.descriptor()) != 0)
        fail("store", folder);
}

} // namespace localcloud
