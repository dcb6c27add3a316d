// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// Brings a file, or the names in a folder, to the disk; blocks until then. False on failure, with errno set.
/// Any thread.
bool syncPath(const QString& path);
