// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/jobcontrol.h"
#include "base/stagingfolder.h"

#include <QFuture>

#include <vector>

class Workspace;

/// What killed runs of the program have left in a workspace, and its end: the folders and files of unfinished
/// imports, exports and writes. What another running instance is working on stays. GUI thread.
class Leftovers
{
public:
    /// Puts back what a killed import has moved aside, at once; removes the rest on a pool thread.
    explicit Leftovers(const Workspace& workspace);
    /// Stops; what remains is for the next start.
    ~Leftovers();
    Q_DISABLE_COPY(Leftovers)

    /// Blocks until all is removed.
    void wait() { m_removal.waitForFinished(); }

private:
    void remove();

    QString m_root;
    QString m_work;
    std::vector<StagingFolder> m_imports; // the pool thread's while it removes
    std::vector<StagingFolder> m_exports;
    JobControl m_control;
    QFuture<void> m_removal;
};
