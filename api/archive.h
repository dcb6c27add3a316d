// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Project archives: ZIP files with UTF-8 names. Failures are logged. All functions are reentrant.

/// What an archive calls its project: the name of its first entry, without a final "/". Empty when the
/// archive cannot be read, has no entries or must not be unpacked (see archiveFault()).
QString archiveProjectName(const QString& zipFile);

/// Unpacks an archive into `folder`, which must exist, over what is there.
///
/// Nothing is written before the archive's directory has passed archiveFault() and fits the free space. The
/// entries are unpacked in a hidden folder within `folder` and moved into place when all are there and sound:
/// a damaged archive, a full disk or an entry that would replace a folder by a file changes nothing. Existing
/// files are replaced; links in `folder` are never followed. Permissions are not taken over. Blocks; meant
/// for a pool thread.
bool extractArchive(const QString& zipFile, const QString& folder);

/// Packs what lies in `folder` into an archive, which appears whole or not at all in place of an older one.
///
/// Entry names are relative to `folder`; each sub-folder has an entry of its own, ending in "/". Hidden
/// files, links and the archive itself are left out. Files that are compressed already, by their suffix, are
/// stored as they are. Blocks.
bool packArchive(const QString& zipFile, const QString& folder);
