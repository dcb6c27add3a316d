// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/holdstill.h"
#include "quick/live/livescene.h"
#include "quick/live/placement.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>
#include <QtTest>

/// A document's live objects: made, added to, changed, and held still.
class TestLiveScene : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void whatCannotBeMadeLeavesTheLast_data();
    void whatCannotBeMadeLeavesTheLast();
    void standsInAContextOfItsOwn();
    void takesPartsWhereADocumentWould();
    void setsAndBinds();
    void standsStill();
    void tellsWhatPlacesAnItem();

private:
    bool load(const QString& body) { return m_scene->load(imports + body, url, *m_view->contentItem()); }
    QQuickItem* item(const char* name) const { return m_scene->root()->findChild<QQuickItem*>(name); }

    const QString imports = "import QtQuick 2.15\nimport QtQuick.Window 2.15\nimport QtQuick.Layouts 1.15\n";
    const QUrl url{"file:///project/"};
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<LiveScene> m_scene;
};

void TestLiveScene::init()
{
    m_scene.reset();
    m_view = std::make_unique<QQuickView>();
    m_scene = std::make_unique<LiveScene>(*m_view->engine());
    m_view->resize(400, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestLiveScene::whatCannotBeMadeLeavesTheLast_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("message");
    QTest::newRow("no document") << "Item {"
                                 << "Expected token `}'";
    QTest::newRow("unknown type") << "Itm {}"
                                  << "Itm is not a type";
    QTest::newRow("no item") << "QtObject {}"
                             << "its root is no visual item";
    QTest::newRow("a window") << "Window { visible: true }"
                              << "its root is no visual item";
    QTest::newRow("endless") << "Item { Component.onCompleted: { while (true) {} } }"
                             << "does not end";
    QTest::newRow("twice the same property") << "Item { property int element; property int element }"
                                             << "Duplicate property name";
    QTest::newRow("wider than what holds it")
        << "Item { Row { leftPadding: 1; Item { width: parent.width; height: 1 } } }"
        << "never come to rest";
}

void TestLiveScene::whatCannotBeMadeLeavesTheLast()
{
    QFETCH(QString, body);
    QFETCH(QString, message);
    QVERIFY(load("Item { objectName: 'good' }"));
    const int windows = QGuiApplication::allWindows().size();
    QVERIFY(!load(body));
    QVERIFY2(m_scene->errors().at(0).description().contains(message),
             qPrintable(m_scene->errors().at(0).toString()));
    QCOMPARE(m_scene->root()->objectName(), QString("good"));
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
    QVERIFY(load("Item { property int n: 1 + 1 }")); // scripts run again
    QCOMPARE(m_scene->root()->property("n").toInt(), 2);
}

void TestLiveScene::standsInAContextOfItsOwn()
{
    QQmlContext page(m_view->engine()->rootContext());
    page.setContextProperty("title", "the page's");
    QVERIFY(load("Text { id: page; text: typeof title; state: text === 'x' ? 'a' : 'b' }"));
    QCOMPARE(m_scene->root()->property("text").toString(), QString("undefined"));
    QCOMPARE(m_scene->root()->state(), QString("editing"));
    m_scene->root()->setProperty("text", "x");
    QCOMPARE(m_scene->root()->state(), QString("a")); // its own binding lives
    QQuickItem* part = m_scene->insert(imports + "Item { width: page.text.length }", *m_scene->root());
    QVERIFY(part);
    QCOMPARE(part->width(), 1.0);
}

void TestLiveScene::takesPartsWhereADocumentWould()
{
    QVERIFY(load("Item { Column { objectName: 'column' }\n"
                 "Item { objectName: 'box'; default property alias content: inner.data\n"
                 "       Row { id: inner; objectName: 'inner' } }\n"
                 "Repeater { objectName: 'repeater' } }"));
    const auto partIn = [this](const char* name) {
        return m_scene->insert(imports + "Text {}", *item(name));
    };
    QCOMPARE(partIn("column")->parentItem(), item("column"));
    QCOMPARE(partIn("box")->parentItem(), item("inner"));
    QVERIFY(!partIn("repeater"));
    QCOMPARE(m_scene->errors().size(), 1);
    QVERIFY(!m_scene->insert(imports + "Timer {}", *item("column")));
}

void TestLiveScene::setsAndBinds()
{
    QVERIFY(load("Item { id: page; width: 100; Text { id: x; objectName: 't'; y: page.width } }"));
    QQuickItem& text = *item("t");
    QVERIFY(m_scene->assign(text, "text", "'two\nlines' // of them"));
    QCOMPARE(text.property("text").toString(), QString("two\nlines"));
    QVERIFY(m_scene->assign(text, "x", "7")); // although an id has that name
    QCOMPARE(text.x(), 7.0);
    QVERIFY(m_scene->bind(text, "font.pixelSize", "page.width / 4"));
    QVERIFY(m_scene->bind(text, "Layout.row", "page.width"));
    m_scene->root()->setWidth(40);
    QCOMPARE(text.property("font").value<QFont>().pixelSize(), 10);
    QCOMPARE(text.y(), 40.0);

    QVERIFY(load("Item { Row { spacing: 1; Text { objectName: 'first' } Item { width: 9; height: 9 } } }"));
    QVERIFY(m_scene->bind(*item("first"), "width", "parent.width * 0.9")); // which comes to 90
    QTRY_COMPARE(qRound(item("first")->width()), 90);
    QVERIFY(!m_scene->bind(*item("first"), "width", "parent.width")); // before any frame hangs over it

    QVERIFY(load("Item { id: page; Text { objectName: 't' } }"));
    QQuickItem& other = *item("t");
    for (const char* code :
         {"nowhere.width", "1 +", "'wide'", "page.width(", "(function() { while (true) {} })()"}) {
        QVERIFY2(!m_scene->bind(other, "width", code), code);
        QVERIFY(!m_scene->errors().isEmpty());
    }
    QVERIFY(
        m_scene->check(imports + "Text { color: 'nocolour' }", url).at(0).description().contains("color"));
    QVERIFY(m_scene->check(imports + "Text { color: somewhere.colour }", url).isEmpty());
}

void TestLiveScene::standsStill()
{
    QVERIFY(
        load("Item { id: page; property int ticks: 0; property bool go: true\n"
             "Timer { interval: 1; repeat: true; running: page.go; onTriggered: ++page.ticks }\n"
             "Rectangle { objectName: 'r'; Behavior on x { NumberAnimation { duration: 5000 } }\n"
             "  NumberAnimation on y { from: 0; to: 300; duration: 500; loops: -1 } }\n"
             "Repeater { model: 1; Item { objectName: 'd'; NumberAnimation on x { to: 9; duration: 50 } } }\n"
             "Window { visible: true }\n"
             "states: State { name: 'moved'; PropertyChanges { target: page; height: 77 } }\n"
             "transitions: Transition { NumberAnimation { property: 'height'; duration: 5000 } } }"));
    holdStill(*m_scene->root(), Particles::Hold);
    const int ticks = m_scene->root()->property("ticks").toInt();
    const qreal y = item("r")->y();
    item("r")->setX(100);
    m_scene->root()->setState("moved");
    QCOMPARE(item("r")->x(), 100.0);
    QCOMPARE(m_scene->root()->height(), 77.0);
    for (const QWindow* window : QGuiApplication::allWindows())
        QVERIFY(window == m_view.get() || !window->isVisible());
    QTest::qWait(120);
    QCOMPARE(m_scene->root()->property("ticks").toInt(), ticks);
    QCOMPARE(item("r")->y(), y);
    QVERIFY(m_scene->root()->childItems().at(1)->x() < 9);

    m_scene->root()->setProperty("go", false);
    m_scene->root()->setProperty("go", true); // its binding lives, and starts the timer again
    QTRY_VERIFY(m_scene->root()->property("ticks").toInt() > ticks);
    holdStill(*m_scene->root(), Particles::Hold);
}

void TestLiveScene::tellsWhatPlacesAnItem()
{
    QVERIFY(load("Item { Item { objectName: 'free' }\n"
                 "Row { Item { objectName: 'row' } }  Column { Item { objectName: 'column' } }\n"
                 "Grid { Item { objectName: 'grid' } }  Flow { Item { objectName: 'flow' } }\n"
                 "RowLayout { Item { objectName: 'layout' } }\n"
                 "Item { objectName: 'anchors xywh'; anchors.fill: parent }\n"
                 "Item { objectName: 'anchors xy'; anchors.centerIn: parent }\n"
                 "Item { objectName: 'anchors yh'; anchors { top: parent.top; bottom: parent.bottom } }\n"
                 "Item { objectName: 'anchors x'; anchors.right: parent.right } }"));
    const QMap<QByteArray, QByteArray> wanted{{"free", " "},
                                              {"row", "row x"},
                                              {"column", "column y"},
                                              {"grid", "grid xy"},
                                              {"flow", "flow xy"},
                                              {"layout", "layout xywh"},
                                              {"anchors xywh", "anchors xywh"},
                                              {"anchors xy", "anchors xy"},
                                              {"anchors yh", "anchors yh"},
                                              {"anchors x", "anchors x"}};
    for (auto row = wanted.begin(); row != wanted.end(); ++row) {
        const Placement placement = placementOf(*item(row.key().constData()));
        const QByteArray told = placement.by.toUtf8() + " " + (placement.x ? "x" : "") +
                                (placement.y ? "y" : "") + (placement.width ? "w" : "") +
                                (placement.height ? "h" : "");
        QCOMPARE(told, row.value());
    }
}

QTEST_MAIN(TestLiveScene)
#include "tst_livescene.moc"
