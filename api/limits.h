// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>

/// Bounds of the api folder: sizes read from outside, and waits.
namespace limits {

/// Size of a document or other text file of a project.
constexpr qint64 textFileBytes = 64LL * 1024 * 1024;

/// Entries of a project archive.
constexpr int archiveEntries = 100'000;
/// An archive, or an entry of it, that unpacks to more than this must not grow more than by the ratio.
constexpr qint64 archiveRatioFreeBytes = 1024LL * 1024;
constexpr qint64 archiveRatio = 200;
/// Age at which a folder that an interrupted import left is deleted.
constexpr std::chrono::hours abandonedImportAge{24};

} // namespace limits
