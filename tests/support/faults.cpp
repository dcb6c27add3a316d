// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/faults.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr rlim_t fullDiskBytes = 8192;

std::atomic<Fault> activeFault{Fault::None};

bool fails(Fault fault, int error = EIO)
{
    if (activeFault != fault)
        return false;
    errno = error;
    return true;
}

} // namespace

// These stand in for the C library's, for everything that is linked into the test.
extern "C" int fsync(int fd)
{
    return fails(Fault::Fsync) ? -1 : int(::syscall(SYS_fsync, fd));
}

extern "C" int syncfs(int fd) noexcept
{
    return fails(Fault::Fsync) ? -1 : int(::syscall(SYS_syncfs, fd));
}

extern "C" int renameat2(int fromDir, const char* from, int toDir, const char* to, unsigned flags) noexcept
{
    const bool failing = fails(Fault::Rename) || (flags != 0 && fails(Fault::NoExchange, EINVAL));
    return failing ? -1 : int(::syscall(SYS_renameat2, fromDir, from, toDir, to, flags));
}

extern "C" int rename(const char* from, const char* to) noexcept
{
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

extern "C" int linkat(int fromDir, const char* from, int toDir, const char* to, int flags) noexcept
{
    const bool failing = fails(Fault::NoLinks, EPERM) || fails(Fault::Mounted, EXDEV);
    return failing ? -1 : int(::syscall(SYS_linkat, fromDir, from, toDir, to, flags));
}

FaultInjection::FaultInjection(Fault fault)
{
    activeFault = fault;
    ::getrlimit(RLIMIT_FSIZE, &m_fileSize);
    if (fault == Fault::DiskFull) {
        std::signal(SIGXFSZ, SIG_IGN); // write() then fails with EFBIG
        const rlimit small{fullDiskBytes, m_fileSize.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
}

FaultInjection::~FaultInjection()
{
    activeFault = Fault::None;
    ::setrlimit(RLIMIT_FSIZE, &m_fileSize);
}
