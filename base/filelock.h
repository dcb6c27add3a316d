// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;

// Locks that tell what a running process is still writing from what a killed one left behind: the kernel
// frees them when their process ends, however it ends. Both take an open file or folder; closing it frees the
// lock. Where a file system knows no locks, nothing ever counts as left behind. Any thread.

/// Marks what this process has just made at `path`, a name of its own, as in use. False when somebody who
/// took it for left behind has removed it before: it has to be made again.
bool lockOwn(int fd, const QString& path);

/// Takes over what a killed process left. False when it is still in use.
bool lockAbandoned(int fd);
