// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

#include <sys/resource.h>

/// Kinds of failing disk.
enum class Fault {
    None,
    DiskFull, ///< no file grows beyond some kilobytes: write() fails
    Fsync,    ///< fsync() fails with EIO
    Rename,   ///< rename() fails with EIO
};
Q_DECLARE_METATYPE(Fault)

/// Makes this process's disk fail while it exists. Link faults.cpp into the test. Not for several threads.
class FaultInjection
{
public:
    explicit FaultInjection(Fault fault);
    ~FaultInjection();
    FaultInjection(const FaultInjection&) = delete;
    FaultInjection& operator=(const FaultInjection&) = delete;

private:
    rlimit m_fileSize{};
};
