// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/workspace.h"

#include "api/logging.h"
#include "base/safepath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

void makeFolder(const QString& path)
{
    if (!QDir().mkpath(path))
        qCWarning(lcApi) << "The workspace folder" << path << "cannot be made";
}

QString stillsFolder(const QString& root)
{
    return root + QStringLiteral("/Stills");
}

// An empty name or one with a path in it would reach beyond one project.
bool isFolderName(const QString& name)
{
    const bool plain = pathFault(name).isEmpty() && !name.contains(QLatin1Char('/'));
    if (!plain)
        qCWarning(lcApi) << "Not the name of a project:" << name;
    return plain;
}

// A project that is a link into another place stays there: it is the link that goes.
bool removeFolder(const QString& path)
{
    return QFileInfo(path).isSymLink() ? QFile::remove(path) : QDir(path).removeRecursively();
}

} // namespace

Workspace::Workspace(const QString& root)
    : m_root(root)
{
    makeFolder(workDirectory());
    makeFolder(shareFolder());
    makeFolder(stillsFolder(m_root));
}

QString Workspace::defaultRoot()
{
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::AppLocalDataLocation);
    return places.isEmpty() ? QCoreApplication::applicationDirPath()
                            : places.constFirst() + QStringLiteral("/PlayerQML");
}

QString Workspace::workDirectory() const
{
    return m_root + QStringLiteral("/Work");
}

QString Workspace::shareFolder() const
{
    return m_root + QStringLiteral("/ShareFolder");
}

QString Workspace::stillOf(const QString& name) const
{
    return isFolderName(name) ? stillsFolder(m_root) + QLatin1Char('/') + name + QStringLiteral(".jpg")
                              : QString();
}

QStringList Workspace::listProjects()
{
    m_projects = QDir(workDirectory()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    return m_projects;
}

void Workspace::addToCache(const QString& name)
{
    if (!m_projects.contains(name))
        m_projects.append(name);
}

bool Workspace::create(const QString& name)
{
    return isFolderName(name) && QDir(workDirectory()).mkdir(name);
}

bool Workspace::remove(const QString& name)
{
    m_projects.removeOne(name);
    if (!isFolderName(name))
        return false;
    QFile::remove(stillOf(name));
    return removeFolder(workDirectory() + QLatin1Char('/') + name);
}

bool Workspace::rename(const QString& oldName, const QString& newName)
{
    if (!isFolderName(oldName) || !isFolderName(newName) || !QDir(workDirectory()).rename(oldName, newName))
        return false;
    QFile::rename(stillOf(oldName), stillOf(newName));
    return true;
}
