// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/programhost.h"

#include "api/platform.h"
#include "api/settings.h"
#include "api/workspace.h"
#include "cloud/deployment.h"
#include "qmldoc/syntaxtree.h"

#include <QHostAddress>
#include <QUrl>

namespace {

bool isThisComputer(const QString& host)
{
    const QString name = QUrl(host).host();
    return name == QLatin1String("localhost") || QHostAddress(name).isLoopback();
}

} // namespace

ProgramHost::ProgramHost(const Workspace& workspace, const Settings& settings, QQuickView* view,
                         const Deployment& deployment)
    : m_workDirectory(workspace.workDirectory())
    , m_shareFolder(workspace.shareFolder())
    , m_settings(settings)
    , m_player(view)
    , m_cloudIsHere(isThisComputer(deployment.hosts.storage))
{
}

QString ProgramHost::account() const
{
    return m_settings.text(QStringLiteral("userEmail"));
}

bool ProgramHost::isConnected() const
{
    return m_cloudIsHere || platform::connectedToNetwork();
}

bool ProgramHost::isDocument(const QString& text) const
{
    return SyntaxTree(text).program() != nullptr;
}

void ProgramHost::stopPlayer(const std::function<void()>& done)
{
    QMetaObject::invokeMethod(
        this,
        [this, done] {
            m_player.unload();
            done();
        },
        Qt::QueuedConnection);
}
