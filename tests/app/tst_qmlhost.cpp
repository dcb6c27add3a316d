// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/qmlcontext.h"
#include "app/qmlhost.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

// Runs at the birth of every application object: lets each pass of the host run for a while, then asks for
// another one, and at last for the end.
int passes = 0;
int passesWanted = 0;
QList<int> threadsAtEnd;
QList<int> filesAtEnd;

int entries(const char* folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
}

void endPassLater()
{
    if (passesWanted == 0)
        return;
    QTimer::singleShot(700, [] {
        threadsAtEnd.append(entries("/proc/self/task"));
        filesAtEnd.append(entries("/proc/self/fd"));
        QCoreApplication::exit(++passes < passesWanted ? restartCode : 7);
    });
}

} // namespace
Q_COREAPP_STARTUP_FUNCTION(endPassLater)

class TestQmlHost : public QObject
{
    Q_OBJECT

private slots:
    void densityFactor_data();
    void densityFactor();
    void tenRestartsLeaveNothingBehind();
};

void TestQmlHost::densityFactor_data()
{
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<double>("expected");
    QTest::newRow("never below one") << 96.0 << 1.0;
    QTest::newRow("tablet") << 250.0 << 2.0;
    QTest::newRow("rounded before division") << 187.4 << 187 / 125.0;
    QTest::newRow("half rounds up") << 187.5 << 188 / 125.0;
}

void TestQmlHost::densityFactor()
{
    QFETCH(double, dotsPerInch);
    QTEST(::densityFactor(dotsPerInch), "expected");
}

void TestQmlHost::tenRestartsLeaveNothingBehind()
{
    QTemporaryDir profile;
    Options options;
    options.profile = profile.path();
    useProfile(options);
    char name[] = "nuvex";
    char* argv[] = {name, nullptr};
    int argc = 1;
    passesWanted = 11;
    QCOMPARE(runHost(argc, argv, options), 7);
    QCOMPARE(passes, 11);
    // The first passes warm caches up; from then on nothing may be added.
    QVERIFY2(threadsAtEnd.last() <= threadsAtEnd.at(2),
             qPrintable(QString("%1 threads, %2 before").arg(threadsAtEnd.last()).arg(threadsAtEnd.at(2))));
    QVERIFY2(filesAtEnd.last() <= filesAtEnd.at(2),
             qPrintable(QString("%1 handles, %2 before").arg(filesAtEnd.last()).arg(filesAtEnd.at(2))));
}

// No application object of its own: the host builds them.
QTEST_APPLESS_MAIN(TestQmlHost)
#include "tst_qmlhost.moc"
