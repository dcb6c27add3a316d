// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/faults.h"
#include "qmldoc/outline.h"

/// Why the document `outline`, whose own file is `file`, would never be loaded to its end: something in it
/// loads it again. Empty when nothing is known to. The engine itself refuses types that hold themselves, but
/// not loaders.
///
/// Looked at is what loads without fail: loaders with a file as a literal and nothing that switches them off,
/// and types that are files of the folder; in other documents of the same computer too. Reads files.
QVector<Fault> endlessLoading(const Outline& outline, const QString& file);
