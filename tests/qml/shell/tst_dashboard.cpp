// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/localcloud.h"

#include "api/capi.h"
#include "api/downloadurl.h"
#include "app/nativetypes.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtTest>

/// What the dashboard makes of the database's answers, its clock, and the addresses of screenshots.
class TestDashboard : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void ages_data();
    void ages();
    void labels_data();
    void labels();
    void arranged_data();
    void arranged();
    void clockHoldsWhileTheTimerHurries();
    void screenshotIsSignedOffTheThread();

private:
    QString run(const QString& code);

    QQmlEngine m_engine;
};

QString TestDashboard::run(const QString& code)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQml 2.15\n"
                      "import 'qrc:/Nuvex/PlayerQML/private/dashboard/players.js' as Players\n"
                      "QtObject { function run(code) { return JSON.stringify(eval(code)); } }",
                      QUrl());
    const std::unique_ptr<QObject> root(component.create());
    QVariant result;
    QMetaObject::invokeMethod(root.get(), "run", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, code));
    return result.toString().replace('"', '\'');
}

void TestDashboard::answers_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("player");

    const QString silent = ",'heartbeat':0,'project':'','revision':''";
    QTest::newRow("whole")
        << "{'a b_c_12': {heartbeat: 5, project: 'Shop', revision: 3, version: 3}}"
        << "[{'playerName':'a b','playerId':'12','heartbeat':5,'project':'Shop','revision':'3','player':"
           "'a b_c_12'}]";
    QTest::newRow("no underscore") << "{west: {}}"
                                   << "[{'playerName':'west','playerId':'west'" + silent +
                                          ",'player':'west'}]";
    QTest::newRow("damaged") << "{'a_1': 7}"
                             << "[{'playerName':'a','playerId':'1'" + silent + ",'player':'a_1'}]";
    QTest::newRow("damaged members") << "{'a_1': {heartbeat: 'x', project: [2]}}"
                                     << "[{'playerName':'a','playerId':'1'" + silent + ",'player':'a_1'}]";
    QTest::newRow("none") << "null"
                          << "[]";
}

void TestDashboard::answers()
{
    QFETCH(QString, answer);
    QTEST(run("Players.playersOf(" + answer + ")"), "player");
}

void TestDashboard::ages_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("age");
    QTest::addColumn<QString>("color");

    const QString green = "#2DB651";
    QTest::newRow("clock ahead") << -5.0 << "0s" << green;
    QTest::newRow("seconds") << 59.4 << "59s" << green;
    QTest::newRow("a minute") << 59.5 << "1m" << green;
    QTest::newRow("last live") << 179.999 << "3m" << green;
    QTest::newRow("first silent") << 180.0 << "3m"
                                  << "red";
    QTest::newRow("an hour") << 3600.0 << "1h"
                             << "red";
    QTest::newRow("a day") << 86400.0 << "1d"
                           << "red";
    QTest::newRow("days") << 10.6 * 86400 << "11d"
                          << "red";
}

void TestDashboard::ages()
{
    QFETCH(double, seconds);
    const QString heard = QString("1e12 - %1, 1e12").arg(seconds * 1000, 0, 'f', 0);
    QTEST(run("Players.age(" + heard + ")").remove('\''), "age");
    QTEST(run("Players.color(" + heard + ")").remove('\''), "color");
}

void TestDashboard::labels_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("labels");

    QTest::newRow("alone") << "'a_1', 'b_1'"
                           << "['a:','b:']";
    QTest::newRow("namesakes") << "'a_1764000360417', 'a_1764000000417', 'b_1'"
                               << "['Player 60417:a','Player 00417:a','b:']";
    QTest::newRow("by what is in the middle") << "'a_left_7', 'a_right_7'"
                                              << "['Player left_7:a','Player right_7:a']";
    QTest::newRow("short ones") << "'a_12', 'a_012', '__proto__'"
                                << "['Player 12:a','Player 012:a',':']";
}

void TestDashboard::labels()
{
    QFETCH(QString, keys);
    QTEST(run("Players.labelled([" + keys +
              "].map(key => Players.playerOf(key, {})))"
              ".map(player => player.label + ':' + player.host)"),
          "labels");
}

void TestDashboard::arranged_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("players");

    QTest::newRow("by name, numbers by value") << "'', 0, false"
                                               << "['b1_1','B2_2','b10_3','c_4']";
    QTest::newRow("longest silent first, the live by name") << "'', 0, true"
                                                            << "['c_4','b10_3','b1_1','B2_2']";
    QTest::newRow("live") << "'', 1, true"
                          << "['b1_1','B2_2']";
    QTest::newRow("silent") << "'', 2, false"
                            << "['b10_3','c_4']";
    QTest::newRow("words of name and project, in any case") << "' shop  B', 0, false"
                                                            << "['B2_2','b10_3']";
    QTest::newRow("nobody") << "'[', 0, false"
                            << "[]";
}

void TestDashboard::arranged()
{
    QFETCH(QString, how);
    QTEST(run("((filter, show, bySilence) => Players.arranged(Players.named(Players.playersOf({'c_4': "
              "{heartbeat: 1e6}, 'b10_3': {heartbeat: 2e6, "
              "project: 'Shop'},"
              "'B2_2': {heartbeat: 9.9e6, project: 'shop'}, 'b1_1': {heartbeat: 9.99e6}}), filter), show, "
              "bySilence, 1e7))(" +
              how + ").map(p => p.player)"),
          "players");
}

void TestDashboard::clockHoldsWhileTheTimerHurries()
{
    QQmlComponent component(&m_engine, QUrl("qrc:/Nuvex/PlayerQML/private/dashboard/ClockTimer.qml"));
    const std::unique_ptr<QObject> timer(component.createWithInitialProperties({{"limit", 300}}));
    QVERIFY2(timer, qPrintable(component.errorString()));
    QSignalSpy passed(timer.get(), SIGNAL(passed()));
    QElapsedTimer clock;
    clock.start();
    QMetaObject::invokeMethod(timer.get(), "start");
    for (int tick = 0; tick < 10; ++tick)
        QMetaObject::invokeMethod(timer.get(), "triggered");
    QCOMPARE(passed.count(), 0);
    QVERIFY(passed.wait());
    QVERIFY2(clock.elapsed() >= 299, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!timer->property("running").toBool());
}

void TestDashboard::screenshotIsSignedOffTheThread()
{
    LocalCloud cloud;
    cloud.put("NUVEX/a b.jpg", "picture");
    CAPI capi(nullptr, nullptr, cloud.deployment());
    m_engine.rootContext()->setContextProperty("CAPI", &capi);
    registerNativeTypes(cloud.deployment());
    QQmlComponent component(&m_engine);
    component.setData("import Nuvex.Native 1.1\nDownloadUrl {}", QUrl());
    const std::unique_ptr<DownloadUrl> address(qobject_cast<DownloadUrl*>(component.create()));
    QVERIFY2(address, qPrintable(component.errorString()));
    address->setObject("NUVEX/none.jpg"); // its answer comes too late to count
    address->setObject("NUVEX/a b.jpg");
    QVERIFY(address->url().isEmpty());
    QTRY_VERIFY(!address->url().isEmpty());
    QTest::qWait(100);
    const QString path = address->url().toString(QUrl::FullyEncoded).remove(cloud.address());
    QCOMPARE(cloud.ask("GET", path), QByteArray("picture"));
    address->setObject("");
    QVERIFY(address->url().isEmpty());
    m_engine.rootContext()->setContextProperty("CAPI", nullptr);
}

int main(int argc, char* argv[])
{
    QTemporaryDir folder;
    for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(place, QFile::encodeName(folder.filePath(place)));
    QGuiApplication application(argc, argv);
    TestDashboard test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_dashboard.moc"
