// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QString>

class JobControl;

/// Packs the project `folder` of a work folder into an archive, which appears whole or not at all in place of
/// an older one; its folder is made when that is missing. A link is followed.
///
/// Entry names are relative to `folder`; each sub-folder has an entry of its own, ending in "/". Hidden
/// files, links and the archive itself are left out. Files that are compressed already, by their suffix, are
/// stored as they are. What a killed process leaves, Leftovers removes. A failure is logged. Counts bytes;
/// blocks; any thread.
Outcome packArchive(const QString& zipFile, const QString& folder, JobControl& control);
