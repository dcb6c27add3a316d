// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"
#include "api/cloudtransfers.h"
#include "tests/support/files.h"
#include "tests/support/localcloud.h"
#include "tests/support/ziparchive.h"

#include <QQuickItem>
#include <QQuickView>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

namespace {

const QString shared = "NUVEX/users/a@b.c/ShareFolder/";

// How a transfer ended: its error, or "cancelled", or "fine".
QString endOf(CloudTransfers& transfers)
{
    QSignalSpy finished(&transfers, &CloudTransfers::finished);
    constexpr int patience = 20'000; // ms
    if (!transfers.isRunning() || !finished.wait(patience))
        return "never ended";
    if (finished[0][1].toBool())
        return "cancelled";
    const QString error = finished[0][0].toString();
    return error.isEmpty() ? "fine" : error;
}

} // namespace

/// The program's members and transfers for pages on the real local cloud.
class TestCapiCloud : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void listsAndFiles();
    void screenshotFitsTheSquare();
    void scriptsPublishAndPull();
    void demosAreImported();
    void pagesPublishWithAPicture();
    void pagesAskWhenBothHaveChanged();
    void pagesDownload();
    void cancelEndsSoon_data();
    void cancelEndsSoon();
    void nothingHappensAfterAPageHasGone();
    void errorsAreWords();

private:
    void start(const Deployment& deployment);
    QString work(const QString& path) const { return m_capi->getWorkDirectory() + '/' + path; }

    QTemporaryDir m_home;
    LocalCloud m_cloud;
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<CAPI> m_capi;
    std::unique_ptr<CloudTransfers> m_page;
};

void TestCapiCloud::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
    QCoreApplication::setOrganizationName("Nuvex");
    QCoreApplication::setApplicationName("Nuvex");
}

void TestCapiCloud::init()
{
    m_cloud.setFaults("[]");
    for (const QString& name : m_cloud.objects("NUVEX/"))
        m_cloud.removeObject(name);
    QDir(m_home.filePath("data")).removeRecursively();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath("data")));
    start(m_cloud.deployment());
}

void TestCapiCloud::start(const Deployment& deployment)
{
    cleanup();
    write(m_home.filePath("Project.qml"), "import QtQuick 2.15\nItem { }");
    write(m_home.filePath("view.qml"),
          "import QtQuick 2.15\nItem { Loader { objectName: \"thePlayer\"; source: \"Project.qml\" } }");
    m_view = std::make_unique<QQuickView>(QUrl::fromLocalFile(m_home.filePath("view.qml")));
    m_view->resize(480, 270);
    m_view->setColor(Qt::red);
    m_view->show();
    m_capi = std::make_unique<CAPI>(m_view.get(), nullptr, deployment);
    m_capi->setSetting("userEmail", "a@b.c");
    m_capi->setSetting("playerUID", "p1");
    m_capi->setBaseFolder("Shop");
    m_page = std::make_unique<CloudTransfers>();
    m_page->setServices(m_capi->cloud());
}

void TestCapiCloud::cleanup()
{
    m_page.reset();
    m_capi.reset();
    m_view.reset();
}

void TestCapiCloud::listsAndFiles()
{
    for (const char* name : {"users/e@x/A/dirmap", "users/e@x/B c/x", "Demos/Show.ZIP", "Demos/notes.txt"})
        m_cloud.put(QString("NUVEX/") + name, "x");
    const QVariantList folders{QVariantMap{{"folder", "A"}}, QVariantMap{{"folder", "B c"}}};
    QCOMPARE(m_capi->getCloudProjectList("e@x"), folders);
    QCOMPARE(m_capi->getCloudProjectList("e@x/"), folders);
    QCOMPARE(m_capi->getDemosList("Demos"), QVariantList({QVariantMap{{"folder", "Show.ZIP"}}}));

    m_capi->writeToFile("some text", "a file.txt");
    QSignalSpy progress(m_capi.get(), &CAPI::uploadProgress);
    m_capi->uploadFile("a file.txt", "NUVEX/x y/100%?#+.txt");
    QCOMPARE(m_cloud.object("NUVEX/x y/100%?#+.txt"), QByteArray("some text"));
    QTRY_VERIFY(progress.contains(QVariantList({qlonglong(9), qlonglong(9)})));
    const QString url = m_capi->getDownloadUrl("NUVEX/x y/100%?#+.txt");
    QVERIFY(url.startsWith(m_cloud.address() + '/'));
    QCOMPARE(m_cloud.ask("GET", url.mid(m_cloud.address().size())), QByteArray("some text"));
}

void TestCapiCloud::screenshotFitsTheSquare()
{
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_capi->uploadScreenshot(200);
    const QByteArray bytes = m_cloud.object("NUVEX/users/a@b.c/screenshots/p1.jpg");
    const QImage picture = QImage::fromData(bytes, "JPG");
    QCOMPARE(picture.size(), QSize(200, 112));
    m_capi->setSetting("userEmail", "");
    m_cloud.takeCounters();
    m_capi->uploadScreenshot(200);
    QCOMPARE(m_cloud.takeCounters(), (QMap<QString, int>()));
    const QColor middle = picture.pixelColor(100, 56);
    QVERIFY2(middle.red() > 240 && middle.green() < 15, qPrintable(middle.name()));
}

// The window goes on while a script waits for its publish, and the player is stopped while files are swapped.
void TestCapiCloud::scriptsPublishAndPull()
{
    m_capi->writeToFile("Item { }", "main.qml");
    int turns = 0;
    QTimer window;
    QObject::connect(&window, &QTimer::timeout, [&] { ++turns; });
    window.start(10);
    m_cloud.setFaults(R"([{"method":"POST","delayMs":500}])");
    QSignalSpy uploading(m_capi.get(), &CAPI::uploadingFile);
    m_capi->doOneShareUp("Shop");
    QVERIFY2(turns > 20, qPrintable(QString::number(turns)));
    QCOMPARE(m_cloud.object(shared + "Shop/dirmap"), QByteArray("main.qml 1\n"));
    QCOMPARE(uploading, QList<QVariantList>({{"main.qml"}}));

    m_cloud.put(shared + "Shop/main.qml", "Item { x: 1 }");
    m_cloud.put(shared + "Shop/dirmap", "main.qml 2\n");
    QSignalSpy updated(m_capi.get(), &CAPI::projectUpdated);
    auto* player = m_view->rootObject()->findChild<QObject*>("thePlayer");
    QVERIFY(player->property("item").value<QObject*>());
    m_capi->doOneShareDown("Shop", "7");
    QTRY_COMPARE(updated, QList<QVariantList>({{"7"}}));
    QCOMPARE(m_capi->readTextFile("main.qml"), QString("Item { x: 1 }"));
    QVERIFY(!player->property("item").value<QObject*>());

    QSignalSpy downloading(m_capi.get(), &CAPI::downloadingFile);
    m_capi->removeProject("Shop");
    m_capi->downloadProject("a@b.c/ShareFolder/Shop");
    QCOMPARE(m_capi->readTextFile("main.qml"), QString("Item { x: 1 }"));
    QCOMPARE(downloading, QList<QVariantList>({{"main.qml"}}));
    m_capi->downloadProject("a@b.c/ShareFolder/..");
    m_capi->doOneShareUp("../Shop");
}

void TestCapiCloud::demosAreImported()
{
    ZipEntry document;
    document.name = "Show/main.qml";
    document.data = "Item { }";
    const QByteArray archive = ZipArchive{document}.bytes();
    m_cloud.put("NUVEX/Demos/Show.zip", archive);
    m_cloud.put("NUVEX/Demos/Show.png", "a picture");
    m_cloud.put("NUVEX/Demos/broken.zip", "no archive");
    m_capi->downloadDemoProject("NUVEX/Demos/", "Show.zip");
    QTRY_COMPARE(contents(work("Show/main.qml")), QByteArray("Item { }"));
    m_capi->downloadDemoProject("NUVEX/Demos/", "broken.zip");
    m_capi->downloadDemoProject("NUVEX/Demos/", "../../evil.zip");

    m_capi->removeProject("Show");
    QSignalSpy listed(m_page.get(), &CloudTransfers::listed);
    m_page->listArchives();
    QCOMPARE(endOf(*m_page), QString("fine"));
    const QVariantList entries = listed[0][0].toList();
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries[0].toMap()["name"], QVariant("Show"));
    QCOMPARE(entries[0].toMap()["bytes"].toInt(), archive.size());
    const QString picture = entries[0].toMap()["picture"].toString();
    QCOMPARE(m_cloud.ask("GET", picture.mid(m_cloud.address().size())), QByteArray("a picture"));
    m_page->downloadArchive(entries[0].toMap()["source"].toString());
    QCOMPARE(endOf(*m_page), QString("fine"));
    QTRY_VERIFY(m_capi->extractFinished());
    QCOMPARE(contents(work("Show/main.qml")), QByteArray("Item { }"));

    // One that holds a project without its folder; it gets one.
    document.name = "main.qml";
    ZipEntry picture2 = document;
    picture2.name = "images/a.png";
    m_cloud.put("NUVEX/Demos/Bare one.zip", ZipArchive{picture2, document}.bytes());
    m_page->downloadArchive("NUVEX/Demos/Bare one.zip");
    QCOMPARE(endOf(*m_page), QString("fine"));
    QTRY_COMPARE(contents(work("Bare one/main.qml")), QByteArray("Item { }"));
    QVERIFY(QFile::exists(work("Bare one/images/a.png")));
    QCOMPARE(QDir(work(".")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({"Bare one", "Show"}));

    // Nothing stays of the archives.
    QDir root(work(".."));
    for (const QString& hidden : root.entryList({".store-*"}, QDir::Dirs | QDir::Hidden))
        QTRY_COMPARE(QDir(root.filePath(hidden)).entryList(QDir::Files), QStringList());
}

void TestCapiCloud::pagesPublishWithAPicture()
{
    m_capi->writeToFile("Item { }", "main.qml");
    m_capi->writeToFile(QString(200'000, 'x'), "notes.txt");
    write(m_page->pictureFile(), "a picture");
    QStringList files;
    connect(m_page.get(), &CloudTransfers::progressChanged, this, [&] {
        if (!m_page->file().isEmpty() && !files.contains(m_page->file()))
            files.append(m_page->file());
    });
    m_page->publish("Shop", m_page->pictureFile());
    QCOMPARE(endOf(*m_page), QString("fine"));
    QCOMPARE(files, QStringList({"main.qml", "notes.txt"}));
    QCOMPARE(m_page->progress(), 1.0);
    QVERIFY(m_page->isUploading());

    QSignalSpy listed(m_page.get(), &CloudTransfers::listed);
    m_page->listProjects();
    QCOMPARE(endOf(*m_page), QString("fine"));
    const QVariantMap entry = listed[0][0].toList().value(0).toMap();
    QCOMPARE(entry["name"], QVariant("Shop"));
    QCOMPARE(entry["source"], QVariant("a@b.c/ShareFolder/Shop"));
    const int mapBytes = m_cloud.object(shared + "Shop/dirmap").size();
    QCOMPARE(entry["bytes"].toInt(), 8 + 200'000 + mapBytes);
    QCOMPARE(m_cloud.ask("GET", entry["picture"].toString().mid(m_cloud.address().size())),
             QByteArray("a picture"));
}

void TestCapiCloud::pagesAskWhenBothHaveChanged()
{
    for (const char* file : {"a", "b"})
        m_capi->writeToFile("one", file);
    m_page->publish("Shop");
    QCOMPARE(endOf(*m_page), QString("fine"));
    for (const char* file : {"a", "b"}) {
        m_capi->writeToFile("mine", file);
        m_cloud.put(shared + "Shop/" + file, "theirs");
    }
    m_capi->updateDirmapFile(QVariantMap{{"a", 2}, {"b", 2}});
    m_cloud.put(shared + "Shop/dirmap", "a 5\nb 5\n");
    QStringList asked;
    connect(m_page.get(), &CloudTransfers::conflictsFound, this, [&](const QStringList& conflicts) {
        asked = conflicts;
        m_page->settle({"b"});
    });
    m_page->publish("Shop");
    QCOMPARE(endOf(*m_page), QString("fine"));
    QCOMPARE(asked, QStringList({"a", "b"}));
    QVERIFY(m_page->hasPublished());
    QCOMPARE(m_cloud.object(shared + "Shop/a"), QByteArray("mine"));
    QCOMPARE(m_cloud.object(shared + "Shop/b"), QByteArray("theirs"));
    QCOMPARE(m_cloud.object(shared + "Shop/dirmap"), QByteArray("a 6\nb 5\n"));

    m_cloud.put(shared + "Shop/dirmap", "a 6\nb 7\n");
    m_capi->updateDirmapFile(QVariantMap{{"a", 6}, {"b", 8}});
    m_page->publish("Shop");
    QCOMPARE(endOf(*m_page), QString("fine"));
    QVERIFY(!m_page->hasPublished());
}

void TestCapiCloud::pagesDownload()
{
    m_cloud.put(shared + "Lobby/main.qml", "Item { }");
    m_cloud.put(shared + "Lobby/dirmap", "main.qml 1\n");
    m_page->downloadProject("a@b.c/ShareFolder/Lobby");
    m_page->downloadProject("a@b.c/ShareFolder/Other"); // not while running
    QCOMPARE(endOf(*m_page), QString("fine"));
    QCOMPARE(contents(work("Lobby/main.qml")), QByteArray("Item { }"));
    QVERIFY(!QFile::exists(work("Other")));

    m_capi->setBaseFolder("Lobby");
    m_capi->writeToFile("Item { x: 1 }", "main.qml");
    m_capi->updateDirmapFile(QVariantMap{{"main.qml", 2}});
    m_cloud.put(shared + "Lobby/dirmap", "main.qml 2\n");
    QSignalSpy kept(m_page.get(), &CloudTransfers::kept);
    m_page->downloadProject("a@b.c/ShareFolder/Lobby");
    QCOMPARE(endOf(*m_page), QString("fine"));
    QCOMPARE(contents(work("Lobby/main.qml")), QByteArray("Item { x: 1 }"));
}

void TestCapiCloud::cancelEndsSoon_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : {"list", "archive", "project", "publish"})
        QTest::newRow(what) << what;
}

void TestCapiCloud::cancelEndsSoon()
{
    QFETCH(QString, what);
    m_capi->writeToFile("Item { }", "main.qml");
    m_cloud.setFaults(R"([{"method":"GET","times":100,"delayMs":20000}])");
    if (what == "list")
        m_page->listProjects();
    else if (what == "archive")
        m_page->downloadArchive("NUVEX/Demos/Show.zip");
    else if (what == "project")
        m_page->downloadProject("a@b.c/ShareFolder/Lobby");
    else
        m_page->publish("Shop");
    QTest::qWait(300);
    QElapsedTimer clock;
    clock.start();
    m_page->cancel();
    QCOMPARE(endOf(*m_page), QString("cancelled"));
    QVERIFY(clock.elapsed() < 2000);
}

void TestCapiCloud::nothingHappensAfterAPageHasGone()
{
    m_cloud.setFaults(R"([{"method":"GET","times":100,"delayMs":20000}])");
    m_page->listProjects();
    CloudTransfers other;
    other.setServices(m_capi->cloud());
    other.downloadProject("a@b.c/ShareFolder/Lobby");
    QTest::qWait(300);
    QElapsedTimer clock;
    clock.start();
    m_page.reset();
    other.cancel();
    QCOMPARE(endOf(other), QString("cancelled"));
    m_capi.reset();
    QVERIFY(clock.elapsed() < 2000);
    other.publish("Shop"); // there is nothing to do it with any more
    QVERIFY(!other.isRunning());
}

void TestCapiCloud::errorsAreWords()
{
    m_page->downloadProject("a@b.c/ShareFolder/None");
    QCOMPARE(endOf(*m_page), QString("The cloud does not have it"));
    m_capi->setSetting("userEmail", "");
    m_page->publish("Shop");
    QCOMPARE(endOf(*m_page), QString("Nobody is signed in"));
    m_capi->setSetting("userEmail", "a@b.c");
    m_page->publish("..");
    QCOMPARE(endOf(*m_page), QString("The cloud does not have it"));
    m_cloud.setFaults(R"([{"method":"GET","times":1000,"status":403}])");
    m_page->listArchives();
    QCOMPARE(endOf(*m_page), QString("The cloud refuses this computer's account"));
    start({});
    m_page->listProjects();
    QCOMPARE(endOf(*m_page), QString("No cloud is set up"));
    m_page->publish("Shop");
    QCOMPARE(endOf(*m_page), QString("No cloud is set up"));
    m_capi->doOneShareUp("Shop");
    QCOMPARE(m_capi->getDownloadUrl("x"), QString());
    QVERIFY(!m_capi->newFirebaseSubscriber());
}

QTEST_MAIN(TestCapiCloud)
#include "tst_capicloud.moc"
