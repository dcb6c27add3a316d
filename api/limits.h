// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>

/// Bounds of the api folder: sizes read from outside, and times.
namespace limits {

/// Size of a document or other text file of a project.
constexpr qint64 textFileBytes = 64LL * 1024 * 1024;

/// Entries of a project archive.
constexpr int archiveEntries = 100'000;
/// Bytes that one byte of deflate's format can unpack to: 258 for two bits (RFC 1951).
constexpr quint64 deflateRatio = 1032;

/// Bytes that an import writes before it waits for the disk, which cannot be interrupted.
constexpr qint64 unsyncedBytes = 32LL * 1024 * 1024;

/// Longer side of a project's still, in px, and its quality as JPEG (0 to 100).
constexpr int stillSide = 960;
constexpr int stillQuality = 85;

/// How long changes of a document may wait until they are kept on disk.
constexpr std::chrono::milliseconds safetyCopyDelay{700};

/// How often the progress of work in the background is shown.
constexpr std::chrono::milliseconds progressInterval{100};

} // namespace limits
