// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/shell.h"

#include <QQmlComponent>
#include <QtTest>

#include <algorithm>

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
    void stillOfTheProject_data();
    void stillOfTheProject();
    void typesOfThePages();
};

namespace {

QVariantMap account(const QString& action, const QString& project)
{
    return {{"userEmail", "ann.b@example.org"},
            {"playerUID", "west.wing_12"},
            {"doOnStart", action},
            {"lastProject", project}};
}

QRectF sceneRect(const QQuickItem* item)
{
    return item->mapRectToScene(item->boundingRect());
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

void TestShell::stillOfTheProject_data()
{
    QTest::addColumn<QSize>("page");
    QTest::addColumn<QSize>("document");
    QTest::newRow("landscape") << QSize(1920, 1080) << QSize(1280, 720);
    QTest::newRow("small, of an upright board") << QSize(1280, 720) << QSize(720, 1280);
    QTest::newRow("portrait") << QSize(1080, 1920) << QSize(1920, 1080);
}

// Playing makes it; the main page shows it beside its tiles, the list of projects in the project's row; it
// goes with the project.
void TestShell::stillOfTheProject()
{
    QFETCH(QSize, page);
    QFETCH(QSize, document);
    TestProfile::reset(account("play", "Shop"));
    TestProfile::addProject("Shop",
                            QString("import QtQuick 2.15\nRectangle { width: %1; height: %2; color: 'teal' }")
                                .arg(document.width())
                                .arg(document.height()));
    Shell shell({}, page);
    const QString still = shell.api().workspace().stillOf("Shop");
    QVERIFY(!QFile::exists(still));
    shell.root()->findChild<QObject*>("stillTimer")->setProperty("interval", 1);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(still), 30000);
    const QImage image(still);
    QCOMPARE(image.size(), document.scaled(960, 960, Qt::KeepAspectRatio));
    QVERIFY(qAbs(image.pixelColor(5, 5).blue() - QColor("teal").blue()) < 4);

    shell.goBack();
    QTRY_COMPARE(shell.pageName(), QString("MainPage"));
    QTRY_VERIFY_WITH_TIMEOUT(shell.find("projectStill") && shell.find("projectStill")->isVisible(), 30000);
    const QRectF window(QPointF(), shell.root()->size());
    const QRectF shown = sceneRect(shell.find("projectStill"));
    QVERIFY(window.contains(shown));
    QVERIFY(shown.width() * shown.height() > 0.1 * window.width() * window.height());
    QVERIFY(qAbs(shown.width() / shown.height() - qreal(document.width()) / document.height()) < 0.02);
    const auto tilesHaveRoom = [&] {
        const QList<QQuickItem*> tiles = shell.root()->findChildren<QQuickItem*>("mainTile");
        return std::all_of(tiles.cbegin(), tiles.cend(), [&](const QQuickItem* tile) {
            return window.contains(sceneRect(tile)) && !shown.intersects(sceneRect(tile));
        });
    };
    QTRY_VERIFY(tilesHaveRoom()); // a grid moves its items with the next frame
    QVERIFY(shell.api().removeProject("Shop"));
    QVERIFY(!QFile::exists(still));
}

// The second door: what projects' documents import does not have the types that are for the program's own
// pages.
void TestShell::typesOfThePages()
{
    TestProfile::reset(account("", "Shop"));
    TestProfile::addProject("Shop", "text");
    Shell shell;
    QFile latin1(shell.api().getBaseFolder() + "/latin1.txt");
    QVERIFY(latin1.open(QIODevice::WriteOnly) && latin1.write("K\xe4se") == 4 && latin1.flush());
    const auto value = [&](const QByteArray& version, const QByteArray& object) {
        QQmlComponent component(qmlEngine(shell.root()));
        component.setData("import Nuvex.Native " + version + "\n" + object, QUrl());
        const std::unique_ptr<QObject> made(component.create());
        return made ? made->property("value") : QVariant("no such type");
    };
    QCOMPARE(value("1.1", "TextFile { property bool value: isUtf8; path: 'main.qml' }"), QVariant(true));
    QCOMPARE(value("1.1", "TextFile { property bool value: isUtf8; path: 'latin1.txt' }"), QVariant(false));
    QCOMPARE(value("1.1", "Imports { property bool value: running }"), QVariant(false));
    QCOMPARE(value("1.1\nimport Nuvex.Editor 1.0\nimport QtQml 2.15",
                   "QtObject { property bool value: Ejs.JCAPI === CAPI }"),
             QVariant(true));
    QCOMPARE(value("1.0", "Imports { property bool value: running }"), QVariant("no such type"));
}

int main(int argc, char* argv[])
{
    TestProfile profile;
    QGuiApplication application(argc, argv);
    TestShell test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shell.moc"
