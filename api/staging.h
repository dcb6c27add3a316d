// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stagingfolder.h"

/// What lies in the hidden folders that imports and exports make in the work folder, for those who fill them
/// and for Leftovers, which tidies up after killed ones.
namespace staging {

const QString importPrefix = QStringLiteral(".import-");
const QString exportPrefix = QStringLiteral(".export-");

/// Projects and files of an import that are not in place yet.
inline QString freshFolder(const StagingFolder& import)
{
    return import.path() + QStringLiteral("/fresh");
}

/// Older projects that an import has moved aside; empty where two folders can be exchanged in one step.
inline QString displacedFolder(const StagingFolder& import)
{
    return import.path() + QStringLiteral("/displaced");
}

/// A link to the file that an export is writing, which may lie anywhere.
inline QString unfinishedLink(const StagingFolder& exporting)
{
    return exporting.path() + QStringLiteral("/unfinished");
}

} // namespace staging
