// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include <QMetaMethod>
#include <QQmlContext>
#include <QQuickView>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The native interface as remote callers and QML know it, in order: 14 signals, then the methods, overloads
// for defaulted arguments counting on their own.
const char* const members[] = {
    "void onExtractFinishedChanged(bool)",
    "void onGenerateZipFinished(bool)",
    "void iConnectedChanged(bool)",
    "void reloadPlayer()",
    "void startUpdating()",
    "void projectUpdated(QString localRevision)",
    "void uploadProgress(qlonglong bytesReceived, qlonglong bytesTotal)",
    "void uploadingFile(QString fileString)",
    "void downloadProgress(qlonglong bytesReceived, qlonglong bytesTotal)",
    "void downloadingFile(QString fileString)",
    "void newerEditingState(bool ok)",
    "void olderEditingState(bool ok)",
    "void playerConnectionStarted(QString name)",
    "void playerConnectionFinished(QString name)",
    "void setBaseFolder(QString folder)",
    "QString baseFolder()",
    "QString getBaseFolder()",
    "QString getBaseProjectName()",
    "QString getWorkDirectory()",
    "bool getBSetting(QString name)",
    "QString getSSetting(QString name)",
    "int getISetting(QString name)",
    "void setSetting(QString name, QVariant value)",
    "void setConnectedPlayerName(QString)",
    "bool copyFile(QString src, QString dest)",
    "QString copyFileToDir(QString src, QString destDir)",
    "bool writeToFile(QString txt, QString fileName)",
    "bool appendToFile(QString txt, QString fileName)",
    "bool renameFile(QString filePath, QString newName)",
    "bool removeFile(QString filePath)",
    "bool createProject(QString name)",
    "bool removeProject(QString pName)",
    "bool fileExist(QString filePath)",
    "QString readTextFile(QString filePath)",
    "QString resolveUrl(QString path)",
    "bool renameDir(QString oldName, QString newName)",
    "QString extractToWorkDirectory(QString zipFile)",
    "void generateZipFile(QString zipFile, QString folder)",
    "void readSourceCode(QString filePath)",
    "void setSourceCode(QString sourceCode)",
    "void trimComponentCache()",
    "void clearComponentCache()",
    "QString generateEditor(QString sc, int initialElement)",
    "QString generateEditor(QString sc)",
    "QString generateEditor()",
    "void createEditorFile()",
    "QString editedSourceCode()",
    "QString sourceCode(int beg, int end)",
    "QVariantList getMap()",
    "QVariantList parseAndGetMap(QString sc)",
    "void replaceSourceCode(int beg, int end, QString sc)",
    "QString editorVersion()",
    "QString getItemPrototype(QString filePath)",
    "int posInSourceCode(QString s, int from)",
    "int posInSourceCode(QString s)",
    "int prevPosInSourceCode(QString s, int from)",
    "int prevPosInSourceCode(QString s)",
    "QString getForwardSource()",
    "QString getBackwardSource()",
    "void saveEditingState()",
    "QVariantList getDemosList(QString demoFolder)",
    "void downloadDemoProject(QString cloudDir, QString cloudFile)",
    "bool updateApp(int version)",
    "void doOneShareUp(QString folder)",
    "void doOneShareDown(QString folder, QString cloudrevision)",
    "QVariantList getCloudProjectList(QString folder)",
    "void downloadProject(QString m_menuFolder)",
    "QStringList getProjectList()",
    "QStringList getQMLFileList()",
    "QStringList getFonts(bool load)",
    "QStringList getFonts()",
    "void setListOfProjectsToUpdate(QString s)",
    "void setProjectsRev(QString projects, QString revisions)",
    "QVariantList getListOfProjectsToUpdate()",
    "QVariantMap dirmap()",
    "bool updateDirmapFile(QString listf)",
    "bool updateDirmapFile(QVariantMap dirmap)",
    "QObject* newFirebaseSubscriber()",
    "void startLocalServer()",
    "bool getFile(QString url, QString destDir, QString destName)",
    "void setFullScreen(bool)",
    "void reStartApp()",
    "bool isConnectedToNetwork()",
    "QString getClipboard()",
    "void setClipboard(QString text)",
    "QString hostName()",
    "bool isDevice()",
    "bool haveTouch()",
    "void setLog(QString msg)",
    "void uploadScreenshot(int size)",
    "void uploadFile(QString localFileName, QString cloudFileName)",
    "QString getDownloadUrl(QString cloudFile)",
    "void installApp(QString localFileName)",
    "void setRunAtStartup(bool b)",
    "bool getRunAtStartup()",
};

QString declaration(const QMetaMethod& method)
{
    QStringList arguments;
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    for (int i = 0; i < types.size(); ++i)
        arguments.append(QString::fromLatin1(types.at(i) + (names.at(i).isEmpty() ? "" : ' ' + names.at(i))));
    return QStringLiteral("%1 %2(%3)")
        .arg(QString::fromLatin1(method.typeName()), QString::fromLatin1(method.name()),
             arguments.join(", "));
}

} // namespace

class TestCapi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void metaObjectIsTheInterface();
    void isTheCurrentInstance();
    void workspaceIsMade();
    void everyWriteOfIConnectedIsAnnounced();
    void setBaseFolderMovesProjectAndUpdateList();
    void editingSignalsCome();
    void everyTenthSaveKeepsASafetyCopy();
    void editorFileIsWrittenIntoTheProject();
    void dirmapFollowsDeletions();
    void isDeviceKnowsExactNames();

private:
    QTemporaryDir m_home;
    std::unique_ptr<CAPI> m_capi;
};

void TestCapi::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath("data")));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
    QCoreApplication::setOrganizationName("Nuvex");
    QCoreApplication::setApplicationName("Nuvex");
}

void TestCapi::init()
{
    m_capi = std::make_unique<CAPI>(nullptr, nullptr);
    m_capi->createProject("Shop");
    m_capi->setBaseFolder("Shop");
}

void TestCapi::cleanup()
{
    m_capi->removeProject("Shop");
    m_capi.reset();
}

void TestCapi::metaObjectIsTheInterface()
{
    const QMetaObject& meta = CAPI::staticMetaObject;
    QStringList actual;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        actual.append(declaration(meta.method(i)));
    QStringList expected;
    for (const char* entry : members)
        expected.append(QString::fromLatin1(entry));
    QCOMPARE(actual, expected);
    QCOMPARE(actual.size(), 95);
    for (int i = 0; i < actual.size(); ++i)
        QCOMPARE(meta.method(meta.methodOffset() + i).methodType() == QMetaMethod::Signal, i < 14);
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties.append(meta.property(i).name());
    QCOMPARE(properties, QStringList({"extractFinished", "generateZipFinished", "iConnected"}));
}

void TestCapi::isTheCurrentInstance()
{
    QCOMPARE(CAPI::current(), m_capi.get());
    m_capi.reset();
    QVERIFY(!CAPI::current());
    init();
}

void TestCapi::workspaceIsMade()
{
    const QString work = m_capi->getWorkDirectory();
    QVERIFY(work.startsWith(m_home.path()) && work.endsWith("/PlayerQML/Work"));
    QVERIFY(QFileInfo(work).isDir());
    QVERIFY(QFileInfo(work + "/../ShareFolder").isDir());
}

void TestCapi::everyWriteOfIConnectedIsAnnounced()
{
    QSignalSpy spy(m_capi.get(), &CAPI::iConnectedChanged);
    m_capi->setProperty("iConnected", true);
    m_capi->setProperty("iConnected", true);
    m_capi->setProperty("iConnected", false);
    QCOMPARE(spy, QList<QVariantList>({{true}, {true}, {false}}));
}

void TestCapi::setBaseFolderMovesProjectAndUpdateList()
{
    QCOMPARE(m_capi->getBaseProjectName(), QString("Shop"));
    QCOMPARE(m_capi->getBaseFolder(), m_capi->getWorkDirectory() + "/Shop");
    m_capi->setListOfProjectsToUpdate("Lobby,Shop,Bar");
    m_capi->setBaseFolder("Menu");
    QCOMPARE(m_capi->getListOfProjectsToUpdate(), QVariantList({"Bar", "Lobby", "Menu"}));
    QCOMPARE(m_capi->baseFolder(), m_capi->getWorkDirectory() + "/Menu");
}

void TestCapi::editingSignalsCome()
{
    QSignalSpy newer(m_capi.get(), &CAPI::newerEditingState);
    QSignalSpy older(m_capi.get(), &CAPI::olderEditingState);
    m_capi->writeToFile("Item { }", "main.qml");
    m_capi->readSourceCode("main.qml");
    m_capi->replaceSourceCode(5, 5, "id: a ");
    m_capi->saveEditingState();
    QCOMPARE(m_capi->getBackwardSource(), QString("Item { }"));
    QCOMPARE(m_capi->getForwardSource(), QString("Item id: a { }"));
    QCOMPARE(m_capi->editedSourceCode(), QString("Item id: a { }"));
    QCOMPARE(newer, QList<QVariantList>({{true}, {true}, {false}, {true}}));
    QCOMPARE(older, QList<QVariantList>({{true}, {false}, {true}, {false}}));
}

void TestCapi::everyTenthSaveKeepsASafetyCopy()
{
    int saved = 0;
    for (int call = 0; call < 20; ++call) {
        m_capi->removeFile("main.savestatus");
        m_capi->setSourceCode(QString::number(call));
        m_capi->saveEditingState();
        saved += m_capi->readTextFile("main.savestatus") == QString::number(call);
    }
    QCOMPARE(saved, 2);
}

void TestCapi::editorFileIsWrittenIntoTheProject()
{
    m_capi->createEditorFile();
    const QString frame = m_capi->readTextFile(m_capi->editorVersion());
    QVERIFY(frame.contains("itemSelected"));
    QCOMPARE(frame, m_capi->readTextFile(":/Nuvex/PlayerQML/Editor.qml"));
}

void TestCapi::dirmapFollowsDeletions()
{
    m_capi->writeToFile("x", "images/a b.png");
    m_capi->writeToFile("x", "main.qml");
    QVERIFY(m_capi->updateDirmapFile(QVariantMap{{"main.qml", 3}, {"images/a b.png", 12}}));
    QCOMPARE(m_capi->readTextFile("dirmap"), QString("images/a b.png 12\nmain.qml 3\n"));
    QVERIFY(m_capi->updateDirmapFile(QString("images/a b.png\nunknown")));
    QCOMPARE(m_capi->dirmap(), QVariantMap({{"main.qml", 3}}));
    QVERIFY(!m_capi->fileExist("images/a b.png") && m_capi->fileExist("main.qml"));
}

void TestCapi::isDeviceKnowsExactNames()
{
    QVERIFY(!m_capi->isDevice());
}

QTEST_MAIN(TestCapi)
#include "tst_capi.moc"
