// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/dirmap.h"

#include <QSet>

// What becomes of directory maps when projects are exchanged.

/// `map`, in which the paths `kept` have the revisions of `old`; those that `old` lacks are left out.
Dirmap withLinesOf(const Dirmap& old, const Dirmap& map, const QSet<QString>& kept);

/// `map`, in which each line of `changes` replaces that of the same path or comes at the end.
Dirmap withChanges(const Dirmap& map, const Dirmap& changes);
