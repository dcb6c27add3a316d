// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/sync/projectstate.h"

/// A project that this computer and the cloud have.
struct SyncedProject
{
    ProjectPlace place;
    QString cloudPath; ///< first part of the names of its objects, without a final "/"
    QString bucket;

    /// What its record is good for.
    QString source() const { return bucket + QLatin1Char('/') + cloudPath; }
    QString object(const QString& path) const { return cloudPath + QLatin1Char('/') + path; }
};
