// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The folders that the program keeps its projects in, and the list of projects. GUI thread.
///
/// Below the root lie "Work", with one folder a project, "ShareFolder", the area of shared projects, and
/// "Stills", with one picture a project.
class Workspace
{
public:
    /// A workspace below `root`; makes its folders. Failures are logged and otherwise left to later use.
    explicit Workspace(const QString& root);

    /// Where the workspace lies on this machine: below the application's local data, or, on a platform
    /// without such a place, the program's own folder.
    static QString defaultRoot();

    QString root() const { return m_root; }
    /// The folder that holds all projects.
    QString workDirectory() const;
    /// The area of shared projects.
    QString shareFolder() const;
    /// The file that holds a still picture of the project, made when it was last seen playing or being
    /// edited; empty when `name` cannot name a project. The file need not exist.
    QString stillOf(const QString& name) const;

    /// Names of the projects, in file-system order; also remembered as the cached list.
    QStringList listProjects();
    /// The list as of the last listProjects(), with imports added and removals taken out since.
    QStringList cachedProjects() const { return m_projects; }
    /// Adds a project that is being imported to the cached list, unless it is there.
    void addToCache(const QString& name);

    /// Makes an empty project folder; false when it exists or cannot be made.
    bool create(const QString& name);
    /// Deletes a project folder with everything in it; of a project that is a link, the link. Its name leaves
    /// the cached list and its still the disk in any case.
    bool remove(const QString& name);
    /// Renames a project folder, and its still with it.
    bool rename(const QString& oldName, const QString& newName);

private:
    QString m_root;
    QStringList m_projects;
};
