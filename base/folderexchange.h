// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QString>

/// Puts the folder `from` in place of the folder `to`, on one file system. The old folder is at `from` or at
/// `aside` afterwards. After a failure everything is as it was.
///
/// Where the file system can exchange two names (renameat2(2)), that is one step. Where it cannot, there is
/// a moment in which `to` is missing and its folder is at `aside`, which nothing may be at before: whoever
/// starts after a crash finds it there. Any thread.
Outcome replaceFolder(const QString& from, const QString& to, const QString& aside);
