// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/storefolder.h"

#include "api/logging.h"
#include "api/workspace.h"
#include "base/safepath.h"

#include <QFile>

namespace {

const QString prefix = QStringLiteral(".store-");

} // namespace

StoreFolder::StoreFolder(const Workspace& workspace)
    : m_root(workspace.root())
{
    StagingFolder::abandoned(m_root, prefix); // which remove themselves
}

QString StoreFolder::pathOf(const QString& name)
{
    Outcome made = Outcome::success();
    if (!pathFault(name).isEmpty() || name.contains(QLatin1Char('/')))
        made = Outcome::failure(QStringLiteral("not the name of an archive"));
    else if (m_folder.path().isEmpty())
        made = m_folder.create(m_root, prefix);
    if (made)
        return m_folder.path() + QLatin1Char('/') + name;
    qCWarning(lcApi) << "Cannot download" << name << "-" << made.reason();
    return {};
}

void StoreFolder::remove(const QString& path)
{
    if (!m_folder.path().isEmpty() && path.startsWith(m_folder.path() + QLatin1Char('/')))
        QFile::remove(path);
}
