// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QStringList>

class JobControl;

/// How an import ended.
struct ImportResult
{
    Outcome outcome = Outcome::success();
    QStringList projects; ///< the folders of the work folder that the archive has brought, whole
};

/// Unpacks an archive into the folder `work` of all projects.
///
/// A folder at the archive's top is a project. It is built whole in a hidden folder within `work`, from the
/// archive and from what the older project of that name has besides, brought to the disk and exchanged with
/// the older one in one step: at each moment the one or the other is there. Files at the archive's top are
/// renamed into place one by one. Nothing is written before the archive's directory has been judged and fits
/// the free space; an archive that is damaged, a full disk, a file where a folder is to go or the other way
/// round, a link in the way: after any failure before the exchanges nothing has changed. A failure is logged.
/// Counts bytes. Blocks; meant for a pool thread.
///
/// With `folder`, a plain name, an archive that holds a project without its folder becomes the project of
/// that name: one that has a main.qml at its top, or files there and a main.qml in none of its folders.
ImportResult importArchive(const QString& zipFile, const QString& work, JobControl& control,
                           const QString& folder = {});
