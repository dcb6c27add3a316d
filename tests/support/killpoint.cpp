// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Preloaded into a program, counts its calls that change a file or folder, over all threads, and kills it at
// one. The environment says how:
//   KILLPOINT_BELOW    only what is changed in or below this folder counts
//   KILLPOINT_REPORT   file that gets a line before each such call: number, thread, call, path
//   KILLPOINT_AT       number of the call in place of which the process is killed; 0 or none: no kill
//   KILLPOINT_PAUSE    milliseconds that each such call takes longer
//   KILLPOINT_NO_EXCHANGE  any value: the file system knows no exchange of two names

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

std::atomic_long calls{0};

const char* setting(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string leadsTo(const std::string& link)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t size = ::readlink(link.c_str(), target.data(), target.size());
    return size > 0 ? std::string(target.data(), size_t(size)) : std::string();
}

std::string pathOf(int fd)
{
    return leadsTo("/proc/self/fd/" + std::to_string(fd));
}

std::string pathOf(int folder, const char* path)
{
    if (path[0] == '/')
        return path;
    return (folder == AT_FDCWD ? leadsTo("/proc/self/cwd") : pathOf(folder)) + '/' + path;
}

bool isWatched(const std::string& path)
{
    const std::string root = setting("KILLPOINT_BELOW");
    return !root.empty() && path.compare(0, root.size(), root) == 0;
}

// Reported with bare system calls, which are not counted.
void report(const std::string& line)
{
    static const long fd = ::syscall(SYS_openat, AT_FDCWD, setting("KILLPOINT_REPORT"),
                                     O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    ::syscall(SYS_write, fd, line.data(), line.size());
}

// What each call that changes the file system goes through first.
void pass(const char* call, const std::string& path)
{
    const int error = errno;
    if (isWatched(path)) {
        ::usleep(useconds_t(std::atol(setting("KILLPOINT_PAUSE")) * 1000));
        const long number = ++calls;
        report(std::to_string(number) + ' ' + std::to_string(::syscall(SYS_gettid)) + ' ' + call + ' ' +
               path + '\n');
        if (number == std::atol(setting("KILLPOINT_AT"))) {
            ::syscall(SYS_kill, ::getpid(), SIGKILL);
            for (;;)
                ::pause();
        }
    }
    errno = error;
}

constexpr bool changes(int flags)
{
    return (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
}

mode_t modeOf(int flags, va_list arguments)
{
    return flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// The C library's own function behind this library's.
#define NEXT(function) reinterpret_cast<decltype(&::function)>(::dlsym(RTLD_NEXT, #function))

#define OPEN(function)                                                                                       \
    extern "C" int function(const char* path, int flags, ...)                                                \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        if (changes(flags))                                                                                  \
            pass("open", pathOf(AT_FDCWD, path));                                                            \
        return NEXT(function)(path, flags, mode);                                                            \
    }

#define OPENAT(function)                                                                                     \
    extern "C" int function(int folder, const char* path, int flags, ...)                                    \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        if (changes(flags))                                                                                  \
            pass("open", pathOf(folder, path));                                                              \
        return NEXT(function)(folder, path, flags, mode);                                                    \
    }

// A call on an open file, on a path, on a path in a folder: PARAMETERS and ARGUMENTS in parentheses.
#define ON_FILE(type, function, fd, PARAMETERS, ARGUMENTS)                                                   \
    extern "C" type function PARAMETERS                                                                      \
    {                                                                                                        \
        pass(#function, pathOf(fd));                                                                         \
        return NEXT(function) ARGUMENTS;                                                                     \
    }

#define ON_PATH(type, function, path, PARAMETERS, ARGUMENTS)                                                 \
    extern "C" type function PARAMETERS noexcept                                                             \
    {                                                                                                        \
        pass(#function, path);                                                                               \
        return NEXT(function) ARGUMENTS;                                                                     \
    }

OPEN(open)
OPEN(open64)
OPENAT(openat)
OPENAT(openat64)
ON_FILE(ssize_t, write, fd, (int fd, const void* data, size_t size), (fd, data, size))
ON_FILE(ssize_t, writev, fd, (int fd, const iovec* data, int count), (fd, data, count))
ON_FILE(ssize_t, pwrite, fd, (int fd, const void* data, size_t size, off_t at), (fd, data, size, at))
ON_FILE(ssize_t, pwrite64, fd, (int fd, const void* data, size_t size, off64_t at), (fd, data, size, at))
ON_FILE(ssize_t, copy_file_range, to,
        (int from, off64_t* at, int to, off64_t* toAt, size_t size, unsigned flags),
        (from, at, to, toAt, size, flags))
ON_PATH(ssize_t, sendfile, pathOf(to), (int to, int from, off_t* at, size_t size), (to, from, at, size))
ON_PATH(ssize_t, sendfile64, pathOf(to), (int to, int from, off64_t* at, size_t size), (to, from, at, size))
ON_PATH(int, ftruncate, pathOf(fd), (int fd, off_t size), (fd, size))
ON_PATH(int, ftruncate64, pathOf(fd), (int fd, off64_t size), (fd, size))
ON_PATH(int, truncate, pathOf(AT_FDCWD, path), (const char* path, off_t size), (path, size))
ON_PATH(int, truncate64, pathOf(AT_FDCWD, path), (const char* path, off64_t size), (path, size))
ON_FILE(int, fallocate, fd, (int fd, int mode, off_t at, off_t size), (fd, mode, at, size))
ON_FILE(int, fallocate64, fd, (int fd, int mode, off64_t at, off64_t size), (fd, mode, at, size))
ON_PATH(int, link, pathOf(AT_FDCWD, to), (const char* from, const char* to), (from, to))
ON_PATH(int, linkat, pathOf(folder, to), (int at, const char* from, int folder, const char* to, int flags),
        (at, from, folder, to, flags))
ON_PATH(int, symlink, pathOf(AT_FDCWD, path), (const char* target, const char* path), (target, path))
ON_PATH(int, symlinkat, pathOf(folder, path), (const char* target, int folder, const char* path),
        (target, folder, path))
ON_PATH(int, rename, pathOf(AT_FDCWD, to), (const char* from, const char* to), (from, to))
ON_PATH(int, renameat, pathOf(folder, to), (int at, const char* from, int folder, const char* to),
        (at, from, folder, to))
ON_PATH(int, unlink, pathOf(AT_FDCWD, path), (const char* path), (path))
ON_PATH(int, unlinkat, pathOf(folder, path), (int folder, const char* path, int flags), (folder, path, flags))
ON_PATH(int, rmdir, pathOf(AT_FDCWD, path), (const char* path), (path))
ON_PATH(int, remove, pathOf(AT_FDCWD, path), (const char* path), (path))
ON_PATH(int, mkdir, pathOf(AT_FDCWD, path), (const char* path, mode_t mode), (path, mode))
ON_PATH(int, mkdirat, pathOf(folder, path), (int folder, const char* path, mode_t mode), (folder, path, mode))
ON_PATH(char*, mkdtemp, pathOf(AT_FDCWD, path), (char* path), (path))
ON_PATH(int, chmod, pathOf(AT_FDCWD, path), (const char* path, mode_t mode), (path, mode))
ON_PATH(int, fchmod, pathOf(fd), (int fd, mode_t mode), (fd, mode))
ON_PATH(int, fchmodat, pathOf(folder, path), (int folder, const char* path, mode_t mode, int flags),
        (folder, path, mode, flags))
ON_PATH(int, futimens, pathOf(fd), (int fd, const timespec* times), (fd, times))
ON_PATH(int, utimensat, pathOf(folder, path),
        (int folder, const char* path, const timespec* times, int flags), (folder, path, times, flags))

extern "C" int renameat2(int at, const char* from, int folder, const char* to, unsigned flags) noexcept
{
    if (flags & RENAME_EXCHANGE && *setting("KILLPOINT_NO_EXCHANGE")) {
        errno = EINVAL;
        return -1;
    }
    pass("renameat2", pathOf(folder, to));
    return NEXT(renameat2)(at, from, folder, to, flags);
}
