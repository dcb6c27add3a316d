// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/gcloud.h"
#include "tests/support/files.h"
#include "tests/support/httpserver.h"
#include "tests/support/localcloud.h"
#include "tests/support/logcapture.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <numeric>

using Faults = QVector<StorageFault>;
Q_DECLARE_METATYPE(HttpAnswer)
Q_DECLARE_METATYPE(StorageFault)

class TestGCloud : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void objectsGoAndCome_data();
    void objectsGoAndCome();
    void oneTokenForAll();
    void endedTokenIsReplaced();
    void wrongClock();
    void longListsAreWhole();
    void signedUrlsWork();
    void preconditions();
    void manyFiles();
    void manyFilesWithFaults();
    void aDeadCloudIsNotAskedForEachFile();
    void answers_data();
    void answers();
    void notSetUp();
    void noSecretsInTheLog();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    QByteArray download(const QString& object) { return m_client->downloadData(object, 1'000'000).bytes; }
    Faults carried(Transfer::Method direction, int count);

    LocalCloud m_cloud;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<GCloud> m_client;
};

void TestGCloud::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_client = std::make_unique<GCloud>(m_cloud.deployment());
    m_cloud.setFaults("[]");
    m_cloud.takeCounters();
}

void TestGCloud::objectsGoAndCome_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"NUVEX/plain.txt", "NUVEX/a b%?#+&=:;@\"<>.png", "NUVEX/%2F%252e", "NUVEX/../../x",
          "NUVEX/\xc3\xa4\xe6\x97\xa5\xf0\x9f\x8e\x89.mp4", "NUVEX/ends with /"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

// What the program stores another client reads, and the other way round.
void TestGCloud::objectsGoAndCome()
{
    QFETCH(QString, name);
    const QByteArray bytes("line\r\n\0binary\xff", 14);
    QVERIFY(m_client->uploadData(bytes, name));
    QCOMPARE(m_cloud.object(name), bytes);
    write(path("up"), bytes + "2");
    QSignalSpy up(m_client.get(), &GCloud::uploadProgress);
    QVERIFY(m_client->uploadFile(path("up"), name));
    QCOMPARE(m_cloud.object(name), bytes + "2");
    QCOMPARE(up.constLast(), QVariantList({15, 15}));
    m_cloud.put(name, bytes + "3");
    QCOMPARE(download(name), bytes + "3");
    QSignalSpy down(m_client.get(), &GCloud::downloadProgress);
    QVERIFY(m_client->downloadFile(name, path("down")));
    QCOMPARE(contents(path("down")), bytes + "3");
    QCOMPARE(down.constLast(), QVariantList({15, 15}));
}

void TestGCloud::oneTokenForAll()
{
    m_client->uploadData("x", "NUVEX/x");
    m_client->downloadData("NUVEX/x", 1000);
    m_client->listFolders("NUVEX/");
    const QMap<QString, int> counters = m_cloud.takeCounters();
    QCOMPARE(counters.value("POST token"), 1);
    QCOMPARE(std::accumulate(counters.begin(), counters.end(), 0), 4);
}

void TestGCloud::endedTokenIsReplaced()
{
    m_cloud.put("NUVEX/x", "x");
    QVERIFY(m_client->downloadData("NUVEX/x", 1000));
    m_cloud.endTokens();
    QCOMPARE(m_client->downloadData("NUVEX/x", 1000).fault, StorageFault::Refused);
    QVERIFY(m_client->downloadData("NUVEX/x", 1000));
    // A lifetime of 600 s is just enough, one of 599 is not.
    for (const int lifetime : {599, 600}) {
        QBuffer answer;
        answer.setData("{\"access_token\":\"t\",\"expires_in\":" + QByteArray::number(lifetime) + "}");
        answer.open(QIODevice::ReadOnly);
        m_cloud.takeCounters();
        QVERIFY(m_client->getTokenFinished(&answer));
        QVERIFY(m_client->checkToken());
        QCOMPARE(m_cloud.takeCounters().value("POST token"), lifetime == 599 ? 1 : 0);
    }
}

// The service refuses what was signed an hour ago, and says what time it is.
void TestGCloud::wrongClock()
{
    HttpServer server;
    Deployment deployment = m_cloud.deployment();
    deployment.hosts.token = server.url("");
    const QDateTime later = QDateTime::currentDateTimeUtc().addSecs(3600);
    const QByteArray date = QLocale::c().toString(later, "ddd, dd MMM yyyy hh:mm:ss 'GMT'").toLatin1();
    server.setAnswer("/oauth2/v4/token",
                     HttpAnswer::complete(400, R"({"error":"invalid_grant"})", "Date: " + date + "\r\n"));
    GCloud client(deployment);
    QVERIFY(!client.getToken());
    QCOMPARE(server.requests().size(), 2);
    const QByteArray sent = QByteArray::fromPercentEncoding(server.requests().constLast().body);
    const QByteArray claims = QByteArray::fromBase64(sent.split('.').value(1), QByteArray::Base64UrlEncoding);
    const QByteArray issued = claims.mid(claims.indexOf("\"iat\": \"") + 8, 10);
    QVERIFY2(qAbs(issued.toLongLong() - later.toSecsSinceEpoch()) < 60, issued.constData());
}

void TestGCloud::longListsAreWhole()
{
    constexpr int count = 1'100; // a page has 1 000
    QVector<FileTransfer> files;
    write(path("x"), "x");
    for (int i = 0; i < count; ++i)
        files.append({m_client->urlToUpload(QString("list/%1/f%1.zip").arg(i)), path("x")});
    m_client->carry(Transfer::Method::Post, files, [](int, qint64, qint64) {});
    QCOMPARE(m_client->listFolders("list/").size(), count);
    const std::optional<Listing> all = m_client->list("list/", {});
    QVERIFY(all);
    QCOMPARE(all->objects.size(), count);
    QCOMPARE(all->objects.constFirst().bytes, 1LL);
    m_cloud.setFaults(R"([{"method":"GET","skip":1,"status":503}])");
    QVERIFY2(m_client->listFolders("list/").isEmpty(), "half a list is none");
    QCOMPARE(m_client->lastFault(), StorageFault::Busy);
}

void TestGCloud::signedUrlsWork()
{
    const QString name = "NUVEX/users/a@b.c/ShareFolder/My shop +1.jpg";
    m_cloud.put(name, "picture");
    const QString url = m_client->signedUrl(name);
    QCOMPARE(m_cloud.ask("GET", url.mid(m_cloud.address().size())), QByteArray("picture"));
    QVERIFY(m_cloud.ask("GET", url.mid(m_cloud.address().size()).replace("shop", "door")) != "picture");
}

void TestGCloud::preconditions()
{
    QVERIFY(m_client->uploadData("1", "NUVEX/once", false, 0));
    QCOMPARE(m_client->uploadData("2", "NUVEX/once", false, 0).fault, StorageFault::Changed);
    const StorageResult first = m_client->downloadData("NUVEX/once", 1000);
    QVERIFY(m_client->uploadData("3", "NUVEX/once", false, first.generation));
    QCOMPARE(m_client->uploadData("4", "NUVEX/once", false, first.generation).fault, StorageFault::Changed);
    QCOMPARE(m_cloud.object("NUVEX/once"), QByteArray("3"));
}

Faults TestGCloud::carried(Transfer::Method direction, int count)
{
    QVector<FileTransfer> files;
    for (int i = 0; i < count; ++i) {
        const QString object = "many/" + QString::number(i);
        files.append(direction == Transfer::Method::Post
                         ? FileTransfer{m_client->urlToUpload(object), path("up%1").arg(i)}
                         : FileTransfer{m_client->urlToDownload(object), path("down%1").arg(i)});
    }
    m_client->carry(direction, files, [](int, qint64, qint64) {});
    Faults faults;
    std::transform(files.cbegin(), files.cend(), std::back_inserter(faults),
                   [](const FileTransfer& f) { return f.fault; });
    return faults;
}

void TestGCloud::manyFiles()
{
    constexpr int count = 50;
    for (int i = 0; i < count; ++i)
        write(path("up%1").arg(i), QByteArray(i * 997, char('a' + i % 26)));
    QCOMPARE(carried(Transfer::Method::Post, count), Faults(count, StorageFault::None));
    QCOMPARE(carried(Transfer::Method::Get, count), Faults(count, StorageFault::None));
    for (int i = 0; i < count; ++i)
        QCOMPARE(contents(path("down%1").arg(i)), contents(path("up%1").arg(i)));
}

// One of each kind among files that arrive; what is not whole is not left there.
void TestGCloud::manyFilesWithFaults()
{
    for (int i = 0; i < 8; ++i)
        m_cloud.put("many/" + QString::number(i), QByteArray(100'000, char('a' + i)));
    m_cloud.removeObject("many/1");
    m_cloud.setFaults(R"([{"target":"*many%2F2?*","status":503},{"target":"*many%2F3?*","corruptAt":50000},
                          {"target":"*many%2F4?*","cutAfter":50000},{"target":"*many%2F5?*","lengthError":-10},
                          {"target":"*many%2F6?*","redirect":"http://127.0.0.1:1/"}])");
    const Faults faults = carried(Transfer::Method::Get, 8);
    QCOMPARE(faults, (Faults{StorageFault::None, StorageFault::Missing, StorageFault::Busy,
                             StorageFault::Damaged, StorageFault::NoConnection, StorageFault::Damaged,
                             StorageFault::Unexpected, StorageFault::None}));
    for (int i = 0; i < 8; ++i)
        QCOMPARE(QFile::exists(path("down%1").arg(i)), faults[i] == StorageFault::None);
    m_cloud.setFaults(R"([{"target":"*many%2F0?*","drop":"after"}])");
    QCOMPARE(carried(Transfer::Method::Get, 1),
             Faults{StorageFault::None}); // sent again by the network stack
}

void TestGCloud::aDeadCloudIsNotAskedForEachFile()
{
    m_cloud.setFaults(R"([{"method":"GET","times":1000,"status":500}])");
    QCOMPARE(carried(Transfer::Method::Get, 200), Faults(200, StorageFault::Busy));
    QVERIFY(m_cloud.takeCounters().value("GET media") < 30);
}

void TestGCloud::answers_data()
{
    QTest::addColumn<HttpAnswer>("answer");
    QTest::addColumn<StorageFault>("fault");
    const auto hash = [](const char* value) { return QByteArray("X-Goog-Hash: ") + value + "\r\n"; };
    const QByteArray html = "Content-Type: text/html; charset=utf-8\r\n";
    QTest::newRow("good sum") << HttpAnswer::complete(200, "123456789", hash("crc32c=4waSgw==,md5=xxxx"))
                              << StorageFault::None;
    QTest::newRow("bad sum") << HttpAnswer::complete(200, "123456780", hash("crc32c=4waSgw=="))
                             << StorageFault::Damaged;
    QTest::newRow("good hash") << HttpAnswer::complete(200, "123456789", hash("md5=JfnnlDI7RTiF9RgfG2JNCw=="))
                               << StorageFault::None;
    QTest::newRow("bad hash") << HttpAnswer::complete(200, "123456780", hash("md5=JfnnlDI7RTiF9RgfG2JNCw=="))
                              << StorageFault::Damaged;
    QTest::newRow("no hash") << HttpAnswer::complete(200, "123456789") << StorageFault::None;
    QTest::newRow("hotel") << HttpAnswer::complete(200, "<html>log in", html) << StorageFault::Damaged;
    QTest::newRow("no end") << HttpAnswer::raw("HTTP/1.1 200 OK\r\n\r\n12345") << StorageFault::Damaged;
    QTest::newRow("packed") << HttpAnswer::complete(200, "\x1f\x8b",
                                                    "Content-Encoding: gzip\r\n" + hash("crc32c=4waSgw=="))
                            << StorageFault::Damaged;
    QTest::newRow("endless") << HttpAnswer::complete(200, QByteArray(3'000'000, 'x'))
                             << StorageFault::Unexpected;
    QTest::newRow("401") << HttpAnswer::complete(401) << StorageFault::Refused;
    QTest::newRow("403") << HttpAnswer::complete(403) << StorageFault::Refused;
    QTest::newRow("404") << HttpAnswer::complete(404) << StorageFault::Missing;
    QTest::newRow("412") << HttpAnswer::complete(412) << StorageFault::Changed;
    QTest::newRow("429") << HttpAnswer::complete(429) << StorageFault::Busy;
    QTest::newRow("503") << HttpAnswer::complete(503) << StorageFault::Busy;
    QTest::newRow("302") << HttpAnswer::complete(302, {}, "Location: /elsewhere\r\n")
                         << StorageFault::Unexpected;
    QTest::newRow("nothing") << HttpAnswer::raw("") << StorageFault::NoConnection;
}

void TestGCloud::answers()
{
    QFETCH(HttpAnswer, answer);
    QFETCH(StorageFault, fault);
    HttpServer server;
    Deployment deployment = m_cloud.deployment();
    deployment.hosts.storage = server.url("");
    server.setAnswer("/storage/v1/b/" + deployment.bucket.toLatin1() + "/o/x?alt=media", answer);
    GCloud client(deployment);
    QCOMPARE(client.downloadData("x", 1'000'000).fault, fault);
    const StorageFault onDisk = client.downloadFile("x", path("x")).fault;
    QCOMPARE(onDisk, fault == StorageFault::Unexpected && answer.pieces[0].bytes.size() > 1'000'000
                         ? StorageFault::None
                         : fault);
    for (const HttpRequest& request : server.requests())
        QVERIFY2(!request.path.contains("elsewhere"), "redirects are not followed");
}

void TestGCloud::notSetUp()
{
    const LogCapture log;
    GCloud client{Deployment()};
    QCOMPARE(client.uploadData("x", "x").fault, StorageFault::NotSetUp);
    QCOMPARE(client.downloadFile("x", path("x")).fault, StorageFault::NotSetUp);
    QVERIFY(client.listFiles("x", "zip").isEmpty() && client.signedUrl("x").isEmpty());
    QCOMPARE(log.messages(), QStringList({"No cloud is set up", "No cloud is set up", "No cloud is set up"}));
}

void TestGCloud::noSecretsInTheLog()
{
    const LogCapture log;
    m_cloud.setFaults(R"([{"times":2,"status":500},{"times":2,"drop":"before"},{"bodyBytes":20000000}])");
    for (int i = 0; i < 6; ++i) {
        m_client->uploadData("x", "NUVEX/x");
        m_client->downloadData("NUVEX/x", 1000);
    }
    QVERIFY(!log.messages().isEmpty());
    for (const QString& secret :
         {QString("Bearer"), QString("assertion="), m_cloud.deployment().databaseCredential})
        QVERIFY2(!log.contains(secret), qPrintable(log.messages().join('\n')));
}

QTEST_GUILESS_MAIN(TestGCloud)
#include "tst_gcloud.moc"
