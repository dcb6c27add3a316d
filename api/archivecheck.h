// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

#include <quazip/quazipfileinfo.h>

/// Why an archive of `archiveBytes` with these directory entries must not be unpacked; empty when it may.
///
/// Refused are entries that lead out of the target (absolute, with "..", "." or empty parts, backslashes,
/// drive letters, control characters), names that are too long or too deep, anything but files and folders,
/// names that occur twice (also when only the case differs) or that need a file as a folder, encryption,
/// methods other than stored and deflated, and sizes that the archive cannot hold. Whether what it unpacks to
/// fits the disk is not looked at.
QString archiveFault(const QVector<QuaZipFileInfo64>& entries, qint64 archiveBytes);
