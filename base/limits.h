// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

/// Bounds of the base folder: sizes read from outside.
namespace limits {

/// Bytes, in UTF-8, of a relative path that comes from outside, its parts, and the bytes of one part (the
/// file system's own bound).
constexpr int pathBytes = 1024;
constexpr int pathParts = 64;
constexpr int pathPartBytes = 255;

} // namespace limits
