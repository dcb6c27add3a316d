// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stagingfolder.h"

class Workspace;

/// The hidden folder of the workspace that archives from the store are downloaded into, to be imported from
/// there. It goes with this object; what a killed run has left goes when this object is made. GUI thread.
class StoreFolder
{
public:
    explicit StoreFolder(const Workspace& workspace);

    /// Where the archive `name` is to be downloaded to. Empty, logged, when the folder cannot be made or that
    /// is no file's name.
    QString pathOf(const QString& name);
    /// Removes an archive that has been imported, when it is one of this folder.
    void remove(const QString& path);

private:
    const QString m_root;
    StagingFolder m_folder;
};
