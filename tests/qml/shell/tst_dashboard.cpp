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

#include <array>

/// What the dashboard makes of the database's answers, its clock, and the addresses of screenshots.
class TestDashboard : public QObject
{
    Q_OBJECT

private slots:
    void playersScript_data();
    void playersScript();
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

void TestDashboard::playersScript_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("result");
    // Of each row its name, what the code is about, and what comes out.
    const auto rows = [](const QString& code, const std::vector<std::array<const char*, 3>>& table) {
        for (const auto& [name, subject, result] : table)
            QTest::newRow(name) << code.arg(subject)
                                << QString(result).replace("NEVER",
                                                           "'heartbeat':0,'project':'','revision':''");
    };

    rows("Players.playersOf(%1)",
         {{"whole", "{'a b_c_12': {heartbeat: 5, project: 'Shop', revision: 3, version: 3}}",
           "[{'playerName':'a b','playerId':'12','heartbeat':5,'project':'Shop','revision':'3','player':'a "
           "b_c_12'}]"},
          {"no underscore", "{west: {}}", "[{'playerName':'west','playerId':'west',NEVER,'player':'west'}]"},
          {"damaged", "{'a_1': 7}", "[{'playerName':'a','playerId':'1',NEVER,'player':'a_1'}]"},
          {"damaged members", "{'a_1': {heartbeat: 'x', project: [2]}}",
           "[{'playerName':'a','playerId':'1',NEVER,'player':'a_1'}]"},
          {"none", "null", "[]"}});
    rows("[Players.age(1e12 - 1000 * %1, 1e12), Players.color(1e12 - 1000 * %1, 1e12)]",
         {{"clock ahead", "-5", "['0s','#2DB651']"},
          {"seconds", "59.4", "['59s','#2DB651']"},
          {"a minute", "59.5", "['1m','#2DB651']"},
          {"last live", "179.999", "['3m','#2DB651']"},
          {"first silent", "180", "['3m','red']"},
          {"an hour", "3600", "['1h','red']"},
          {"a day", "86400", "['1d','red']"},
          {"days", "10.6 * 86400", "['11d','red']"}});
    rows("Players.labelled([%1].map(key => Players.playerOf(key, {}))).map(player => player.label + ':' + "
         "player.host)",
         {{"alone", "'a_1', 'b_1'", "['a:','b:']"},
          {"namesakes", "'a_1764000360417', 'a_1764000000417', 'b_1'",
           "['Player 60417:a','Player 00417:a','b:']"},
          {"by what is in the middle", "'a_left_7', 'a_right_7'", "['Player left_7:a','Player right_7:a']"},
          {"short ones", "'a_12', 'a_012', '__proto__'", "['Player 12:a','Player 012:a',':']"}});
    rows("((filter, show, bySilence) => Players.arranged(Players.named(Players.playersOf({'c_4': {heartbeat: "
         "1e6}, "
         "'b10_3': {heartbeat: 2e6, project: 'Shop'}, 'B2_2': {heartbeat: 9.9e6, project: 'shop'}, "
         "'b1_1': {heartbeat: 9.99e6}}), filter), show, bySilence, 1e7))(%1).map(p => p.player)",
         {{"by name, numbers by value", "'', 0, false", "['b1_1','B2_2','b10_3','c_4']"},
          {"longest silent first, the live by name", "'', 0, true", "['c_4','b10_3','b1_1','B2_2']"},
          {"live", "'', 1, true", "['b1_1','B2_2']"},
          {"silent", "'', 2, false", "['b10_3','c_4']"},
          {"words of name and project, in any case", "' shop  B', 0, false", "['B2_2','b10_3']"},
          {"nobody", "'[', 0, false", "[]"}});
}

void TestDashboard::playersScript()
{
    QFETCH(QString, code);
    QTEST(run(code), "result");
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
