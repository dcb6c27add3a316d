// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Puts `bytes` in place of the file `path`, whole or not at all, also across a crash or power loss.
///
/// The bytes go to a hidden file beside the target, which is synced and renamed. A link is followed, an
/// existing file's permissions are kept. The folder must exist. On failure (logged) the old file is untouched
/// and nothing is left beside it. Any thread.
bool writeFileAtomically(const QString& path, const QByteArray& bytes);

/// Puts the finished file `from` in place of `to`, on the same file system: syncs it, renames it over `to`,
/// syncs the folder. On failure (logged) both files are as they were. Any thread.
bool replaceFile(const QString& from, const QString& to);

/// Path of a hidden file beside `path` that no other call in this process returns. Not created.
QString temporaryPathBeside(const QString& path);
