// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>

/// Bounds of the cloud folder: sizes read from outside, and waits.
namespace limits {

/// Size of a directory map.
constexpr qint64 dirmapBytes = 16LL * 1024 * 1024;
/// Lines of a directory map.
constexpr int dirmapLines = 200'000;
/// Bytes of one line of a directory map.
constexpr int dirmapLineBytes = 4096;

/// Size of a deployment file.
constexpr qint64 deploymentBytes = 1024LL * 1024;

/// Between one and two of these without any progress and a transfer is given up.
constexpr std::chrono::milliseconds transferStall{8000};
/// Body of the answer to a POST, which is kept in memory.
constexpr qint64 answerBytes = 16LL * 1024 * 1024;
/// How long a transfer's thread may take to end before that is worth a line in the log.
constexpr std::chrono::milliseconds threadEnd{200};

} // namespace limits
