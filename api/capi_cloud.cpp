// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/localnetwork.h"
#include "api/logging.h"
#include "cloud/dirmap.h"

namespace {

void notAvailableYet(const char* member)
{
    qCWarning(lcApi) << member << "not available yet";
}

} // namespace

QVariantList CAPI::getDemosList(QString)
{
    notAvailableYet(__func__);
    return {};
}

void CAPI::downloadDemoProject(QString, QString)
{
    notAvailableYet(__func__);
}

bool CAPI::updateApp(int)
{
    return false;
}

void CAPI::doOneShareUp(QString)
{
    notAvailableYet(__func__);
}

void CAPI::doOneShareDown(QString, QString)
{
    notAvailableYet(__func__);
}

QVariantList CAPI::getCloudProjectList(QString)
{
    notAvailableYet(__func__);
    return {};
}

void CAPI::downloadProject(QString)
{
    notAvailableYet(__func__);
}

QStringList CAPI::getProjectList()
{
    return m_workspace.listProjects();
}

QStringList CAPI::getQMLFileList()
{
    return m_folder.sources();
}

QStringList CAPI::getFonts(bool load)
{
    return m_folder.fonts(load);
}

void CAPI::setListOfProjectsToUpdate(QString s)
{
    m_projectsToUpdate.setListOfProjectsToUpdate(s, m_projectName);
}

void CAPI::setProjectsRev(QString projects, QString revisions)
{
    m_projectsToUpdate.setProjectsRev(projects, revisions);
}

QVariantList CAPI::getListOfProjectsToUpdate()
{
    return m_projectsToUpdate.getListOfProjectsToUpdate();
}

QVariantMap CAPI::dirmap()
{
    return toVariantMap(readDirmap(m_folder.absolutePath()).value_or(Dirmap()));
}

bool CAPI::updateDirmapFile(QString listf)
{
    return removeListedFiles(m_folder.absolutePath(), listf);
}

bool CAPI::updateDirmapFile(QVariantMap dirmap)
{
    return writeDirmap(m_folder.absolutePath(), fromVariantMap(dirmap));
}

QObject* CAPI::newFirebaseSubscriber()
{
    notAvailableYet(__func__);
    return nullptr;
}

void CAPI::startLocalServer()
{
    m_localNetwork->start();
}

bool CAPI::getFile(QString url, QString destDir, QString destName)
{
    return m_folder.download(url, destDir, destName);
}

void CAPI::uploadScreenshot(int)
{
    notAvailableYet(__func__);
}

void CAPI::uploadFile(QString, QString)
{
    notAvailableYet(__func__);
}

QString CAPI::getDownloadUrl(QString)
{
    notAvailableYet(__func__);
    return {};
}

void CAPI::setConnectedPlayerName(QString player)
{
    m_localNetwork->exchangeAtRandom(player);
}
