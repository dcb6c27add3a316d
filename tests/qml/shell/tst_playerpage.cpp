// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/shell.h"

#include <QSettings>
#include <QtTest>

/// The page on the wall: how a document fits it, and what it shows when there is none.
class TestPlayerPage : public QObject
{
    Q_OBJECT

private slots:
    void documentFitsThePage_data();
    void documentFitsThePage();
    void fitFollowsTheWindow();
    void missingDocument();
    void brokenDocument();
    void reload();
    void pageAfterForgetting();
    void connectionDot();
    void chosenProjectIsAwaited();
    void whatEndsTheProgramWaits();
};

namespace {

void setUp(const QString& document)
{
    TestProfile::reset({{"userEmail", "ann@example.org"},
                        {"playerUID", "west_12"},
                        {"doOnStart", "play"},
                        {"lastProject", "Shop"}});
    TestProfile::addProject("Shop", document);
}

QString documentOfSize(const QSize& size)
{
    return QString("import QtQuick 2.15\nItem { width: %1; height: %2\n"
                   "Item { objectName: 'topLeft'; width: 1; height: 1 } }")
        .arg(size.width())
        .arg(size.height());
}

QQuickItem* document(const Shell& shell)
{
    return shell.find("thePlayer")->property("item").value<QQuickItem*>();
}

// Where the document stands in the window.
QRectF shownRect(const Shell& shell)
{
    const QQuickItem* item = document(shell);
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QString text(const Shell& shell, const QString& name)
{
    const QQuickItem* item = shell.find(name);
    return item && item->isVisible() ? item->property("text").toString() : QString();
}

} // namespace

void TestPlayerPage::documentFitsThePage_data()
{
    QTest::addColumn<QSize>("documentSize");
    QTest::addColumn<QSize>("pageSize");
    QTest::addColumn<QRectF>("shown");
    QTest::addColumn<QPointF>("topLeft"); // where the document's own top left corner goes

    const auto row = [](const char* name, QSize document, QSize page, QRectF shown, QPointF topLeft) {
        QTest::newRow(name) << document << page << shown << topLeft;
    };
    row("same size", {1280, 720}, {1280, 720}, {0, 0, 1280, 720}, {0, 0});
    row("larger", {1920, 1080}, {960, 540}, {0, 0, 960, 540}, {0, 0});
    row("smaller", {320, 180}, {1280, 720}, {0, 0, 1280, 720}, {0, 0});
    row("bars at the sides", {400, 300}, {1280, 720}, {160, 0, 960, 720}, {160, 0});
    row("bars above and below", {1000, 250}, {800, 600}, {0, 200, 800, 200}, {0, 200});
    row("portrait on portrait", {300, 400}, {600, 1000}, {0, 100, 600, 800}, {0, 100});
    row("square lies", {500, 500}, {1000, 600}, {200, 0, 600, 600}, {200, 0});
    row("square turned", {500, 500}, {600, 1000}, {0, 200, 600, 600}, {0, 800});
    row("landscape on portrait", {960, 540}, {540, 960}, {0, 0, 540, 960}, {0, 960});
    row("portrait on landscape", {540, 960}, {960, 540}, {0, 0, 960, 540}, {0, 540});
    row("turned and scaled", {200, 400}, {1000, 600}, {0, 50, 1000, 500}, {0, 550});
    row("no size of its own", {0, 0}, {1000, 600}, {0, 0, 1000, 600}, {0, 0});
}

void TestPlayerPage::documentFitsThePage()
{
    QFETCH(QSize, documentSize);
    QFETCH(QSize, pageSize);
    setUp(documentOfSize(documentSize));
    const Shell shell({}, pageSize);
    QCOMPARE(shell.page()->size(), QSizeF(pageSize));
    QTEST(shownRect(shell), "shown");
    QTEST(shell.find("topLeft")->mapToScene(QPointF(0, 0)), "topLeft");
    QVERIFY2(shell.warnings().isEmpty(), qPrintable(shell.warnings().join('\n')));
}

void TestPlayerPage::fitFollowsTheWindow()
{
    setUp(documentOfSize({960, 540}));
    Shell shell({}, {960, 540});
    QVERIFY(QTest::qWaitForWindowExposed(shell.root()->window()));
    shell.resize({400, 640});
    QTRY_COMPARE(shownRect(shell), QRectF(20, 0, 360, 640));
    shell.resize({480, 270});
    QTRY_COMPARE(shownRect(shell), QRectF(0, 0, 480, 270));
}

void TestPlayerPage::missingDocument()
{
    setUp(QString());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("PlayerPage.qml:[0-9]+: ReferenceError: api is not defined"));
    const Shell shell;
    QCOMPARE(shell.pageName(), QString("PlayerPage"));
    QCOMPARE(shell.warnings().size(), 1);
    QCOMPARE(shell.find("thePlayer")->property("source").toUrl(), QUrl());
    QCOMPARE(text(shell, "standbyReason"), QString("The project has no file main.qml."));
    QCOMPARE(text(shell, "playerMessage"), QString());
}

void TestPlayerPage::brokenDocument()
{
    setUp("import QtQuick 2.15\nItem {\n    width: }\n");
    const Shell shell;
    QCOMPARE(text(shell, "playerMessage"), QString("Error loading... "));
    QVERIFY2(text(shell, "standbyReason").startsWith("main.qml:3"), qPrintable(text(shell, "standbyReason")));
}

void TestPlayerPage::reload()
{
    setUp("import QtQuick 2.15\nItem { objectName: 'old' }");
    Shell shell;
    QVERIFY(shell.find("old"));
    QVERIFY(!shell.find("standbyReason"));

    emit shell.api().startUpdating();
    QCOMPARE(text(shell, "playerMessage"), QString("Updating"));
    shell.find("thePlayer")->setProperty("source", QUrl()); // as the update does before it replaces files
    shell.api().clearComponentCache();
    QVERIFY(shell.find("standbyReason"));
    QVERIFY(shell.api().writeToFile("import QtQuick 2.15\nItem { objectName: 'new' }", "main.qml"));
    emit shell.api().reloadPlayer();
    QVERIFY(shell.find("new"));
    QCOMPARE(text(shell, "playerMessage"), QString());
    QVERIFY2(shell.warnings().isEmpty(), qPrintable(shell.warnings().join('\n')));
}

// A page that comes after the engine has forgotten what it had compiled shares what those before it do.
void TestPlayerPage::pageAfterForgetting()
{
    setUp("import QtQuick 2.15\nItem { objectName: 'shown' }");
    Shell shell({{"startAction", "gallery"}});
    QCOMPARE(shell.pageName(), QString("GalleryPage"));
    shell.api().clearComponentCache();
    shell.goBack();
    QTRY_COMPARE(shell.pageName(), QString("MainPage"));
    QVERIFY(QMetaObject::invokeMethod(shell.root(), "play"));
    QVERIFY(shell.find("shown"));
}

void TestPlayerPage::connectionDot()
{
    setUp(documentOfSize({1280, 720}));
    QVERIFY2(!Shell().find("connectionDot")->isVisible(), "no dot without a cloud");

    Shell shell;
    QVERIFY(QMetaObject::invokeMethod(
        shell.root(), "evaluate",
        Q_ARG(QVariant, "pop(null); SS.deployment = {available: true}; open('PlayerPage')")));
    const QQuickItem* dot = shell.page()->findChild<QQuickItem*>("connectionDot");
    QVERIFY(dot->isVisible());
    QCOMPARE(dot->mapRectToScene(dot->boundingRect()), QRectF(1265, 5, 10, 10));
    QCOMPARE(dot->property("color").value<QColor>(), QColor("white"));
    shell.api().setIConnected(false);
    QCOMPARE(dot->property("color").value<QColor>(), QColor("red"));
}

// What the account has chosen is not here yet: what plays goes on until it is.
void TestPlayerPage::chosenProjectIsAwaited()
{
    setUp("import QtQuick 2.15\nItem { objectName: 'old' }");
    Shell shell;
    QVERIFY(shell.find("old"));
    auto* follower = shell.page()->findChild<QObject*>("follower");
    const auto choose = [&](const QString& name) {
        QVERIFY(QMetaObject::invokeMethod(follower, "show", Q_ARG(QVariant, name)));
    };
    const auto followed = [&] {
        return follower->property("followed").value<QJSValue>().toVariant().toStringList();
    };
    choose("Cafe");
    QVERIFY(shell.find("old"));
    QCOMPARE(TestProfile::setting("lastProject").toString(), QString("Shop"));
    QCOMPARE(followed(), QStringList({"Shop", "Cafe"}));
    emit shell.api().reloadPlayer(); // another one has been updated
    QVERIFY(shell.find("old"));
    TestProfile::addProject("Cafe", "import QtQuick 2.15\nItem { objectName: 'new' }");
    emit shell.api().reloadPlayer();
    QVERIFY(shell.find("new"));
    QCOMPARE(TestProfile::setting("lastProject").toString(), QString("Cafe"));
    QCOMPARE(followed(), QStringList({"Cafe"}));

    choose("Bar");
    choose("Cafe"); // taken back
    QCOMPARE(followed(), QStringList({"Cafe"}));
    QVERIFY2(shell.warnings().isEmpty(), qPrintable(shell.warnings().join('\n')));
}

// Until something has come; and an orderly end counts for nothing.
void TestPlayerPage::whatEndsTheProgramWaits()
{
    for (const auto& [deaths, waits] : {std::pair(2, false), std::pair(3, true)}) {
        setUp("import QtQuick 2.15\nItem { objectName: 'shown' }");
        QSettings().setValue("earlyDeaths", QString::number(deaths));
        {
            Shell shell;
            QCOMPARE(shell.find("shown") == nullptr, waits);
            QCOMPARE(text(shell, "standbyReason").contains("several times"), waits);
            emit shell.api().reloadPlayer();
            QVERIFY(shell.find("shown"));
            QCOMPARE(TestProfile::setting("earlyDeaths").toInt(), deaths + 1); // if it died now
        }
        QCOMPARE(TestProfile::setting("earlyDeaths").toInt(), 0);
    }
}

int main(int argc, char* argv[])
{
    TestProfile profile;
    QGuiApplication application(argc, argv);
    TestPlayerPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_playerpage.moc"
