// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/projectfolder.h"
#include "api/textencoding.h"
#include "api/workspace.h"
#include "tests/support/files.h"
#include "tests/support/httpserver.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include <sys/stat.h>

class TestProjectFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pathRule_data();
    void pathRule();
    void copyToDir_data();
    void copyToDir();
    void copyReplacesAndMakesFolders();
    void copyOntoItselfLeavesTheFile();
    void textRoundTrip_data();
    void textRoundTrip();
    void writeThatFailsKeepsTheFile();
    void appendAddsLines();
    void readOfWhatCannotBeRead();
    void renameLandsInTheProject();
    void resolvedUrl();
    void sourcesAreFilesOfThreeKinds();
    void fontsAreRegisteredOnce();
    void otherEncodingsAreKept_data();
    void otherEncodingsAreKept();
    void downloadsOfOneFileDoNotMix();
    void projectsAreListedMadeRenamedRemoved();
    void projectThatIsALink();
    void namesThatReachBeyondOneProjectAreRefused_data();
    void namesThatReachBeyondOneProjectAreRefused();

private:
    QString in(const QString& name) const { return m_project->absolutePath() + '/' + name; }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<ProjectFolder> m_project;
};

void TestProjectFolder::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
    m_project = std::make_unique<ProjectFolder>(m_home->filePath(QString::fromUtf8("Läden \"Süd\"")));
    QDir().mkpath(m_project->absolutePath());
}

void TestProjectFolder::pathRule_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    const QString project = "/tmp/p";
    QTest::newRow("relative") << "images/a.png" << project + "/images/a.png";
    QTest::newRow("absolute") << "/etc/hosts"
                              << "/etc/hosts";
    QTest::newRow("URL") << "file:///etc/a%20b"
                         << "/etc/a b";
    QTest::newRow("URL in capitals is a name") << "FILE:///etc/a" << project + "/FILE:///etc/a";
    QTest::newRow("empty") << "" << project;
}

void TestProjectFolder::pathRule()
{
    QFETCH(QString, path);
    QTEST(QDir::cleanPath(ProjectFolder("/tmp/p").resolved(path)).replace("FILE:/", "FILE:///"), "expected");
}

void TestProjectFolder::copyToDir_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("result");
    QTest::newRow("suffixes") << "logo.final.png"
                              << "images/logo.final.png";
    QTest::newRow("no suffix keeps the dot") << "notes"
                                             << "images/notes.";
    QTest::newRow("non-Latin") << QString::fromUtf8("Käse 1.png") << QString::fromUtf8("images/Käse 1.png");
}

void TestProjectFolder::copyToDir()
{
    QFETCH(QString, source);
    QFETCH(QString, result);
    const QString outside = m_home->filePath("media/" + source);
    write(outside, "picture");
    QCOMPARE(m_project->copyToDir(QUrl::fromLocalFile(outside).toString(QUrl::FullyEncoded), "images"),
             result);
    QCOMPARE(contents(in(result)), QByteArray("picture"));
    // Copying the copy into its own place changes nothing, where the name allows it.
    if (result.endsWith(source))
        QCOMPARE(m_project->copyToDir(result, "images"), result);
    QCOMPARE(contents(in(result)), QByteArray("picture"));
    QCOMPARE(m_project->copyToDir("not there.png", "images"), QString());
}

void TestProjectFolder::copyReplacesAndMakesFolders()
{
    write(in("a.txt"), "new");
    write(in("deep/er/b.txt"), "old");
    QVERIFY(m_project->copy("a.txt", "deep/er/b.txt"));
    QVERIFY(m_project->copy("a.txt", "quite/new/c.txt"));
    QCOMPARE(contents(in("deep/er/b.txt")), QByteArray("new"));
    QCOMPARE(contents(in("quite/new/c.txt")), QByteArray("new"));
    QVERIFY(!m_project->copy("missing", "deep/er/b.txt"));
}

void TestProjectFolder::copyOntoItselfLeavesTheFile()
{
    write(in("a.txt"), "kept");
    QVERIFY(m_project->copy("a.txt", QUrl::fromLocalFile(in("a.txt")).toString()));
    QCOMPARE(contents(in("a.txt")), QByteArray("kept"));
}

void TestProjectFolder::textRoundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString("");
    QTest::newRow("no line end") << QString("Item { }");
    QTest::newRow("CRLF") << QString("Item {\r\n}\r\n");
    QTest::newRow("beyond Latin") << QString::fromUtf8("text: \"žluť 漢字 😀\"\n");
}

void TestProjectFolder::textRoundTrip()
{
    QFETCH(QString, text);
    QVERIFY(m_project->write(text, "sub/main.qml"));
    QCOMPARE(m_project->read("sub/main.qml"), text);
    QCOMPARE(contents(in("sub/main.qml")), text.toUtf8());
}

void TestProjectFolder::writeThatFailsKeepsTheFile()
{
    write(in("file"), "kept");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(".*"));
    QVERIFY(!m_project->write("text", "file/below"));
    QCOMPARE(contents(in("file")), QByteArray("kept"));
}

void TestProjectFolder::appendAddsLines()
{
    QVERIFY(m_project->append("x", "logs/list.txt"));
    QVERIFY(m_project->append(QString::fromUtf8("é"), "logs/list.txt"));
    QCOMPARE(contents(in("logs/list.txt")), QByteArray("x\n\xc3\xa9\n"));
    QVERIFY(!m_project->append("x", "/dev/full"));
}

void TestProjectFolder::readOfWhatCannotBeRead()
{
    QCOMPARE(m_project->read("missing"), QString());
    QFile huge(in("huge.txt"));
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(1) << 32));
    QCOMPARE(mkfifo(QFile::encodeName(in("pipe")).constData(), 0600), 0);
    const LogCapture log;
    for (const char* path : {".", "huge.txt", "pipe", "/dev/zero"})
        QCOMPARE(m_project->read(path), QString());
    QCOMPARE(log.messages().filter("Not readable, or too large, as a text file").size(), 4);
}

void TestProjectFolder::renameLandsInTheProject()
{
    write(in("images/a.png"), "a");
    QVERIFY(m_project->rename("images/a.png", "b.png"));
    QVERIFY(m_project->exists("b.png") && !m_project->exists("images/a.png"));
    QVERIFY(m_project->remove("b.png"));
    QVERIFY(!m_project->remove("b.png"));
}

void TestProjectFolder::resolvedUrl()
{
    write(in("images/own.png"), "x");
    QCOMPARE(m_project->resolvedUrl("images/own.png"), QUrl::fromLocalFile(in("images/own.png")).toString());
    const QString library = m_project->resolvedUrl("icons/noImage.png");
    QCOMPARE(library, QString("file::/Nuvex/Components/icons/noImage.png"));
    QVERIFY(QFile::exists(QUrl(library).toLocalFile()));
    QCOMPARE(m_project->resolvedUrl("images/nowhere.png"), QString("images/nowhere.png"));
}

void TestProjectFolder::sourcesAreFilesOfThreeKinds()
{
    for (const char* name : {"main.qml", "notes.txt", "lib.js", "picture.png", "dirmap"})
        write(in(name), "x");
    QDir(m_project->absolutePath()).mkdir("folder.qml");
    QStringList sources = m_project->sources();
    sources.sort();
    QCOMPARE(sources, QStringList({"lib.js", "main.qml", "notes.txt"}));
}

void TestProjectFolder::fontsAreRegisteredOnce()
{
    QDir(m_project->absolutePath()).mkdir("fonts");
    QVERIFY(QFile::copy(":/Nuvex/Components/fonts/lobster.ttf", in("fonts/one.ttf")));
    QVERIFY(QFile::copy(":/Nuvex/Components/fonts/lobster.ttf", in("fonts/two.ttf")));
    write(in("fonts/broken.ttf"), "no font");
    const QString family = "Lobster Two";
    QVERIFY(!m_project->fonts(false).contains(family));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Not a usable font"));
    const QStringList loaded = m_project->fonts(true);
    QCOMPARE(loaded.count(family), 1);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Not a usable font"));
    QCOMPARE(m_project->fonts(true), loaded);
    QCOMPARE(m_project->fonts(false), loaded);
}

void TestProjectFolder::otherEncodingsAreKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isUtf8");
    QTest::newRow("UTF-8") << QByteArray("Käse 😀") << true;
    QTest::newRow("with a mark") << QByteArray("\xef\xbb\xbftext") << true;
    QTest::newRow("Latin-1") << QByteArray("K\xe4se") << false;
    QTest::newRow("cut in a character") << QByteArray("K\xc3") << false;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfeK\0", 4) << false;
}

void TestProjectFolder::otherEncodingsAreKept()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isUtf8);
    write(in("main.qml"), bytes);
    write(in("main.qml.orig"), "an earlier one");
    QCOMPARE(isUtf8File(in("main.qml")), isUtf8);
    const LogCapture log;
    for (int round = 0; round < 2; ++round)
        QVERIFY(m_project->write("new", "main.qml"));
    QCOMPARE(contents(in("main.qml")), QByteArray("new"));
    QCOMPARE(contents(in("main.qml.orig")), QByteArray("an earlier one"));
    QCOMPARE(contents(in("main.qml.orig2")), isUtf8 ? QByteArray("(cannot be read)") : bytes);
    QVERIFY(!QFile::exists(in("main.qml.orig3")));
    QCOMPARE(log.contains("is not UTF-8"), !isUtf8);
}

// The second begins and ends in the event loop in which the first waits.
void TestProjectFolder::downloadsOfOneFileDoNotMix()
{
    HttpServer server;
    const QByteArray slow(300'000, 's');
    const QByteArray quick(200'000, 'q');
    server.setAnswer("/slow", HttpAnswer::drip(slow, 3, std::chrono::milliseconds(100)));
    server.setAnswer("/quick", HttpAnswer::complete(200, quick));
    bool quickCame = false;
    QTimer::singleShot(150, this, [&] {
        quickCame =
            m_project->download(server.url("/quick"), "media", "file") && contents(in("media/file")) == quick;
    });
    QVERIFY(m_project->download(server.url("/slow"), "media", "file"));
    QVERIFY(quickCame);
    QCOMPARE(contents(in("media/file")), slow);
    QVERIFY(!m_project->download(server.url("/missing"), "media", "file"));
    QCOMPARE(contents(in("media/file")), slow);
    QCOMPARE(QDir(in("media")).entryList(QDir::Files | QDir::Hidden), QStringList("file"));
}

void TestProjectFolder::projectThatIsALink()
{
    Workspace workspace(m_home->filePath("root"));
    write(m_home->filePath("elsewhere/main.qml"), "kept");
    QVERIFY(QFile::link(m_home->filePath("elsewhere"), workspace.workDirectory() + "/Linked"));
    QVERIFY(workspace.remove("Linked"));
    QCOMPARE(workspace.listProjects(), QStringList());
    QCOMPARE(contents(m_home->filePath("elsewhere/main.qml")), QByteArray("kept"));
}

void TestProjectFolder::projectsAreListedMadeRenamedRemoved()
{
    Workspace workspace(m_home->filePath("root"));
    QVERIFY(workspace.create("Shop"));
    QVERIFY(!workspace.create("Shop"));
    QVERIFY(workspace.create(QString::fromUtf8("Büro .5")));
    write(workspace.workDirectory() + "/scratch.zip", "x");
    write(workspace.workDirectory() + "/Shop/images/a.png", "x");
    QStringList projects = workspace.listProjects();
    projects.sort();
    QCOMPARE(projects, QStringList({QString::fromUtf8("Büro .5"), "Shop"}));
    QVERIFY(!workspace.rename("Shop", QString::fromUtf8("Büro .5")));
    QVERIFY(workspace.rename("Shop", "Store"));
    workspace.listProjects();
    QVERIFY(workspace.remove("Store"));
    QCOMPARE(workspace.cachedProjects(), QStringList(QString::fromUtf8("Büro .5")));
    QCOMPARE(workspace.listProjects(), workspace.cachedProjects());
}

void TestProjectFolder::namesThatReachBeyondOneProjectAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"", ".", "..", "../other", "a/b", "/etc"})
        QTest::newRow(name) << name;
}

void TestProjectFolder::namesThatReachBeyondOneProjectAreRefused()
{
    QFETCH(QString, name);
    Workspace workspace(m_home->filePath("root"));
    workspace.create("Shop");
    for (int call = 0; call < 3; ++call)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Not the name of a project"));
    QVERIFY(!workspace.create(name));
    QVERIFY(!workspace.remove(name));
    QVERIFY(!workspace.rename("Shop", name));
    QCOMPARE(workspace.listProjects(), QStringList("Shop"));
}

QTEST_MAIN(TestProjectFolder)
#include "tst_projectfolder.moc"
