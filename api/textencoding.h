// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Whether the file at `path` can be read as text: a regular file, no larger than a text file may be, that
/// this user may read. Any thread.
bool isTextFile(const QString& path);

/// The bytes of the file at `path`; none when it is no text file. Any thread.
QByteArray textBytes(const QString& path);

/// Whether the file at `path` can be written as text and loses nothing: it is UTF-8, missing, or no text
/// file, which is never shown as text. Any thread.
bool isUtf8File(const QString& path);

/// Keeps a file that is about to be overwritten with UTF-8 and is not UTF-8 itself as "NAME.orig" beside it,
/// or "NAME.orig2" and so on, and says so in the log. False when that is not possible.
bool keepOtherEncoding(const QString& path);
