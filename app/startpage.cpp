// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/startpage.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString actionName(Options::Start start)
{
    switch (start) {
    case Options::Start::Play:
        return QStringLiteral("play");
    case Options::Start::Edit:
        return QStringLiteral("edit");
    case Options::Start::Gallery:
        return QStringLiteral("gallery");
    case Options::Start::BySettings:
        break;
    }
    return {};
}

// A project of the workspace goes before a folder of the same name that happens to lie in the current one.
QString projectName(const QString& project, const QDir& work)
{
    const bool inWorkspace = !project.isEmpty() && QDir::isRelativePath(project) && work.exists(project);
    return inWorkspace || !QFileInfo(project).isDir() ? project
                                                      : work.relativeFilePath(QDir(project).absolutePath());
}

} // namespace

QVariantMap startPage(const Options& options, const QString& workDirectory)
{
    return {{QStringLiteral("startAction"), actionName(options.start)},
            {QStringLiteral("startProject"), projectName(options.project, QDir(workDirectory))}};
}
