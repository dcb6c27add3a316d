// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/projectupdatelist.h"

#include <QStringList>

void ProjectUpdateList::setListOfProjectsToUpdate(const QString& projects, const QString& currentProject)
{
    QStringList names = projects.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (!currentProject.isEmpty())
        names.append(currentProject);
    QMap<QString, QString> listed;
    for (const QString& name : qAsConst(names))
        listed.insert(name, m_revisions.value(name));
    m_revisions = listed;
}

void ProjectUpdateList::setProjectsRev(const QString& projects, const QString& revisions)
{
    const QStringList names = projects.split(QLatin1Char(','));
    const QStringList values = revisions.split(QLatin1Char(','));
    for (int i = 0; i < qMin(names.size(), values.size()); ++i) {
        if (!names[i].isEmpty())
            setRevision(names[i], values[i]);
    }
}

QVariantList ProjectUpdateList::getListOfProjectsToUpdate() const
{
    QVariantList names;
    for (auto it = m_revisions.keyBegin(); it != m_revisions.keyEnd(); ++it)
        names.append(*it);
    return names;
}
