// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QVariantList>

/// The projects to keep up to date, each with its last known cloud revision, ordered by name.
///
/// Not saved. Project lists and revision lists are comma-separated; empty names count as none. Not
/// thread-safe.
class ProjectUpdateList
{
public:
    /// Makes `projects` and the current project, unless its name is empty, the listed ones; a project that
    /// was listed before keeps its revision.
    void setListOfProjectsToUpdate(const QString& projects, const QString& currentProject);
    /// Sets the revisions of projects pairwise, as far as both lists reach; unlisted projects are added.
    void setProjectsRev(const QString& projects, const QString& revisions);
    /// Names of the listed projects.
    QVariantList getListOfProjectsToUpdate() const;

    /// Revision of a project; empty when none is known.
    QString revision(const QString& project) const { return m_revisions.value(project); }
    /// Sets the revision of a project, adding it if needed.
    void setRevision(const QString& project, const QString& revision) { m_revisions[project] = revision; }
    /// Takes a project off the list.
    void remove(const QString& project) { m_revisions.remove(project); }

private:
    QMap<QString, QString> m_revisions;
};
