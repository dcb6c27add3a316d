// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/storage/listing.h"

/// Something that the cloud offers to get as a whole: a project of an account, or an archive of the store.
struct CatalogEntry
{
    QString name;     ///< for users
    QString object;   ///< an archive's object; of a project its first part, without a final "/"
    QString picture;  ///< object of its picture; empty when it has none
    qint64 bytes = 0; ///< size of all that belongs to it
    QString updated;  ///< time of its last change (RFC 3339)
};

// Both are sorted by name. `listing` is everything below `prefix`, which ends in "/". Pure functions.

/// The projects that have a directory map. A picture is NAME.jpg beside the project.
QVector<CatalogEntry> projectsIn(const Listing& listing, const QString& prefix);

/// The archives directly below `prefix`. A picture is NAME.jpg or NAME.png beside the archive NAME.zip.
QVector<CatalogEntry> archivesIn(const Listing& listing, const QString& prefix);
