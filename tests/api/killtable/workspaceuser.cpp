// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// workspaceuser ROOT [import ARCHIVE... | export ARCHIVE PROJECT | write PROJECT FILE TEXT]: a start of the
// program with the workspace ROOT, as far as files are concerned, and one thing done in it. Meant to be
// killed.

#include "api/archivepack.h"
#include "api/importqueue.h"
#include "api/leftovers.h"
#include "api/projectfolder.h"
#include "api/workspace.h"

#include <QCoreApplication>

namespace {

bool importAll(const Workspace& workspace, const QStringList& archives)
{
    ImportQueue queue(workspace.workDirectory());
    bool succeeded = true;
    QObject::connect(&queue, &ImportQueue::finished, [&](const QString&, const QString& error) {
        succeeded = succeeded && error.isEmpty();
        if (!queue.isRunning())
            QCoreApplication::exit(succeeded ? 0 : 1);
    });
    for (const QString& archive : archives)
        queue.start(archive);
    return QCoreApplication::exec() == 0;
}

bool act(const Workspace& workspace, const QString& action, const QStringList& arguments)
{
    const QString work = workspace.workDirectory() + QLatin1Char('/');
    JobControl control;
    if (action == QLatin1String("import"))
        return importAll(workspace, arguments);
    if (action == QLatin1String("export"))
        return bool(packArchive(arguments.value(0), work + arguments.value(1), control));
    if (action == QLatin1String("write"))
        return ProjectFolder(work + arguments.value(0)).write(arguments.value(2), arguments.value(1));
    return action.isEmpty();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const Workspace workspace(arguments.value(1));
    Leftovers leftovers(workspace);
    const bool done = act(workspace, arguments.value(2), arguments.mid(3));
    leftovers.wait();
    return done ? 0 : 1;
}
