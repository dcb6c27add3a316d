// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/scriptguard.h"
#include "tests/support/logcapture.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QtTest>

class TestScriptGuard : public QObject
{
    Q_OBJECT

private slots:
    void endlessScriptsAreCutOff();
    void othersAreLeft();
};

void TestScriptGuard::endlessScriptsAreCutOff()
{
    QJSEngine engine;
    const ScriptGuard guard(engine, std::chrono::milliseconds(400));
    for (const char* script : {"while (true) {}", "while (true) { try { for (;;) {} } catch (error) {} }"}) {
        const LogCapture log;
        QElapsedTimer clock;
        clock.start();
        engine.evaluate(script);
        QVERIFY2(clock.elapsed() >= 380, qPrintable(QString::number(clock.elapsed())));
        QTRY_VERIFY(log.contains("did not end"));
        QCOMPARE(engine.evaluate("1 + 1").toInt(), 2); // the next one runs again
    }
}

// Together they take longer than one may.
void TestScriptGuard::othersAreLeft()
{
    QJSEngine engine;
    const ScriptGuard guard(engine, std::chrono::milliseconds(2000));
    for (int i = 0; i < 10; ++i) {
        const QJSValue sum = engine.evaluate("const end = Date.now() + 300; while (Date.now() < end) {} 7");
        QCOMPARE(sum.toInt(), 7);
        QTest::qWait(120);
    }
}

QTEST_GUILESS_MAIN(TestScriptGuard)
#include "tst_scriptguard.moc"
