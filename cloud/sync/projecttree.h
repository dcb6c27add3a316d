// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/dirmap.h"

/// What the folder of a project holds, beside its directory map.
struct ProjectTree
{
    Dirmap listed;        ///< the lines of the map whose file is there
    QStringList unlisted; ///< paths of further files that belong to the project, sorted
};

/// Looks at the project in `folder`, whose directory map is `map`. Hidden files, links, and what the program
/// itself leaves in a project while it works do not count; names that no directory map can have are left out,
/// with a line in the log.
ProjectTree lookAtProject(const QString& folder, const Dirmap& map);
