// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/localnetwork.h"
#include "api/logging.h"
#include "cloud/dirmap.h"
#include "cloud/realtime/firebasesubscriber.h"

#include <QBuffer>
#include <QQuickView>

namespace {

const QString root = QStringLiteral("NUVEX/");
const QString users = QStringLiteral("NUVEX/users/");

QString withSlash(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

QVariantList toFolderMaps(const QStringList& names)
{
    QVariantList maps;
    for (const QString& name : names)
        maps.append(QVariantMap{{QStringLiteral("folder"), name}});
    return maps;
}

// As the database's keys have it, of which the dashboard makes the name again: key() of SharedVars.js.
QString asKey(const QString& player)
{
    static const QString reserved = QStringLiteral("$#[]/\x7f");
    QString key;
    for (const QChar character : player) {
        const bool isPlain = character >= QLatin1Char(' ') && !reserved.contains(character);
        key += isPlain ? QString(character)
                       : QStringLiteral("%%1").arg(character.unicode(), 2, 16, QLatin1Char('0')).toUpper();
    }
    return key;
}

QByteArray jpegOf(const QImage& image, int size)
{
    constexpr int quality = 87;
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation).save(&buffer, "JPG", quality);
    return jpeg;
}

} // namespace

// What the worker and the storage client tell, in the words of this interface.
void CAPI::passCloudSignalsOn()
{
    const SharedFolderThread* worker = &m_cloud.worker();
    connect(worker, &SharedFolderThread::startUpdating, this, &CAPI::startUpdating);
    connect(worker, &SharedFolderThread::projectUpdated, this, &CAPI::projectUpdated);
    connect(worker, &SharedFolderThread::reloadPlayer, this, &CAPI::reloadPlayer);
    connect(worker, &SharedFolderThread::progressed, this, [this](int, const SyncProgress& progress) {
        if (progress.bytes == 0)
            emit(this->*(progress.uploading ? &CAPI::uploadingFile : &CAPI::downloadingFile))(progress.file);
        else
            emit(this->*(progress.uploading ? &CAPI::uploadProgress : &CAPI::downloadProgress))(
                progress.bytes, progress.bytesTotal);
    });
    connect(&m_cloud.storage(), &GCloud::uploadProgress, this, &CAPI::uploadProgress);
    connect(&m_cloud.storage(), &GCloud::downloadProgress, this, &CAPI::downloadProgress);
}

QVariantList CAPI::getDemosList(QString demoFolder)
{
    return toFolderMaps(m_cloud.storage().listFiles(root + withSlash(demoFolder), QStringLiteral("zip")));
}

void CAPI::downloadDemoProject(QString cloudDir, QString cloudFile)
{
    const QString archive = m_cloud.store().pathOf(cloudFile);
    if (archive.isEmpty() || !m_cloud.storage().downloadFile(cloudDir + cloudFile, archive))
        return;
    if (extractToWorkDirectory(archive).isEmpty())
        m_cloud.store().remove(archive);
}

bool CAPI::updateApp(int)
{
    return false;
}

void CAPI::doOneShareUp(QString folder)
{
    const int job = m_cloud.worker().push(folder, SharedFolderThread::Conflicts::LocalWins);
    m_cloud.worker().waitFor(job);
}

void CAPI::doOneShareDown(QString folder, QString cloudrevision)
{
    m_cloud.worker().pull(folder, cloudrevision);
}

QVariantList CAPI::getCloudProjectList(QString folder)
{
    return toFolderMaps(m_cloud.storage().listFolders(users + withSlash(folder)));
}

void CAPI::downloadProject(QString m_menuFolder)
{
    const int job = m_cloud.worker().download(m_menuFolder);
    m_cloud.worker().waitFor(job);
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

// A QObject without a parent that a method returns is the engine's.
QObject* CAPI::newFirebaseSubscriber()
{
    return m_cloud.deployment().isSet() ? std::make_unique<FirebaseSubscriber>().release() : nullptr;
}

void CAPI::startLocalServer()
{
    m_localNetwork->start();
}

bool CAPI::getFile(QString url, QString destDir, QString destName)
{
    return m_folder.download(url, destDir, destName);
}

void CAPI::uploadScreenshot(int size)
{
    if (m_cloud.account().isEmpty()) {
        qCWarning(lcApi) << "Nobody is signed in, so there is no place for a screenshot";
        return;
    }
    const QImage window = m_view ? m_view->grabWindow() : QImage();
    if (window.isNull()) {
        qCWarning(lcApi) << "There is no window to take a screenshot of";
        return;
    }
    const QString object = users + m_cloud.account() + QStringLiteral("/screenshots/") +
                           asKey(m_settings.text(QStringLiteral("playerUID"))) + QStringLiteral(".jpg");
    m_cloud.storage().uploadData(jpegOf(window, size), object);
}

void CAPI::uploadFile(QString localFileName, QString cloudFileName)
{
    m_cloud.storage().uploadFile(m_folder.resolved(localFileName), cloudFileName);
}

QString CAPI::getDownloadUrl(QString cloudFile)
{
    return m_cloud.storage().signedUrl(cloudFile);
}

void CAPI::setConnectedPlayerName(QString player)
{
    m_localNetwork->exchangeAtRandom(player);
}
