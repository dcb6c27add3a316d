// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// Why `path`, which comes from outside, cannot name something inside a folder; empty when it can.
///
/// A safe path is relative, has "/" between its parts, and no part that is empty, "." or ".."; it holds no
/// backslash, drive letter or control character, and keeps the bounds of limits.h. The file system is not
/// looked at. Reentrant.
QString pathFault(const QString& path);

/// What pathInside() does with a last part that is a link.
enum class LastLink {
    Follow, ///< it must not lead out either: for reading and for writing in place
    Keep,   ///< it is not looked at: for removing and replacing the entry itself
};

/// The absolute path of `path` in the folder `root`, when it is a safe one and no link on the way leads out
/// of `root`. Neither the path nor the folders on the way need exist; `root` must. Reentrant.
std::optional<QString> pathInside(const QString& root, const QString& path,
                                  LastLink lastLink = LastLink::Follow);
