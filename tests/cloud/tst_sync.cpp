// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/limits.h"
#include "tests/cloud/computer.h"
#include "tests/support/faults.h"
#include "tests/support/logcapture.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

namespace {

const QString shared = "NUVEX/users/a@b.c/ShareFolder/Shop/";

} // namespace

/// An editor and a player of one account on the real local cloud.
class TestSync : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void whatIsPublishedIsShown();
    void onlyWhatDiffersGoes();
    void unchangedProjectCostsOneRequest();
    void nothingThereYet();
    void namesOfAllKinds();
    void unpublishedEditsStay();
    void bothSidesChanged();
    void twoEditorsAtOnce();
    void publishWhileAPullRuns();
    void brokenDocument();
    void publishBrokenOff();
    void publishBrokenOffAtItsEnd();
    void brokenOffPublishOfOldFiles_data();
    void brokenOffPublishOfOldFiles();
    void mapWithoutTheDocument();
    void publishWhosAnswerIsLost();
    void missingFileComesLater();
    void manyMissingFilesAreFewLines();
    void oneBadFileHoldsAllBack_data();
    void oneBadFileHoldsAllBack();
    void fetchedFilesAreNotFetchedAgain();
    void manyRevisionsAreMerged();
    void aFailingProjectHoldsNoOtherUp();
    void foldersAndFilesChangePlaces();
    void linksAreNotFollowed();
    void garbageIsNoMap();
    void fullDiskKeepsTheOldProject();
    void downloadsAProject();
    void endsWithoutTheGui();
    void endsInATransfer();
    void tokenEndsDuringAPull();
    void noNetworkThenNetwork();

private:
    void breakOffAPush();

    LocalCloud m_cloud;
    std::unique_ptr<Computer> m_editor;
    std::unique_ptr<Computer> m_player;
};

void TestSync::init()
{
    m_cloud.setFaults("[]");
    for (const QString& name : m_cloud.objects("NUVEX/"))
        m_cloud.removeObject(name);
    m_editor = std::make_unique<Computer>(m_cloud.deployment());
    m_player = std::make_unique<Computer>(m_cloud.deployment());
    m_editor->edit("main.qml", "one");
    m_editor->edit("images/a b.png", QByteArray(100'000, 'p'));
    m_cloud.takeCounters();
}

// Of many changed files, and the document, some have come to the cloud when the program ends.
void TestSync::breakOffAPush()
{
    m_editor->edit("main.qml", "two");
    for (int i = 0; i < 20; ++i)
        m_editor->edit(QString("z%1").arg(i), "two");
    m_cloud.setFaults(R"([{"method":"POST","skip":6,"times":1000,"requestStallAfter":1}])");
    m_editor->worker().push("Shop", SharedFolderThread::Conflicts::Ask);
    QTRY_COMPARE(m_cloud.objects(shared + "z").size(), 5);
    QCOMPARE(m_cloud.object(shared + "main.qml"), QByteArray("two"));
    m_editor->turnOff();
}

void TestSync::whatIsPublishedIsShown()
{
    QVERIFY(m_editor->push());
    QStringList whileStopping;
    m_player->onStopPlayer = [&] { whileStopping = m_player->tree().keys(); };
    QVERIFY(m_player->pull("0"));
    QCOMPARE(m_player->tree(), m_editor->tree());
    QCOMPARE(m_player->said, QStringList({"start", "stop", "0", "reload"}));
    QCOMPARE(whileStopping, QStringList({"images", "images/a b.png_temp", "main.qml_temp"}));
    // The same revision says nothing new, nor does an empty one, also after a new start.
    m_player->turnOff();
    m_player->turnOn();
    m_cloud.takeCounters();
    QVERIFY(m_player->pull("0"));
    QVERIFY(m_player->pull(""));
    QCOMPARE(m_player->said.size(), 4);
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>()));
}

void TestSync::onlyWhatDiffersGoes()
{
    m_editor->push();
    m_player->pull("0");
    m_editor->edit("main.qml", "two");
    m_editor->put("sub/new.txt", "n");
    m_editor->remove("images/a b.png");
    QDir(m_editor->project()).rmdir("images");
    m_cloud.takeCounters();
    QVERIFY(m_editor->push());
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>{{"GET media", 1}, {"POST upload", 3}}));
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>{{"GET media", 3}}));
    QCOMPARE(m_player->tree(), m_editor->tree());
    QVERIFY(!m_player->tree().contains("images"));
}

void TestSync::unchangedProjectCostsOneRequest()
{
    m_editor->push();
    m_player->pull("0");
    m_cloud.takeCounters();
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>{{"GET media", 1}}));
    QCOMPARE(m_player->said.mid(4), QStringList({"start", "1", "reload"}));
}

// Without a map in the cloud the project stays; the revision counts as pulled, in this run of the program.
void TestSync::nothingThereYet()
{
    m_player->put("main.qml", "mine");
    QVERIFY(m_player->pull("3"));
    QVERIFY(m_player->pull("3"));
    QCOMPARE(m_player->said, QStringList({"start", "3", "reload"}));
    QCOMPARE(m_player->tree(), (Tree{{"main.qml", "mine"}}));
    QVERIFY(m_editor->push());
    QVERIFY(m_player->pull("4"));
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::namesOfAllKinds()
{
    for (const char* name : {"100%.txt", "a?b#c+d&e=f.txt", "\xc3\xa4\xe6\x97\xa5\xf0\x9f\x8e\x89/x", "A.txt",
                             "a.txt", "%2e%2e", "a_temp", "a", "deep/er/and/deeper/x"})
        m_editor->edit(QString::fromUtf8(name), name);
    for (const char* scratch :
         {"dirmap_temp", ".hidden", "sub/.git/x", "editor05.qml", "main2.qml", "main.savestatus"})
        m_editor->put(scratch, "scratch");
    QVERIFY(m_editor->push());
    QVERIFY(m_player->pull("1"));
    Tree published = m_editor->tree();
    for (const char* scratch : {"dirmap_temp", ".hidden", "sub/.git/x", "sub/.git", "sub", "editor05.qml",
                                "main2.qml", "main.savestatus"})
        published.remove(scratch);
    QCOMPARE(m_player->tree(), published);
}

void TestSync::unpublishedEditsStay()
{
    m_editor->push();
    m_player->pull("0");
    m_player->edit("main.qml", "mine");
    m_player->put("images/mine.png", "not listed");
    m_editor->edit("main.qml", "two");
    m_editor->edit("images/mine.png", "theirs");
    m_editor->edit("new.txt", "n");
    m_editor->push();
    const LogCapture log;
    const SyncResult result = m_player->pull("1");
    QCOMPARE(result.kept, QStringList({"images/mine.png", "main.qml"}));
    QVERIFY(log.contains("Edited here"));
    QCOMPARE(m_player->tree().value("main.qml"), QByteArray("mine"));
    QCOMPARE(m_player->tree().value("images/mine.png"), QByteArray("not listed"));
    QCOMPARE(m_player->tree().value("new.txt"), QByteArray("n"));
}

// A page decides for each file; a script's push wins.
void TestSync::bothSidesChanged()
{
    m_editor->push();
    Computer second(m_cloud.deployment());
    second.pull("0");
    for (const char* name : {"main.qml", "images/a b.png"}) {
        m_editor->edit(name, "first editor's");
        second.edit(name, "second editor's");
    }
    m_editor->push();
    second.settleConflicts({"main.qml"});
    QVERIFY(second.push());
    QCOMPARE(second.conflicts, QStringList({"images/a b.png", "main.qml"}));
    QCOMPARE(m_cloud.object(shared + "main.qml"), QByteArray("first editor's"));
    QCOMPARE(m_cloud.object(shared + "images/a b.png"), QByteArray("second editor's"));
    QVERIFY(second.pull("1")); // gets what it gave way to
    QCOMPARE(second.tree().value("main.qml"), QByteArray("first editor's"));
    m_player->pull("1");
    QCOMPARE(m_player->tree(), second.tree());

    m_editor->edit("main.qml", "script's");
    second.edit("main.qml", "x");
    second.push();
    QVERIFY(m_editor->push());
    m_player->pull("2");
    QCOMPARE(m_player->tree().value("main.qml"), QByteArray("script's"));
}

void TestSync::twoEditorsAtOnce()
{
    Computer second(m_cloud.deployment());
    m_editor->push();
    second.pull("0");
    for (int round = 0; round < 5; ++round) {
        const QByteArray text = QByteArray::number(round);
        m_editor->edit("first.txt", text);
        second.edit("second.txt", text);
        const int one = m_editor->worker().push("Shop", SharedFolderThread::Conflicts::LocalWins);
        const int two = second.worker().push("Shop", SharedFolderThread::Conflicts::LocalWins);
        m_editor->worker().waitFor(one);
        second.worker().waitFor(two);
        m_player->pull(QString::number(round + 1));
        QCOMPARE(m_player->tree().value("first.txt"), text);
        QCOMPARE(m_player->tree().value("second.txt"), text);
    }
}

// Some of the next publish's files are there, but not its map: they are not shown with the old one's.
void TestSync::publishWhileAPullRuns()
{
    m_editor->push();
    m_cloud.put(shared + "main.qml", "two");
    m_player->worker().pull("Shop", "0");
    QTRY_VERIFY(m_player->tree().contains("images/a b.png_temp"));
    QTest::qWait(500);
    QCOMPARE(m_player->said, QStringList("start"));
    m_editor->edit("main.qml", "two");
    m_editor->push();
    QTRY_COMPARE_WITH_TIMEOUT(m_player->tree(), m_editor->tree(), 10'000);
    QTRY_COMPARE(m_player->said, QStringList({"start", "stop", "0", "reload"}));
}

// A script has published what cannot be loaded: what plays goes on until there is something better.
void TestSync::brokenDocument()
{
    m_editor->push();
    m_player->pull("0");
    m_editor->edit("main.qml", "{ broken");
    m_editor->push();
    {
        const LogCapture log;
        m_player->worker().pull("Shop", "1");
        QTRY_VERIFY(log.contains("its main.qml is no document"));
    }
    QCOMPARE(m_player->tree().value("main.qml"), QByteArray("one"));
    QCOMPARE(m_player->said.count("stop"), 1);
    m_editor->edit("main.qml", "two");
    m_editor->push();
    m_player->pull("2");
    QCOMPARE(m_player->tree(), m_editor->tree());
}

// The publisher's program ends half-way: nobody installs what is there then, and its next run ends it.
void TestSync::publishBrokenOff()
{
    m_editor->push();
    m_player->pull("0");
    const Tree before = m_player->tree();
    breakOffAPush();
    m_cloud.setFaults("[]");
    QCOMPARE(m_cloud.object(shared + "dirmap"), QByteArray("images/a b.png 1\nmain.qml 1\n"));

    Computer newcomer(m_cloud.deployment());
    QCOMPARE(newcomer.resultOf(newcomer.worker().download("a@b.c/ShareFolder/Shop")).fault,
             StorageFault::Unfinished);
    QVERIFY(!newcomer.tree().contains("main.qml"));
    newcomer.worker().pull("Shop", "0");
    QVERIFY(m_player->pull("1")); // a revision without a new map
    QCOMPARE(m_player->tree(), before);

    m_editor->turnOn();
    QCOMPARE(m_editor->worker().begunPushes(), QStringList("Shop"));
    QVERIFY(m_editor->push(SharedFolderThread::Conflicts::GiveUp));
    QTRY_COMPARE_WITH_TIMEOUT(newcomer.tree(), m_editor->tree(), 10'000);
    QVERIFY(m_player->pull("2"));
    QCOMPARE(m_player->tree(), m_editor->tree());
    QCOMPARE(m_editor->worker().begunPushes(), QStringList("Shop")); // nobody was told of it
    m_editor->resultOf(m_editor->worker().endPush("Shop"));
    QCOMPARE(m_editor->worker().begunPushes(), QStringList());
}

// The map has arrived, and the program ended before it could write that down.
void TestSync::publishBrokenOffAtItsEnd()
{
    m_editor->push();
    const QString record = m_editor->records() + "/record.json";
    const QByteArray older = contents(record);
    m_editor->edit("main.qml", "two");
    m_editor->settleConflicts({});
    QVERIFY(m_editor->push());
    m_editor->turnOff();
    write(record, older);
    m_editor->turnOn();
    m_cloud.takeCounters();
    QVERIFY(m_editor->push());
    QVERIFY(m_editor->conflicts.isEmpty());
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>{{"GET media", 1}, {"POST token", 1}}));
}

void TestSync::brokenOffPublishOfOldFiles_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : {"edited here", "changed there"})
        QTest::newRow(what) << what;
}

// What is not any more what was to be published is not published without being asked for.
void TestSync::brokenOffPublishOfOldFiles()
{
    QFETCH(QString, what);
    m_editor->push();
    Computer second(m_cloud.deployment());
    second.pull("0");
    breakOffAPush();
    m_cloud.setFaults("[]");
    const bool isEdited = what == "edited here";
    if (isEdited) {
        m_editor->edit("main.qml", "three");
    } else {
        second.edit("main.qml", "theirs");
        second.push();
    }
    m_editor->turnOn();
    QCOMPARE(m_editor->worker().begunPushes(), isEdited ? QStringList() : QStringList("Shop"));
    if (!isEdited) {
        QCOMPARE(m_editor->push(SharedFolderThread::Conflicts::GiveUp).fault, StorageFault::Cancelled);
        QCOMPARE(m_cloud.object(shared + "main.qml"), QByteArray("theirs"));
    }
    m_editor->settleConflicts({});
    QVERIFY(m_editor->push());
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_player->tree(), m_editor->tree());
}

// A login page in the map's place, or what is left of a map: the project stays.
void TestSync::mapWithoutTheDocument()
{
    m_editor->push();
    m_player->pull("0");
    const Tree before = m_player->tree();
    for (const char* map : {"<html><body>Hotel login 200</body></html>", "x 1\n", "images/a%20b.png 0\n"}) {
        m_cloud.put(shared + "dirmap", map);
        m_player->worker().pull("Shop", "7");
        QTest::qWait(1000);
        QCOMPARE(m_player->tree(), before);
    }
}

// The map has arrived, but nobody heard so; the network stack sends it again, and meets its own work.
void TestSync::publishWhosAnswerIsLost()
{
    m_editor->push();
    m_editor->edit("main.qml", "two");
    m_cloud.setFaults(R"([{"method":"POST","target":"*dirmap*","times":2,"drop":"after"}])");
    m_editor->settleConflicts({});
    QVERIFY(m_editor->push());
    QVERIFY(m_editor->conflicts.isEmpty());
    m_player->pull("1");
    QCOMPARE(m_player->tree(), m_editor->tree());
    m_cloud.takeCounters();
    QVERIFY(m_editor->push());
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>{{"GET media", 1}}));
}

void TestSync::missingFileComesLater()
{
    m_editor->push();
    m_player->pull("0");
    m_editor->edit("main.qml", "two");
    m_editor->edit("images/a b.png", "new picture");
    m_editor->edit("images/c.png", "c");
    m_editor->push();
    m_cloud.removeObject(shared + "images/a b.png");
    m_cloud.removeObject(shared + "images/c.png");
    m_player->worker().pull("Shop", "1");
    QTRY_COMPARE(m_player->said.mid(4), QStringList({"start", "stop", "1", "reload"}));
    QCOMPARE(m_player->tree().value("main.qml"), QByteArray("two"));
    QCOMPARE(m_player->tree().value("images/a b.png"), QByteArray(100'000, 'p'));
    QCOMPARE(m_player->map(), *parseDirmap("images/a b.png 1\nmain.qml 2\n"));
    m_cloud.put(shared + "images/a b.png", "new picture");
    m_cloud.put(shared + "images/c.png", "c");
    QTRY_COMPARE_WITH_TIMEOUT(m_player->said.mid(8), QStringList({"stop", "1", "reload"}), 15'000);
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::manyMissingFilesAreFewLines()
{
    QByteArray map = "main.qml 1\n";
    for (int i = 0; i < 500; ++i)
        map += QByteArray(200, 'x') + QByteArray::number(i) + " 1\n";
    m_cloud.put(shared + "main.qml", "one");
    m_cloud.put(shared + "dirmap", map);
    const LogCapture log;
    m_player->worker().pull("Shop", "1");
    QTRY_COMPARE_WITH_TIMEOUT(m_player->said.size(), 4, 20'000);
    m_player->turnOff();
    QVERIFY2(log.messages().size() < 60, qPrintable(QString::number(log.messages().size())));
    for (const QString& line : log.messages())
        QVERIFY(line.size() < 2 * limits::loggedText);
    QVERIFY(log.contains("500 of 501"));
}

void TestSync::oneBadFileHoldsAllBack_data()
{
    QTest::addColumn<QByteArray>("fault");
    for (const char* fault :
         {"\"status\":500", "\"status\":401", "\"status\":429", "\"corruptAt\":10", "\"cutAfter\":5000",
          "\"lengthError\":-10", "\"drop\":\"after\"", "\"redirect\":\"http://127.0.0.1:1/\"",
          "\"body\":\"<html>hotel\",\"headers\":{\"Content-Type\":\"text/html\"}"})
        QTest::newRow(fault) << QByteArray(fault);
}

// Whatever happens to one file: nothing is changed before it is there, and then all is.
void TestSync::oneBadFileHoldsAllBack()
{
    QFETCH(QByteArray, fault);
    m_editor->push();
    m_player->pull("0");
    const Tree before = m_player->tree();
    m_editor->edit("main.qml", "two");
    m_editor->edit("images/a b.png", QByteArray(100'000, 'q'));
    m_editor->push();
    m_cloud.setFaults("[{\"method\":\"GET\",\"target\":\"*a%20b*\"," + fault + "}]");
    Tree meanwhile;
    m_player->onStopPlayer = [&] { meanwhile = m_player->tree(); };
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_player->said.mid(4), QStringList({"start", "stop", "1", "reload"}));
    for (const char* name : {"main.qml_temp", "images/a b.png_temp"})
        QVERIFY(meanwhile.remove(name) == 1);
    QCOMPARE(meanwhile, before);
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::fetchedFilesAreNotFetchedAgain()
{
    for (int i = 0; i < 20; ++i)
        m_editor->edit(QString("f%1").arg(i), QByteArray(1000, char('a' + i)));
    m_editor->push();
    m_cloud.setFaults(R"([{"method":"GET","target":"*f7?*","times":5,"status":503}])");
    m_cloud.takeCounters();
    m_player->worker().pull("Shop", "1");
    QTRY_COMPARE_WITH_TIMEOUT(m_player->tree(), m_editor->tree(), 30'000);
    const int requests = m_cloud.takeCounters().value("GET media");
    QVERIFY2(requests <= 22 + 5 + 2, qPrintable(QString::number(requests))); // two runs' maps, each file once
}

void TestSync::manyRevisionsAreMerged()
{
    m_editor->push();
    m_cloud.setFaults(R"([{"method":"GET","target":"*dirmap*","delayMs":300}])");
    for (int revision = 1; revision <= 1000; ++revision)
        m_player->worker().pull("Shop", QString::number(revision));
    QTRY_COMPARE(m_player->said.filter("1000").size(), 1);
    QVERIFY(m_player->said.count("start") <= 2);
    QVERIFY(m_cloud.takeCounters().value("GET media") <= 6);
}

void TestSync::aFailingProjectHoldsNoOtherUp()
{
    m_editor->push();
    m_cloud.put("NUVEX/users/a@b.c/ShareFolder/Bad/x", "x");
    m_cloud.put("NUVEX/users/a@b.c/ShareFolder/Bad/dirmap", "x 1\n");
    m_cloud.setFaults(R"([{"method":"GET","target":"*Bad%2Fx*","times":100,"status":500}])");
    m_player->worker().pull("Bad", "1");
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_player->tree(), m_editor->tree());
    m_cloud.setFaults("[]");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_player->project() + "/../Bad/x"), 20'000);
}

void TestSync::foldersAndFilesChangePlaces()
{
    m_editor->edit("x", "a file");
    m_editor->edit("y/in/side", "in a folder");
    m_editor->push();
    m_player->pull("0");
    m_editor->remove("x");
    m_editor->remove("y/in/side");
    QDir(m_editor->project()).rmpath("y/in");
    m_editor->edit("x/in/side", "a folder now");
    m_editor->edit("y", "a file now");
    m_editor->push();
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_player->tree(), m_editor->tree());
}

// What a link in the project leads to, or what else stands in a file's place, is left alone.
void TestSync::linksAreNotFollowed()
{
    QTemporaryDir outside;
    QDir().mkpath(m_player->project());
    QFile::link(outside.path(), m_player->project() + "/images");
    m_player->put("main.qml/own", "keep me");
    m_editor->edit("other", "o");
    m_editor->push();
    const LogCapture log;
    QVERIFY(m_player->pull("1"));
    QVERIFY(QDir(outside.path()).isEmpty());
    QCOMPARE(m_player->tree().value("main.qml/own"), QByteArray("keep me"));
    QCOMPARE(m_player->tree().value("other"), QByteArray("o"));
    QVERIFY(log.contains("no place"));
}

void TestSync::garbageIsNoMap()
{
    m_editor->push();
    m_player->pull("0");
    const Tree before = m_player->tree();
    for (const QByteArray& text : {QByteArray("../../evil 1\n/etc/x 1\n"), QByteArray(5000, 'x'),
                                   QByteArray(limits::dirmapBytes + 1000, 'x')}) {
        const LogCapture log;
        m_cloud.put(shared + "dirmap", text);
        m_player->worker().pull("Shop", "1");
        QTRY_VERIFY(log.contains("not understood"));
        QCOMPARE(m_player->tree(), before);
    }
}

// The last good project stays, and nothing is left beside it.
void TestSync::fullDiskKeepsTheOldProject()
{
    m_editor->push();
    m_player->pull("0");
    const Tree before = m_player->tree();
    m_editor->edit("main.qml", "two");
    m_editor->edit("images/a b.png", QByteArray(3'000'000, 'q'));
    m_editor->push();
    {
        const FaultInjection full(Fault::DiskFull);
        const LogCapture log;
        m_player->worker().pull("Shop", "1");
        QTRY_VERIFY(log.contains("cannot be read or written"));
    }
    QCOMPARE(m_player->tree(), before);
    QTRY_COMPARE_WITH_TIMEOUT(m_player->tree(), m_editor->tree(), 20'000);
}

void TestSync::downloadsAProject()
{
    m_editor->push();
    QCOMPARE(m_player->resultOf(m_player->worker().download("a@b.c/ShareFolder/Shop/")).fault,
             StorageFault::None);
    QCOMPARE(m_player->tree(), m_editor->tree());
    QCOMPARE(m_player->said, QStringList({"stop", "reload"}));
    QCOMPARE(m_player->resultOf(m_player->worker().download("a@b.c/ShareFolder/None")).fault,
             StorageFault::Missing);
    QCOMPARE(m_player->worker().download("a@b.c/ShareFolder/.."), 0);
    // One that cannot be had now is not tried again.
    m_cloud.setFaults(R"([{"method":"GET","times":100,"status":500}])");
    QCOMPARE(m_player->resultOf(m_player->worker().download("a@b.c/ShareFolder/Other")).fault,
             StorageFault::Busy);
}

// The worker waits for the GUI thread to stop the player while the GUI thread waits for the worker to end.
void TestSync::endsWithoutTheGui()
{
    m_editor->push();
    m_player->worker().pull("Shop", "0");
    QElapsedTimer clock;
    clock.start();
    while (!QFile::exists(m_player->records() + "/journal.json") && clock.elapsed() < 5000)
        QThread::msleep(5);
    QThread::msleep(300);
    clock.start();
    m_player->turnOff();
    QVERIFY(clock.elapsed() < 1000);
    m_player->turnOn(); // which finishes it
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::endsInATransfer()
{
    m_editor->push();
    for (const char* fault : {"\"stallAfter\":5000", "\"delayMs\":20000", "\"bytesPerSecond\":1000"}) {
        m_cloud.setFaults(QByteArray("[{\"method\":\"GET\",\"target\":\"*a%20b*\",") + fault + "}]");
        m_player->worker().pull("Shop", "0");
        QTRY_VERIFY(m_player->tree().contains("images/a b.png_temp"));
        QTest::qWait(300);
        QElapsedTimer clock;
        clock.start();
        m_player->turnOff();
        QVERIFY(clock.elapsed() < 1000);
        m_player->turnOn(); // which takes it back
        QCOMPARE(m_player->tree(), Tree());
    }
    QVERIFY(m_player->pull("0"));
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::tokenEndsDuringAPull()
{
    for (int i = 0; i < 40; ++i)
        m_editor->edit(QString("f%1").arg(i), QByteArray(1000, 'x'));
    m_editor->push();
    m_cloud.setFaults(R"([{"method":"GET","skip":20,"times":1000,"credentialsExpired":true}])");
    QTimer::singleShot(1500, [this] { m_cloud.setFaults("[]"); });
    QVERIFY(m_player->pull("1"));
    QCOMPARE(m_player->tree(), m_editor->tree());
}

void TestSync::noNetworkThenNetwork()
{
    m_editor->push();
    m_player->online = false;
    m_player->worker().pull("Shop", "0");
    QTest::qWait(500);
    QCOMPARE(m_player->said, QStringList());
    QCOMPARE(m_player->push().fault, StorageFault::NoConnection);
    m_player->online = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_player->tree(), m_editor->tree(), 10'000);
    m_cloud.kill();
    m_editor->edit("main.qml", "two");
    QVERIFY(!m_editor->push());
    m_player->worker().pull("Shop", "1");
    m_cloud.start();
    QVERIFY(m_editor->push());
    QTRY_COMPARE_WITH_TIMEOUT(m_player->tree(), m_editor->tree(), 20'000);
}

QTEST_GUILESS_MAIN(TestSync)
#include "tst_sync.moc"
