// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace limits {

/// Longest text that is taken for a document, in UTF-16 code units. The editor text of a document of this
/// length that is nothing but objects still fits a QString.
constexpr int maxSourceLength = 16 * 1024 * 1024;

/// Most objects within one another.
constexpr int maxDepth = 1364;

/// States that the history keeps while a file is edited, and before the first file is opened.
constexpr int historyCapacity = 20;
constexpr int initialHistoryCapacity = 1;

/// Most files that are looked through for one that loads itself.
constexpr int maxFollowedFiles = 200;

/// Every so many saved editing states one is written to disk.
constexpr int statesPerSafetyCopy = 10;

} // namespace limits
