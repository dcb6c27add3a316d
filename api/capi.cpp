// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/archive.h"
#include "api/logging.h"
#include "api/platform.h"
#include "cloud/dirmap.h"
#include "qmldoc/itemprototype.h"

#include <QCoreApplication>
#include <QFile>
#include <QQmlEngine>
#include <QQuickView>
#include <QSysInfo>
#include <QThreadPool>
#include <QtConcurrent>

namespace {

CAPI* currentInstance = nullptr;

const QString editorFrame = QStringLiteral(":/Nuvex/PlayerQML/Editor.qml");

void notAvailableYet(const char* member)
{
    qCWarning(lcApi) << member << "not available yet";
}

} // namespace

CAPI::CAPI(QQuickView* view, QObject* parent, WindowMode windowMode)
    : QObject(parent)
    , m_view(view)
    , m_windowMode(windowMode)
    , m_workspace(Workspace::defaultRoot())
    , m_folder(QCoreApplication::applicationDirPath())
    , m_projectName(m_settings.text(QStringLiteral("lastProject")))
    , m_editing(
          [this](const QString& text, const QString& fileName) { return m_folder.write(text, fileName); })
{
    currentInstance = this;
}

CAPI::~CAPI()
{
    QThreadPool::globalInstance()->waitForDone(); // an import reports back to this object
    currentInstance = nullptr;
}

CAPI* CAPI::current()
{
    return currentInstance;
}

void CAPI::setIConnected(bool connected)
{
    m_iConnected = connected;
    emit iConnectedChanged(connected);
}

// --- the current project, settings ------------------------------------------------------------------------

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

void CAPI::setConnectedPlayerName(QString)
{
    notAvailableYet(__func__);
}

// --- files and projects -----------------------------------------------------------------------------------

bool CAPI::copyFile(QString src, QString dest)
{
    return m_folder.copy(src, dest);
}

QString CAPI::copyFileToDir(QString src, QString destDir)
{
    return m_folder.copyToDir(src, destDir);
}

bool CAPI::writeToFile(QString txt, QString fileName)
{
    return m_folder.write(txt, fileName);
}

bool CAPI::appendToFile(QString txt, QString fileName)
{
    return m_folder.append(txt, fileName);
}

bool CAPI::renameFile(QString filePath, QString newName)
{
    return m_folder.rename(filePath, newName);
}

bool CAPI::removeFile(QString filePath)
{
    return m_folder.remove(filePath);
}

bool CAPI::createProject(QString name)
{
    return m_workspace.create(name);
}

bool CAPI::removeProject(QString pName)
{
    return m_workspace.remove(pName);
}

bool CAPI::fileExist(QString filePath)
{
    return m_folder.exists(filePath);
}

QString CAPI::readTextFile(QString filePath)
{
    return m_folder.read(filePath);
}

QString CAPI::resolveUrl(QString path)
{
    return m_folder.resolvedUrl(path);
}

bool CAPI::renameDir(QString oldName, QString newName)
{
    return m_workspace.rename(oldName, newName);
}

// --- archives ---------------------------------------------------------------------------------------------

QString CAPI::extractToWorkDirectory(QString zipFile)
{
    const QString archive = m_folder.resolved(zipFile);
    QString name = archiveProjectName(archive);
    if (name.isEmpty())
        return name;
    m_workspace.addToCache(name);
    QtConcurrent::run([this, archive, work = m_workspace.workDirectory()] {
        setExtractFinished(false);
        extractArchive(archive, work);
        setExtractFinished(true);
    });
    return name;
}

void CAPI::generateZipFile(QString zipFile, QString folder)
{
    setGenerateZipFinished(false);
    packArchive(m_folder.resolved(zipFile), m_workspace.workDirectory() + QLatin1Char('/') + folder);
    setGenerateZipFinished(true);
}

void CAPI::setExtractFinished(bool finished)
{
    if (m_extractFinished.exchange(finished) != finished || finished)
        emit onExtractFinishedChanged(finished);
}

void CAPI::setGenerateZipFinished(bool finished)
{
    if (m_generateZipFinished == finished && !finished)
        return;
    m_generateZipFinished = finished;
    emit onGenerateZipFinished(finished);
}

// --- the document being edited ----------------------------------------------------------------------------

void CAPI::readSourceCode(QString filePath)
{
    m_editing.begin(m_folder.read(filePath));
    emitEditingState();
}

void CAPI::setSourceCode(QString sourceCode)
{
    m_editing.setSource(sourceCode);
}

void CAPI::trimComponentCache()
{
    if (m_view)
        m_view->engine()->trimComponentCache();
}

void CAPI::clearComponentCache()
{
    if (m_view)
        m_view->engine()->clearComponentCache();
}

QString CAPI::generateEditor(QString sc, int initialElement)
{
    return m_editing.generateEditor(sc, initialElement);
}

void CAPI::createEditorFile()
{
    if (QFile::exists(editorFrame))
        m_folder.write(m_folder.read(editorFrame), editorVersion());
}

QString CAPI::editedSourceCode()
{
    return m_editing.source();
}

QString CAPI::sourceCode(int beg, int end)
{
    return m_editing.source(beg, end);
}

QVariantList CAPI::getMap()
{
    return m_editing.getMap();
}

QVariantList CAPI::parseAndGetMap(QString sc)
{
    return EditingSession::parseAndGetMap(sc);
}

void CAPI::replaceSourceCode(int beg, int end, QString sc)
{
    m_editing.replace(beg, end, sc);
}

QString CAPI::editorVersion()
{
    return EditingSession::editorVersion();
}

QString CAPI::getItemPrototype(QString filePath)
{
    return itemPrototype(m_folder.read(filePath));
}

int CAPI::posInSourceCode(QString s, int from)
{
    return m_editing.position(s, from);
}

int CAPI::prevPosInSourceCode(QString s, int from)
{
    return m_editing.previousPosition(s, from);
}

QString CAPI::getForwardSource()
{
    QString source = m_editing.forward();
    emitEditingState();
    return source;
}

QString CAPI::getBackwardSource()
{
    QString source = m_editing.backward();
    emitEditingState();
    return source;
}

void CAPI::saveEditingState()
{
    m_editing.saveState();
    emitEditingState();
}

void CAPI::emitEditingState()
{
    emit newerEditingState(m_editing.isNewest());
    emit olderEditingState(m_editing.isOldest());
}

// --- cloud, updates, local network ------------------------------------------------------------------------

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
    notAvailableYet(__func__);
}

bool CAPI::getFile(QString url, QString destDir, QString destName)
{
    return m_folder.download(url, destDir, destName);
}

// --- platform ---------------------------------------------------------------------------------------------

void CAPI::setFullScreen(bool fullScreen)
{
    if (!m_view || m_windowMode == WindowMode::AlwaysWindowed)
        return;
    if (fullScreen)
        m_view->showFullScreen();
    else
        m_view->showNormal();
}

void CAPI::reStartApp()
{
    platform::restartProgram();
}

bool CAPI::isConnectedToNetwork()
{
    return platform::connectedToNetwork();
}

QString CAPI::getClipboard()
{
    return platform::clipboardText();
}

void CAPI::setClipboard(QString text)
{
    platform::setClipboardText(text);
}

QString CAPI::hostName()
{
    return platform::hostName();
}

bool CAPI::isDevice()
{
    return platform::isDevice(QSysInfo::productType());
}

bool CAPI::haveTouch()
{
    return platform::hasTouch();
}

void CAPI::setLog(QString) {}

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

void CAPI::installApp(QString) {}

void CAPI::setRunAtStartup(bool) {}

bool CAPI::getRunAtStartup()
{
    return false;
}
