// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>

namespace limits {

/// Size at which the log goes on in a new file.
constexpr qint64 logFileBytes = qint64(8) * 1024 * 1024;

/// UTF-16 units of one message, whatever it is about.
constexpr int messageLength = 16 * 1024;

/// Of one answer that a document or the shell fetches: a large picture fits.
constexpr qint64 fetchedBytes = qint64(64) * 1024 * 1024;

/// How long a script may keep the event loop from going on.
constexpr std::chrono::seconds scriptDeadline{20};

/// How long a start waits for the X server, and between two looks.
constexpr std::chrono::seconds displayWait{10};
constexpr std::chrono::milliseconds displayRetry{50};

} // namespace limits
