// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

#include <sys/resource.h>

/// Kinds of failing disk.
enum class Fault {
    None,
    DiskFull,   ///< no file grows beyond some kilobytes: write() fails
    Fsync,      ///< fsync() and syncfs() fail with EIO
    Rename,     ///< rename() and its kin fail with EIO
    NoExchange, ///< the file system cannot exchange two names
    NoLinks,    ///< the file system has no hard links
    Mounted,    ///< what is to be linked lies on another file system
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
