// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace limits {

/// Size at which the log goes on in a new file.
constexpr qint64 logFileBytes = qint64(8) * 1024 * 1024;

} // namespace limits
