// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/confinedfolder.h"

/// Keeps the records of a workspace's projects to one running program; the kernel frees it when that ends,
/// however it ends. Where the file system knows no locks everybody has it. One thread at a time.
class RecordLock
{
public:
    /// `folder` is where the records lie.
    explicit RecordLock(const QString& folder);

    /// Whether this program has the lock, which it takes when it is free.
    bool isOurs();

private:
    FileDescriptor m_folder;
    bool m_isOurs = false;
};
