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
/// What is kept of a body that is being downloaded until it is written.
constexpr qint64 readBufferBytes = 1024LL * 1024;

} // namespace limits
