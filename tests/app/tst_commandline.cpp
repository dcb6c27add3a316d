// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/startpage.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void startPage_data();
    void startPage();
};

void TestCommandLine::answers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("help") << QStringList("--help") << 0 << "--screenshot <FILE>";
    QTest::newRow("version") << QStringList("--version") << 0 << "nuvex 1.";
    QTest::newRow("unknown option") << QStringList("--wall") << 2 << "Unknown option 'wall'";
    QTest::newRow("delay") << QStringList({"--after", "soon"}) << 2 << "--after takes seconds";
    QTest::newRow("check of nothing") << QStringList({"--check", "/nowhere"}) << 1 << "the file is missing";
}

void TestCommandLine::answers()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, text);
    QTemporaryDir profile;
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(NUVEX_PROGRAM, QStringList({"--profile", profile.path()}) + arguments);
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    const QString output = QString::fromUtf8(program.readAll());
    QVERIFY2(output.contains(text), qPrintable(output));
    QTEST(program.exitCode(), "code");
}

void TestCommandLine::startPage_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("name");
    QTest::newRow("settings") << int(Options::Start::BySettings) << ""
                              << ""
                              << "";
    QTest::newRow("a name") << int(Options::Start::Play) << "Shop"
                            << "play"
                            << "Shop";
    QTest::newRow("unknown name") << int(Options::Start::Edit) << "Nobody"
                                  << "edit"
                                  << "Nobody";
    QTest::newRow("a folder") << int(Options::Start::Play) << "outside/Lobby"
                              << "play"
                              << "../outside/Lobby";
    QTest::newRow("gallery") << int(Options::Start::Gallery) << ""
                             << "gallery"
                             << "";
}

void TestCommandLine::startPage()
{
    QTemporaryDir home;
    QDir(home.path()).mkpath("Work/Shop");
    QDir(home.path()).mkpath("outside/Lobby");
    QDir(home.path()).mkpath("Shop");
    const QString before = QDir::currentPath();
    QDir::setCurrent(home.path());
    QFETCH(int, start);
    QFETCH(QString, project);
    Options options;
    options.start = Options::Start(start);
    options.project = project;
    const QVariantMap page = ::startPage(options, home.filePath("Work"));
    options.project = home.filePath("outside/Lobby");
    const QVariantMap absolute = ::startPage(options, home.filePath("Work"));
    QDir::setCurrent(before);
    QTEST(page["startAction"].toString(), "action");
    QTEST(page["startProject"].toString(), "name");
    QCOMPARE(absolute["startProject"].toString(), QString("../outside/Lobby"));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
