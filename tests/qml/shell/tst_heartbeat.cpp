// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/script.h"
#include "tests/support/httpserver.h"

#include <QtTest>

/// The heartbeat with the clock in the test's hand: a tick is an emission of the timer's signal.
class TestHeartbeat : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void intervals();
    void screenshotsEveryTwentiethSharedTick();
    void answerSetsConnection();
    void silenceIsCutOff();
    void nextTickEndsTheOldRequest();
    void withoutCloud();
    void withoutAnAccount();

private:
    void tick() { QMetaObject::invokeMethod(m_script->child("heartbeat"), "triggered"); }
    QObject* timeOut() { return m_script->child("heartbeat")->property("timeOut").value<QObject*>(); }
    void setSharing(bool on) { m_api->settings["shareFolder"] = on; }

    const QByteArray m_path = "/Users/ab@xorg/Players/west_1.json?auth=cred";
    std::unique_ptr<RecordingApi> m_api;
    std::unique_ptr<SharedScript> m_script;
};

void TestHeartbeat::init()
{
    m_script.reset();
    m_api = std::make_unique<RecordingApi>();
    m_api->settings = {{"userEmail", "a.b@x.org"}, {"playerUID", "we.st_1"}, {"shareFolder", false}};
    m_script = std::make_unique<SharedScript>(m_api.get());
}

void TestHeartbeat::intervals()
{
    QObject* heartbeat = m_script->child("heartbeat");
    QCOMPARE(heartbeat->property("running").toBool(), false);
    QCOMPARE(heartbeat->property("triggeredOnStart").toBool(), false);
    QCOMPARE(heartbeat->property("repeat").toBool(), true);
    QCOMPARE(heartbeat->property("interval").toInt(), 1000);
    tick();
    QCOMPARE(heartbeat->property("interval").toInt(), 60000);
    QCOMPARE(timeOut()->property("interval").toInt(), 10000);
    QCOMPARE(timeOut()->property("repeat").toBool(), false);
}

void TestHeartbeat::screenshotsEveryTwentiethSharedTick()
{
    QVector<int> sharedTicks;
    int shared = 0;
    for (int i = 1; i <= 60; ++i) {
        setSharing(i <= 10 || i > 15); // ticks without sharing do not count
        shared += i <= 10 || i > 15;
        m_api->calls.clear();
        tick();
        if (m_api->calls.contains("uploadScreenshot 300"))
            sharedTicks.append(shared);
    }
    QCOMPARE(sharedTicks, QVector<int>({1, 21, 41}));
}

void TestHeartbeat::answerSetsConnection()
{
    HttpServer server;
    server.setAnswer(m_path, HttpAnswer::complete(200, "{}"));
    m_script->setHost(server.url(""));
    m_script->run("SS.commandsSubscription = CAPI.newFirebaseSubscriber();"
                  "SS.projectSubscriptions = [null, CAPI.newFirebaseSubscriber()];");
    tick();
    QTRY_COMPARE(m_api->answers, QVector<bool>({true}));
    QCOMPARE(m_api->calls.count("checkUp"), 2);
    const HttpRequest request = server.requests().constFirst();
    QCOMPARE(request.method, QByteArray("POST"));
    QCOMPARE(request.headers["x-http-method-override"], QByteArray("PATCH"));
    QCOMPARE(request.body, QByteArray(R"({"heartbeat":{".sv":"timestamp"}})"));
    QCOMPARE(timeOut()->property("running").toBool(), false);

    server.setAnswer(m_path, HttpAnswer::complete(401, R"({"error":"no"})"));
    tick();
    QTRY_COMPARE(m_api->answers, QVector<bool>({true, false}));
    QCOMPARE(m_api->calls.count("checkUp"), 2);
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestHeartbeat::silenceIsCutOff()
{
    HttpServer server;
    server.setAnswer(m_path, HttpAnswer::silence());
    m_script->setHost(server.url(""));
    tick();
    QTRY_COMPARE(server.requests().size(), 1);
    QVERIFY(m_api->answers.isEmpty());
    QCOMPARE(timeOut()->property("running").toBool(), true);
    QMetaObject::invokeMethod(timeOut(), "triggered");
    QTRY_COMPARE(m_api->answers, QVector<bool>({false}));
}

void TestHeartbeat::nextTickEndsTheOldRequest()
{
    HttpServer server;
    server.setAnswer(m_path, HttpAnswer::silence());
    m_script->setHost(server.url(""));
    tick();
    QTRY_COMPARE(server.requests().size(), 1);
    server.setAnswer(m_path, HttpAnswer::complete(200, "{}"));
    tick();
    QTRY_COMPARE(m_api->answers, QVector<bool>({false, true}));
    QCOMPARE(timeOut()->property("running").toBool(), false);
}

void TestHeartbeat::withoutCloud()
{
    tick();
    QVERIFY(m_api->answers.isEmpty()); // never before the call returns
    QTRY_COMPARE(m_api->answers, QVector<bool>({false}));
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestHeartbeat::withoutAnAccount()
{
    HttpServer server;
    m_script->setHost(server.url(""));
    m_api->settings["userEmail"] = "";
    setSharing(true);
    tick();
    QTest::qWait(100);
    QCOMPARE(server.requests().size(), 0);
    QVERIFY(m_api->calls.isEmpty() && m_api->answers.isEmpty());
}

QTEST_MAIN(TestHeartbeat)
#include "tst_heartbeat.moc"
