// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/cloudservices.h"
#include "api/importqueue.h"
#include "api/leftovers.h"
#include "api/projectfolder.h"
#include "api/settings.h"
#include "api/workspace.h"
#include "cloud/projectupdatelist.h"
#include "qmldoc/editingsession.h"

#include <QObject>
#include <QVariant>

#include <memory>

class LocalNetwork;
class QQuickView;

/// The one native service object of the QML side, published as the context property "CAPI".
///
/// A facade: each method hands its call to one of the small objects behind it. All members belong to the GUI
/// thread and run synchronously unless said otherwise. Nothing is thrown; a failure is false, an empty string
/// or list, or an unchanged state, with a line in the log. Paths are resolved by ProjectFolder.
///
/// The order of the members is the order of the meta-methods, which remote callers rely on.
class CAPI : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool extractFinished READ extractFinished NOTIFY onExtractFinishedChanged)
    Q_PROPERTY(bool generateZipFinished READ generateZipFinished NOTIFY onGenerateZipFinished)
    Q_PROPERTY(bool iConnected READ iConnected WRITE setIConnected NOTIFY iConnectedChanged)

public:
    /// How much of the screen setFullScreen() may take.
    enum class WindowMode {
        FullScreenAllowed, ///< the wall: full screen on request
        AlwaysWindowed,    ///< the desk: requests for full screen are ignored
    };

    /// Opens the settings, creates the workspace folders and writes first-run defaults; becomes current().
    /// Projects that were being pulled when the program last ended are whole then, old or new. `view` is not
    /// owned and must outlive this object; it may be null in tests without a window. `deployment` is the
    /// customer's cloud; one that is not set leaves the cloud's members without effect.
    CAPI(QQuickView* view, QObject* parent, const Deployment& deployment = {},
         WindowMode windowMode = WindowMode::FullScreenAllowed);
    ~CAPI() override;

    /// The instance of this run, for native workers; null before construction and after destruction.
    static CAPI* current();

    /// The instance that the QML engine of `object` knows by the name "CAPI"; null without one.
    static CAPI* of(const QObject* object);

    /// False while an archive is being imported.
    bool extractFinished() const { return !m_imports.isRunning(); }
    /// False while an archive is being written.
    bool generateZipFinished() const { return m_generateZipFinished; }
    /// Whether the last cloud heartbeat succeeded.
    bool iConnected() const { return m_iConnected; }
    /// Stores the value and emits iConnectedChanged every time, also when it did not change.
    void setIConnected(bool connected);

    /// The local network, for the QML types that show it.
    LocalNetwork& localNetwork() { return *m_localNetwork; }

    /// `path` as a local path, by the rule of ProjectFolder.
    QString resolvedPath(const QString& path) const { return m_folder.resolved(path); }
    /// The imports into this instance's work directory.
    ImportQueue& imports() { return m_imports; }
    /// This instance's part in the customer's cloud.
    CloudServices& cloud() { return m_cloud; }
    /// Where the projects lie.
    const Workspace& workspace() const { return m_workspace; }

signals:
    /// Imports have begun (false) or have all ended (true).
    void onExtractFinishedChanged(bool);
    /// Packing started (false) or ended (true).
    void onGenerateZipFinished(bool);
    /// iConnected was written.
    void iConnectedChanged(bool);
    /// The player page must load its project again.
    void reloadPlayer();
    /// A pull from the cloud has begun.
    void startUpdating();
    /// A pull has ended; the player now shows `localRevision`.
    void projectUpdated(QString localRevision);
    /// Bytes sent so far of the file being uploaded, and its size (-1 when unknown).
    void uploadProgress(qlonglong bytesReceived, qlonglong bytesTotal);
    /// Name of the file whose upload begins.
    void uploadingFile(QString fileString);
    /// Bytes received so far of the file being downloaded, and its size (-1 when unknown).
    void downloadProgress(qlonglong bytesReceived, qlonglong bytesTotal);
    /// Name of the file whose download begins.
    void downloadingFile(QString fileString);
    /// `ok`: the edited source is the newest recorded state, there is nothing to redo.
    void newerEditingState(bool ok);
    /// `ok`: the edited source is the oldest recorded state, there is nothing to undo.
    void olderEditingState(bool ok);
    /// A connection to the player `name` on the local network is up; there may be several to one player.
    void playerConnectionStarted(QString name);
    /// A connection to the player `name` has ended; empty when it never said its name.
    void playerConnectionFinished(QString name);

public:
    // --- the current project, settings --------------------------------------------------------------------

    /// Makes the project `folder` of the work directory current. The folder need not exist.
    Q_INVOKABLE void setBaseFolder(QString folder);
    /// Path of the current project folder as set.
    Q_INVOKABLE QString baseFolder();
    /// Absolute path of the current project folder.
    Q_INVOKABLE QString getBaseFolder();
    /// Last component of the current project folder's path.
    Q_INVOKABLE QString getBaseProjectName();
    /// Path of the folder that holds all projects.
    Q_INVOKABLE QString getWorkDirectory();
    /// Setting `name` as bool; false when missing.
    Q_INVOKABLE bool getBSetting(QString name);
    /// Setting `name` as string; empty when missing.
    Q_INVOKABLE QString getSSetting(QString name);
    /// Setting `name` as int; 0 when missing.
    Q_INVOKABLE int getISetting(QString name);
    /// Stores a setting at once.
    Q_INVOKABLE void setSetting(QString name, QVariant value);
    /// Exchanges the deployment's project, or the current one, with a connected player of the local network:
    /// sends or fetches by chance. Returns when that is over; events are processed meanwhile.
    Q_INVOKABLE void setConnectedPlayerName(QString);

    // --- files and projects -------------------------------------------------------------------------------

    /// Copies a file over `dest`; the same path twice is a success without a copy.
    Q_INVOKABLE bool copyFile(QString src, QString dest);
    /// Copies a file into a folder of the project; the new project-relative path, or "".
    Q_INVOKABLE QString copyFileToDir(QString src, QString destDir);
    /// Writes `txt` as UTF-8 in place of the file.
    Q_INVOKABLE bool writeToFile(QString txt, QString fileName);
    /// Appends `txt` and a line end.
    Q_INVOKABLE bool appendToFile(QString txt, QString fileName);
    /// Renames a file; a relative new name lands in the project folder.
    Q_INVOKABLE bool renameFile(QString filePath, QString newName);
    /// Removes a file.
    Q_INVOKABLE bool removeFile(QString filePath);
    /// Creates an empty project folder; false when it exists.
    Q_INVOKABLE bool createProject(QString name);
    /// Deletes a project with everything in it.
    Q_INVOKABLE bool removeProject(QString pName);
    /// Whether the path exists.
    Q_INVOKABLE bool fileExist(QString filePath);
    /// The file's text (UTF-8); "" when it cannot be read.
    Q_INVOKABLE QString readTextFile(QString filePath);
    /// URL of a component's relative media path: the project's file, else the component library's, else
    /// `path`.
    Q_INVOKABLE QString resolveUrl(QString path);
    /// Renames a project of the work directory.
    Q_INVOKABLE bool renameDir(QString oldName, QString newName);

    // --- archives -----------------------------------------------------------------------------------------

    /// Imports an archive into the work directory in the background, after those begun before; its first
    /// entry's name, or "" when it cannot be read. Whether it is a safe one is found out while importing.
    Q_INVOKABLE QString extractToWorkDirectory(QString zipFile);
    /// Packs the project `folder` into `zipFile`; the archive is written when this returns.
    Q_INVOKABLE void generateZipFile(QString zipFile, QString folder);

    // --- the document being edited ------------------------------------------------------------------------

    /// Begins an editing run with the file's text.
    Q_INVOKABLE void readSourceCode(QString filePath);
    /// Replaces the edited source; the history is left alone.
    Q_INVOKABLE void setSourceCode(QString sourceCode);
    /// Lets the QML engine drop unused compiled documents.
    Q_INVOKABLE void trimComponentCache();
    /// Makes the QML engine forget compiled documents, so that edited ones are loaded from disk.
    Q_INVOKABLE void clearComponentCache();
    /// Text with `element` and `evaluate` in every numbered object; see EditingSession::generateEditor().
    Q_INVOKABLE QString generateEditor(QString sc = QString(), int initialElement = 0);
    /// Writes the editing frame into the current project; nothing when that is missing.
    Q_INVOKABLE void createEditorFile();
    /// The source being edited.
    Q_INVOKABLE QString editedSourceCode();
    /// Characters [beg, end) of the edited source, in UTF-16 offsets.
    Q_INVOKABLE QString sourceCode(int beg, int end);
    /// Item map of the text last generated from; see EditingSession::getMap().
    Q_INVOKABLE QVariantList getMap();
    /// Item map of `sc`; nothing else changes.
    Q_INVOKABLE QVariantList parseAndGetMap(QString sc);
    /// Replaces the characters [beg, end) of the edited source.
    Q_INVOKABLE void replaceSourceCode(int beg, int end, QString sc);
    /// File name of the editing frame in a project.
    Q_INVOKABLE QString editorVersion();
    /// QML text of a fresh instance of the component in the file; "" when it has none.
    Q_INVOKABLE QString getItemPrototype(QString filePath);
    /// Offset of the first `s` at or after `from`; -1 when there is none.
    Q_INVOKABLE int posInSourceCode(QString s, int from = 0);
    /// Offset of the last `s` at or before `from`; -1 when there is none. Without `from` only offset 0
    /// counts.
    Q_INVOKABLE int prevPosInSourceCode(QString s, int from = 0);
    /// Redo: the next newer state, which becomes the edited source.
    Q_INVOKABLE QString getForwardSource();
    /// Undo: the next older state, which becomes the edited source.
    Q_INVOKABLE QString getBackwardSource();
    /// Records the edited source as a state; every tenth call also saves it beside the project's documents.
    Q_INVOKABLE void saveEditingState();

    // --- cloud, updates, local network --------------------------------------------------------------------

    // Those that go to the cloud wait for it in a nested event loop, which ends when the program quits. Pages
    // use the type Transfers. The signals of transfers tell of these members, and of pulls.

    /// Demo projects offered in the cloud: maps with the key "folder", the name of an archive.
    Q_INVOKABLE QVariantList getDemosList(QString demoFolder);
    /// Downloads the demo archive `cloudDir` + `cloudFile` and imports it into the work directory, which goes
    /// on in the background.
    Q_INVOKABLE void downloadDemoProject(QString cloudDir, QString cloudFile);
    /// Performs no update; always false.
    Q_INVOKABLE bool updateApp(int version);
    /// Pushes the changed files of a project to the account's shared folder. Where a file has changed on both
    /// sides, this one wins.
    Q_INVOKABLE void doOneShareUp(QString folder);
    /// Pulls the changed files of a project from the account's shared folder, in the background, unless
    /// `cloudrevision` is empty or pulled already; tries again until it succeeds.
    Q_INVOKABLE void doOneShareDown(QString folder, QString cloudrevision);
    /// Names of the folders directly below `folder`, an account and perhaps a path: maps with the key
    /// "folder".
    Q_INVOKABLE QVariantList getCloudProjectList(QString folder);
    /// Downloads the cloud project `m_menuFolder`, an account and a path, into the work directory.
    Q_INVOKABLE void downloadProject(QString m_menuFolder);
    /// Names of the projects in the work directory, in file-system order.
    Q_INVOKABLE QStringList getProjectList();
    /// Names of the current project's .qml, .txt and .js files.
    Q_INVOKABLE QStringList getQMLFileList();
    /// Families of the registered fonts, after registering the project's own when `load` is true.
    Q_INVOKABLE QStringList getFonts(bool load = true);
    /// Sets the comma-separated names of the projects to keep up to date.
    Q_INVOKABLE void setListOfProjectsToUpdate(QString s);
    /// Sets the revisions of projects; both lists are comma-separated and go in pairs.
    Q_INVOKABLE void setProjectsRev(QString projects, QString revisions);
    /// Names of the projects to keep up to date, in name order.
    Q_INVOKABLE QVariantList getListOfProjectsToUpdate();
    /// The current project's directory map: relative path to revision.
    Q_INVOKABLE QVariantMap dirmap();
    /// Deletes the files named in the lines of `listf` from the project and from its directory map.
    Q_INVOKABLE bool updateDirmapFile(QString listf);
    /// Replaces the project's directory map.
    Q_INVOKABLE bool updateDirmapFile(QVariantMap dirmap);
    /// A new realtime subscriber, owned by the QML engine; null without a cloud.
    Q_INVOKABLE QObject* newFirebaseSubscriber();
    /// Starts serving players of the local network, and announcing this one where the deployment says.
    Q_INVOKABLE void startLocalServer();
    /// Downloads one URL into a folder of the project; blocks while events are processed.
    Q_INVOKABLE bool getFile(QString url, QString destDir, QString destName);

    // --- platform -----------------------------------------------------------------------------------------

    /// Shows the view full screen or normal.
    Q_INVOKABLE void setFullScreen(bool);
    /// Quits and starts a new process with the same arguments.
    Q_INVOKABLE void reStartApp();
    /// Whether some network interface besides loopback is up.
    Q_INVOKABLE bool isConnectedToNetwork();
    /// Text of the clipboard.
    Q_INVOKABLE QString getClipboard();
    /// Sets the text of the clipboard.
    Q_INVOKABLE void setClipboard(QString text);
    /// The local host name.
    Q_INVOKABLE QString hostName();
    /// Whether this is a hand-held device.
    Q_INVOKABLE bool isDevice();
    /// Whether a touch device is present.
    Q_INVOKABLE bool haveTouch();
    /// Does nothing.
    Q_INVOKABLE void setLog(QString msg);
    /// Uploads a picture of the window, at most `size` px wide and high.
    Q_INVOKABLE void uploadScreenshot(int size);
    /// Uploads one file.
    Q_INVOKABLE void uploadFile(QString localFileName, QString cloudFileName);
    /// A download URL for a cloud object that is good for an hour.
    Q_INVOKABLE QString getDownloadUrl(QString cloudFile);
    /// Does nothing.
    Q_INVOKABLE void installApp(QString localFileName);
    /// Does nothing.
    Q_INVOKABLE void setRunAtStartup(bool b);
    /// Always false.
    Q_INVOKABLE bool getRunAtStartup();

private:
    void setGenerateZipFinished(bool finished);
    void emitEditingState();
    void passCloudSignalsOn();

    QQuickView* m_view;
    WindowMode m_windowMode;
    ProjectUpdateList m_projectsToUpdate;
    bool m_generateZipFinished = true;
    bool m_iConnected = true;
    Settings m_settings;
    Workspace m_workspace;
    Leftovers m_leftovers;
    ImportQueue m_imports;
    ProjectFolder m_folder;
    QString m_projectName;
    EditingSession m_editing;
    CloudServices m_cloud;
    std::unique_ptr<LocalNetwork> m_localNetwork; // last: its threads end before anything else goes
};
