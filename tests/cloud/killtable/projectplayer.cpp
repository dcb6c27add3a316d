// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// projectplayer ROOT [DEPLOYMENT REVISION]: a start of the program with the workspace ROOT, as far as files
// are concerned, and a pull of the project "Shop" of the account a@b.c to REVISION. Meant to be killed.

#include "api/leftovers.h"
#include "api/workspace.h"
#include "cloud/sync/sharedfolderthread.h"

#include <QCoreApplication>

namespace {

// A player without a picture.
class Player : public QObject, public CloudHost
{
public:
    explicit Player(const Workspace& workspace)
        : m_workspace(workspace)
    {
    }

    QString workDirectory() const override { return m_workspace.workDirectory(); }
    QString shareFolder() const override { return m_workspace.shareFolder(); }
    QString account() const override { return QStringLiteral("a@b.c"); }
    bool isConnected() const override { return true; }
    bool isDocument(const QString& text) const override { return !text.isEmpty(); }
    void stopPlayer(const std::function<void()>& done) override { QMetaObject::invokeMethod(this, done); }

private:
    const Workspace& m_workspace;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const Workspace workspace(arguments.value(1));
    Leftovers leftovers(workspace);
    Player player(workspace);
    SharedFolderThread worker(Deployment::find(arguments.value(2)), player);
    bool done = arguments.size() < 3;
    QObject::connect(&worker, &SharedFolderThread::projectUpdated, &player, [&done] { done = true; });
    if (!done)
        worker.waitFor(worker.pull(QStringLiteral("Shop"), arguments.value(3)));
    QCoreApplication::processEvents();
    leftovers.wait();
    return done ? 0 : 1;
}
