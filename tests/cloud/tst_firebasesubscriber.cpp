// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/realtime/firebasesubscriber.h"
#include "tests/support/httpserver.h"
#include "tests/support/localcloud.h"
#include "tests/support/logcapture.h"

#include <QTest>

using namespace std::chrono_literals;

class TestFirebaseSubscriber : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void eventsComeWholeInAnyPieces();
    void hugeEventsAreLeftOut();
    void followsAPlace();
    void failedStreamsAreOpenedAgain_data();
    void failedStreamsAreOpenedAgain();
    void cleanEndIsLeftAlone();
    void silenceIsAFailure();
    void subscribingAgainDropsTheOldStream();
    void unsubscribedStaysSo();
    void redirects();
    void mayGoInItsOwnSignal();

private:
    QString place(const QString& name) const
    {
        return m_cloud.address() + "/" + name + ".json?auth=" + m_cloud.deployment().databaseCredential;
    }
    void follow(FirebaseSubscriber& subscriber)
    {
        connect(&subscriber, &FirebaseSubscriber::dataReceived, this,
                [this](const QString& data) { data.isEmpty() ? void(++m_ends) : void(m_events << data); });
    }

    LocalCloud m_cloud;
    QStringList m_events;
    int m_ends = 0; // of streams, that were told of
};

void TestFirebaseSubscriber::init()
{
    m_events.clear();
    m_ends = 0;
    m_cloud.setFaults("[]");
}

// Cut into two at every byte, and with each kind of line end.
void TestFirebaseSubscriber::eventsComeWholeInAnyPieces()
{
    const QByteArray text = "event: put\ndata: {\"path\":\"/\",\"data\":\"\xc3\xa4\"}\n\n"
                            ": a comment\n\nevent: keep-alive\ndata: null\n\nevent: put\ndata: 1\n\n";
    const QList<QByteArray> expected{"event: put\ndata: {\"path\":\"/\",\"data\":\"\xc3\xa4\"}\n\n",
                                     ": a comment\n\n", "event: keep-alive\ndata: null\n\n",
                                     "event: put\ndata: 1\n\n"};
    for (const char* lineEnd : {"\n", "\r", "\r\n"}) {
        const QByteArray sent = "\n" + QByteArray(text).replace("\n", lineEnd) + "event: cut";
        for (int cut = 0; cut <= sent.size(); ++cut) {
            EventLines lines;
            QList<QByteArray> events = lines.feed(sent.left(cut));
            events += lines.feed(sent.mid(cut));
            QCOMPARE(events, expected);
        }
    }
}

void TestFirebaseSubscriber::hugeEventsAreLeftOut()
{
    const LogCapture log;
    EventLines lines;
    QVERIFY(lines.feed("data: " + QByteArray(limits::eventBytes, 'x')).isEmpty());
    QVERIFY(lines.feed(QByteArray(limits::eventBytes, 'x') + "\n\n").isEmpty());
    QCOMPARE(log.messages().size(), 1);
    QCOMPARE(lines.feed("data: 1\n\n"), QList<QByteArray>{"data: 1\n\n"});
}

void TestFirebaseSubscriber::followsAPlace()
{
    FirebaseSubscriber subscriber;
    follow(subscriber);
    m_cloud.setDatabase("Users/ab/Projects/Shop", R"({"revision":3})");
    subscriber.subscribe(place("Users/ab/Projects/Shop/revision"));
    QTRY_COMPARE(m_events.size(), 1);
    m_cloud.setDatabase("Users/ab/Projects/Shop/revision", "4");
    QTRY_COMPARE(m_events, QStringList({"event: put\ndata: {\"path\":\"/\",\"data\":3}\n\n",
                                        "event: put\ndata: {\"path\":\"/\",\"data\":4}\n\n"}));
}

void TestFirebaseSubscriber::failedStreamsAreOpenedAgain_data()
{
    QTest::addColumn<QByteArray>("fault");
    for (const char* fault : {"\"status\":401", "\"status\":500", "\"drop\":\"before\",\"times\":9"})
        QTest::newRow(fault) << QByteArray(fault);
}

void TestFirebaseSubscriber::failedStreamsAreOpenedAgain()
{
    QFETCH(QByteArray, fault);
    FirebaseSubscriber subscriber;
    follow(subscriber);
    m_cloud.setDatabase("x", "1");
    m_cloud.setFaults("[{\"method\":\"GET\"," + fault + "}]");
    {
        const LogCapture log;
        subscriber.subscribe(place("x"));
        QTRY_VERIFY(log.contains("error firebase subscriber"));
        QVERIFY(!log.contains(m_cloud.deployment().databaseCredential));
    }
    QCOMPARE(m_events, QStringList());
    QTRY_COMPARE(m_ends, 1);
    m_cloud.setFaults("[]");
    subscriber.checkUp();
    QTRY_COMPARE(m_events.size(), 1);
    subscriber.checkUp(); // it is well
    m_cloud.setDatabase("x", "2");
    QTRY_COMPARE(m_events.size(), 2);
}

void TestFirebaseSubscriber::cleanEndIsLeftAlone()
{
    HttpServer server;
    server.setAnswer("/x.json", HttpAnswer::complete(200, "event: put\ndata: 1\n\n"));
    FirebaseSubscriber subscriber;
    follow(subscriber);
    subscriber.subscribe(server.url("/x.json"));
    QTRY_COMPARE(m_ends, 1);
    QCOMPARE(m_events.size(), 1);
    subscriber.checkUp();
    QTest::qWait(100);
    QCOMPARE(server.requests().size(), 1);
    subscriber.subscribe(server.url("/x.json"));
    QTRY_COMPARE(m_events.size(), 2);
}

void TestFirebaseSubscriber::silenceIsAFailure()
{
    FirebaseSubscriber subscriber(nullptr, 700ms);
    follow(subscriber);
    m_cloud.setDatabase("x", "1");
    subscriber.subscribe(place("x"));
    for (int i = 2; i < 6; ++i) { // each event counts as life
        QTRY_COMPARE(m_events.size(), i - 1);
        QTest::qWait(400);
        m_cloud.setDatabase("x", QByteArray::number(i));
    }
    const LogCapture log;
    QTRY_VERIFY(log.contains("OperationCanceledError"));
    subscriber.checkUp();
    QTRY_COMPARE(m_events.size(), 6);
}

void TestFirebaseSubscriber::subscribingAgainDropsTheOldStream()
{
    FirebaseSubscriber subscriber;
    follow(subscriber);
    m_cloud.setDatabase("x", "1");
    for (int i = 0; i < 20; ++i)
        subscriber.subscribe(place("x"));
    QTRY_COMPARE(m_events.size(), 1);
    m_cloud.setDatabase("x", "2");
    QTRY_COMPARE(m_events.size(), 2);
    QTest::qWait(200);
    QCOMPARE(m_events.size(), 2);
    QTRY_VERIFY(m_cloud.ask("GET", "/_localcloud/counters").contains("\"openStreams\": 1"));
}

void TestFirebaseSubscriber::unsubscribedStaysSo()
{
    FirebaseSubscriber subscriber;
    follow(subscriber);
    m_cloud.setFaults(R"([{"method":"GET","status":500}])");
    const LogCapture log;
    subscriber.subscribe(place("x"));
    QTRY_VERIFY(log.contains("error firebase subscriber"));
    subscriber.unsubscribe();
    subscriber.checkUp();
    QTest::qWait(200);
    QCOMPARE(m_events, QStringList());
}

void TestFirebaseSubscriber::redirects()
{
    HttpServer server;
    const auto to = [](const QByteArray& target) {
        return HttpAnswer::complete(307, {}, "Location: " + target + "\r\n");
    };
    server.setAnswer("/x", to("there")); // relative to the request's address
    server.setAnswer("/there", to(place("x").toUtf8()));
    server.setAnswer("/round", to("/round"));
    m_cloud.setDatabase("x", "1");
    FirebaseSubscriber subscriber;
    follow(subscriber);
    subscriber.subscribe(server.url("/x"));
    QTRY_COMPARE(m_events.size(), 1);
    const LogCapture log;
    subscriber.subscribe(server.url("/round"));
    QTRY_VERIFY(log.contains("too often"));
    QCOMPARE(server.requests().size(), 2 + 1 + limits::redirects);
    for (const HttpRequest& request : server.requests())
        QCOMPARE(request.headers["accept-encoding"],
                 QByteArray("identity")); // packed, one event could fill the memory
}

void TestFirebaseSubscriber::mayGoInItsOwnSignal()
{
    m_cloud.setDatabase("x", "1");
    auto* subscriber = new FirebaseSubscriber;
    connect(subscriber, &FirebaseSubscriber::dataReceived, this, [this, subscriber](const QString& data) {
        if (!data.isEmpty())
            m_events << data;
        subscriber->subscribe({});
        subscriber->unsubscribe();
        subscriber->deleteLater();
    });
    subscriber->subscribe(place("x"));
    QTRY_COMPARE(m_events.size(), 1);
    QTest::qWait(100);
    QCOMPARE(m_events.size(), 1);
}

QTEST_GUILESS_MAIN(TestFirebaseSubscriber)
#include "tst_firebasesubscriber.moc"
