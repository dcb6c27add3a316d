// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stagingfolder.h"

/// What lies in the hidden folders that imports and exports make in the folder of all projects, for those who
/// fill them and for Leftovers, which tidies up after killed ones.
namespace staging {

const QString importPrefix = QStringLiteral(".import-");
const QString exportPrefix = QStringLiteral(".export-");

/// Projects and files of an import that are not in place yet.
QString freshFolder(const StagingFolder& import);

/// Older projects that an import has moved aside; empty where two folders can be exchanged in one step.
QString displacedFolder(const StagingFolder& import);

/// A link to the file that an export is writing, which may lie anywhere.
QString unfinishedLink(const StagingFolder& exporting);

/// Puts the older projects that an import has moved aside back where their place in `work` is empty. False
/// when one cannot be put back, which is logged.
bool putBackDisplaced(const StagingFolder& import, const QString& work);

/// Does that, then removes the import's folder, unless it holds the only copy of a project, until `control`
/// is abandoned.
void tidyUp(StagingFolder& import, const QString& work, const JobControl& control);

} // namespace staging
