// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/leftovers.h"

#include "api/logging.h"
#include "api/staging.h"
#include "api/workspace.h"
#include "base/atomicfile.h"

#include <QDir>
#include <QtConcurrent>

namespace {

// Between the two steps of an exchange the older project is missing from its place.
void putBack(const QString& displaced, const QString& work)
{
    for (const QString& name : QDir(displaced).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (!QFileInfo::exists(work + QLatin1Char('/') + name) &&
            QDir(displaced).rename(name, work + QLatin1Char('/') + name))
            qCInfo(lcApi) << "Put back the project" << name;
    }
}

} // namespace

Leftovers::Leftovers(const Workspace& workspace)
    : m_imports(StagingFolder::abandoned(workspace.workDirectory(), staging::importPrefix))
    , m_exports(StagingFolder::abandoned(workspace.workDirectory(), staging::exportPrefix))
{
    for (const StagingFolder& import : m_imports)
        putBack(staging::displacedFolder(import), workspace.workDirectory());
    m_removal = QtConcurrent::run([this, root = workspace.root()] { remove(root); });
}

Leftovers::~Leftovers()
{
    m_control.cancel();
    wait();
    for (StagingFolder& import : m_imports)
        import.leave();
}

void Leftovers::remove(const QString& root)
{
    for (const StagingFolder& exported : m_exports)
        removeAbandonedFile(QFile::symLinkTarget(staging::unfinishedLink(exported)));
    m_exports.clear();
    while (!m_imports.empty() && !m_control.isCancelled())
        m_imports.pop_back();
    removeAbandonedFiles(root, m_control);
}
