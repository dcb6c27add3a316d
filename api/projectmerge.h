// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

class JobControl;
class QFileInfo;

/// Whether `fresh`, a file or a folder, can take the place of what is at `old` and has the same name: a
/// folder that of a folder, a file that of anything else.
Outcome canReplace(const QFileInfo& old, const QFileInfo& fresh);

/// Completes the new project in the folder `fresh` with what the older one in the folder `old`, on the same
/// file system, has besides. The older one is not changed. Fails when something cannot be kept or taken
/// the place of, or when another file system is mounted in the older project. Blocks; any thread.
Outcome keepOtherFiles(const QString& old, const QString& fresh, const JobControl& control);
