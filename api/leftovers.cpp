// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/leftovers.h"

#include "api/staging.h"
#include "api/workspace.h"
#include "base/atomicfile.h"

#include <QFile>
#include <QtConcurrent>

Leftovers::Leftovers(const Workspace& workspace)
    : m_root(workspace.root())
    , m_work(workspace.workDirectory())
    , m_imports(StagingFolder::abandoned(m_work, staging::importPrefix))
    , m_exports(StagingFolder::abandoned(m_work, staging::exportPrefix))
{
    for (const StagingFolder& import : m_imports)
        staging::putBackDisplaced(import, m_work);
    m_removal = QtConcurrent::run([this] { remove(); });
}

Leftovers::~Leftovers()
{
    m_control.abandon();
    wait();
}

void Leftovers::remove()
{
    for (StagingFolder& exporting : m_exports) {
        removeAbandonedFile(QFile::symLinkTarget(staging::unfinishedLink(exporting)));
        exporting.remove(m_control);
    }
    for (StagingFolder& import : m_imports)
        staging::tidyUp(import, m_work, m_control);
    removeAbandonedFiles(m_root, m_control);
}
