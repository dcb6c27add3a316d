// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/shell.h"

#include <QtTest>

/// What the shell opens at its start, and what the main page makes of it.
class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void firstPage_data();
    void firstPage();
    void playerGetsAName();
    void startedProjectIsForOneShow();
    void mainPageFollowsTheSettings();
};

namespace {

QVariantMap account(const QString& action, const QString& project)
{
    return {{"userEmail", "ann.b@example.org"},
            {"playerUID", "west.wing_12"},
            {"doOnStart", action},
            {"lastProject", project}};
}

const QVariantMap nobody{{"playerUID", "west_12"}, {"doOnStart", "play"}, {"lastProject", "Shop"}};

} // namespace

void TestShell::firstPage_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QVariantMap>("commandLine");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("baseProject");

    const auto asked = [](const QString& action, const QString& project) {
        return QVariantMap{{"startAction", action}, {"startProject", project}};
    };
    const QVariantMap nothing;
    QTest::newRow("nobody is logged in") << nobody << nothing << "LoginPage"
                                         << "Shop";
    QTest::newRow("play") << account("play", "Shop") << nothing << "PlayerPage"
                          << "Shop";
    QTest::newRow("play nothing") << account("play", "") << nothing << "MainPage" << QString();
    QTest::newRow("edit") << account("edit", "Shop") << nothing << "RADEditorPage"
                          << "Shop";
    QTest::newRow("edit nothing") << account("edit", "") << nothing << "MainPage" << QString();
    QTest::newRow("dashboard") << account("dashboard", "Shop") << nothing << "ConnectedPlayers"
                               << "Shop";
    QTest::newRow("dashboard alone") << account("dashboard", "") << nothing << "ConnectedPlayers"
                                     << QString();
    QTest::newRow("main") << account("", "Shop") << nothing << "MainPage"
                          << "Shop";
    QTest::newRow("unknown") << account("dance", "Shop") << nothing << "MainPage"
                             << "Shop";
    QTest::newRow("--play, nobody") << nobody << asked("play", "Cafe") << "PlayerPage"
                                    << "Cafe";
    QTest::newRow("--play, account") << account("edit", "Shop") << asked("play", "Cafe") << "PlayerPage"
                                     << "Cafe";
    QTest::newRow("--edit") << account("play", "Shop") << asked("edit", "Cafe") << "RADEditorPage"
                            << "Cafe";
    QTest::newRow("--gallery") << nobody << asked("gallery", "") << "GalleryPage"
                               << "Shop";
}

void TestShell::firstPage()
{
    QFETCH(QVariantMap, settings);
    QFETCH(QVariantMap, commandLine);
    TestProfile::reset(settings);
    TestProfile::addProject("Shop");
    TestProfile::addProject("Cafe");

    Shell shell(commandLine);
    QTEST(shell.pageName(), "page");
    QFETCH(QString, baseProject);
    if (!baseProject.isEmpty())
        QCOMPARE(shell.api().getBaseProjectName(), baseProject);
    // A start by command line leaves no trace in the settings.
    QCOMPARE(TestProfile::setting("doOnStart"), settings["doOnStart"]);
    QCOMPARE(TestProfile::setting("lastProject"), settings["lastProject"]);
    QCOMPARE(QFile::exists(shell.api().getBaseFolder() + "/editor05.qml"),
             shell.pageName() == "RADEditorPage");
    QVERIFY2(shell.warnings().isEmpty(), qPrintable(shell.warnings().join('\n')));
}

void TestShell::playerGetsAName()
{
    TestProfile::reset({});
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QString name;
    {
        Shell shell;
        name = shell.api().getSSetting("playerUID");
        const QString prefix = shell.api().hostName() + "_";
        QVERIFY(name.startsWith(prefix));
        const qint64 born = name.mid(prefix.size()).toLongLong();
        QVERIFY(born >= before && born <= QDateTime::currentMSecsSinceEpoch());
    }
    Shell again;
    QCOMPARE(again.api().getSSetting("playerUID"), name);
}

void TestShell::startedProjectIsForOneShow()
{
    TestProfile::reset(account("play", "Shop"));
    TestProfile::addProject("Shop");
    TestProfile::addProject("Cafe");
    Shell shell({{"startAction", "play"}, {"startProject", "Cafe"}});
    QCOMPARE(shell.api().getBaseProjectName(), QString("Cafe"));
    shell.goBack();
    QTRY_COMPARE(shell.pageName(), QString("MainPage"));
    QCOMPARE(shell.api().getBaseProjectName(), QString("Shop"));
}

void TestShell::mainPageFollowsTheSettings()
{
    TestProfile::reset(account("", ""));
    TestProfile::addProject("Shop & <Co>");
    Shell shell;
    QTRY_VERIFY(shell.find("banner"));
    const QQuickItem* banner = shell.find("banner");
    QCOMPARE(banner->property("text").toString(), QString("<b>No Open Project</b>"));

    QMetaObject::invokeMethod(shell.root(), "open", Q_ARG(QVariant, "AboutPage"));
    shell.api().setSetting("lastProject", "Shop & <Co>");
    shell.goBack();
    QTRY_COMPARE(shell.pageName(), QString("MainPage"));
    QCOMPARE(banner->property("text").toString(), QString("Working on: <b>Shop &amp; &lt;Co></b>"));
    QCOMPARE(shell.api().getBaseProjectName(), QString("Shop & <Co>"));
    QCOMPARE(shell.find("footerMessage")->property("text").toString(), QString());
    QVERIFY2(shell.warnings().isEmpty(), qPrintable(shell.warnings().join('\n')));
}

int main(int argc, char* argv[])
{
    TestProfile profile;
    QGuiApplication application(argc, argv);
    TestShell test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shell.moc"
