// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/localnetwork.h"

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

CAPI* currentInstance = nullptr;

} // namespace

CAPI::CAPI(QQuickView* view, QObject* parent, const Deployment& deployment, WindowMode windowMode)
    : QObject(parent)
    , m_view(view)
    , m_windowMode(windowMode)
    , m_workspace(Workspace::defaultRoot())
    , m_leftovers(m_workspace)
    , m_imports(m_workspace.workDirectory())
    , m_folder(QCoreApplication::applicationDirPath())
    , m_projectName(m_settings.text(QStringLiteral("lastProject")))
    , m_editing(
          [this](const QString& text, const QString& fileName) { return m_folder.write(text, fileName); })
    , m_cloud(deployment, m_workspace, m_settings, m_imports, view)
    , m_localNetwork(std::make_unique<LocalNetwork>(*this, view, deployment))
{
    connect(&m_imports, &ImportQueue::runningChanged, this,
            [this](bool running) { emit onExtractFinishedChanged(!running); });
    passCloudSignalsOn();
    currentInstance = this;
}

CAPI::~CAPI()
{
    currentInstance = nullptr;
}

CAPI* CAPI::current()
{
    return currentInstance;
}

CAPI* CAPI::of(const QObject* object)
{
    const QQmlEngine* engine = qmlEngine(object);
    return engine ? engine->rootContext()->contextProperty(QStringLiteral("CAPI")).value<CAPI*>() : nullptr;
}

void CAPI::setIConnected(bool connected)
{
    m_iConnected = connected;
    emit iConnectedChanged(connected);
}

void CAPI::setBaseFolder(QString folder)
{
    m_projectsToUpdate.remove(m_projectName);
    m_projectName = folder;
    m_projectsToUpdate.setRevision(folder, QString());
    m_folder.set(m_workspace.workDirectory() + QLatin1Char('/') + folder);
}

QString CAPI::baseFolder()
{
    return m_folder.path();
}

QString CAPI::getBaseFolder()
{
    return m_folder.absolutePath();
}

QString CAPI::getBaseProjectName()
{
    return m_folder.name();
}

QString CAPI::getWorkDirectory()
{
    return m_workspace.workDirectory();
}

bool CAPI::getBSetting(QString name)
{
    return m_settings.boolean(name);
}

QString CAPI::getSSetting(QString name)
{
    return m_settings.text(name);
}

int CAPI::getISetting(QString name)
{
    return m_settings.integer(name);
}

void CAPI::setSetting(QString name, QVariant value)
{
    m_settings.set(name, value);
}
