// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/syncjob.h"

#include "cloud/limits.h"

StorageFault persist(SyncJob& job, const std::function<StorageFault()>& attempt)
{
    StorageFault fault = attempt();
    for (const std::chrono::milliseconds pause : limits::retryPauses) {
        if (!mayPass(fault))
            return fault;
        if (!job.pause(pause))
            return StorageFault::Cancelled;
        fault = attempt();
    }
    return fault;
}
