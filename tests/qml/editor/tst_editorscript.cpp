// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "editorscript.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QtTest>

/// The editor script's variables and functions, one at a time.
class TestEditorScript : public QObject
{
    Q_OBJECT

private slots:
    void members();
    void isOneForAllPages();
    void updatesProperties_data();
    void updatesProperties();
    void refusesAndSaysWhy_data();
    void refusesAndSaysWhy();
    void updatesSeveralOrNone();
    void movesOnlyWhatIsBehind();
    void getsProperties();
    void addsObjects();
    void removesElements_data();
    void removesElements();
    void numbersAreNeverUsedAgain();
    void addsAPrototypeWithObjects();
    void pastes();
    void movesElements();
    void replacesAndRenames();
    void tellsFaultsOfTheSource();
    void findsItemsUnderThePoint_data();
    void findsItemsUnderThePoint();
    void findsItemsByNumber();
    void keepsTheDirectoryMap();
    void acceptsNoSelection();

private:
    void select(const QString& typeName);
    std::unique_ptr<EditorScript> m_script = std::make_unique<EditorScript>();
};

/// Selects the first item of the type.
void TestEditorScript::select(const QString& typeName)
{
    m_script->run("Ejs.element = Ejs.map.findIndex(record => record.typename === a)", {typeName});
}

/// The variables that pages and panels rely on; the functions are called below.
void TestEditorScript::members()
{
    const QString types =
        "['map', 'elementObj', 'itemsAt', 'dirmap', 'editorObj', 'editorUi', 'JCAPI', 'element', 'beg', "
        "'end', 'codeEdited', 'propertyEdited', 'radEditor', 'codeToEdit', 'selectItem']"
        ".map(name => typeof Ejs[name]).join()";
    QCOMPARE(
        m_script->run(types).toString(),
        QString(
            "object,object,object,object,object,object,object,number,number,number,boolean,boolean,boolean,"
            "string,function"));
}

void TestEditorScript::isOneForAllPages()
{
    QQmlComponent panel(&m_script->engine);
    panel.setData(
        "import QtQml 2.15\nimport Nuvex.Editor 1.0\nQtObject { property string code: Ejs.codeToEdit }",
        QUrl());
    m_script->run("Ejs.codeToEdit = 'Item { }'");
    const std::unique_ptr<QObject> object(panel.create());
    QVERIFY2(object, qPrintable(panel.errorString()));
    QCOMPARE(object->property("code").toString(), QString("Item { }"));
}

void TestEditorScript::updatesProperties_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* name, const char* before, const char* property, const QVariant& value,
                        const char* after) { QTest::newRow(name) << before << property << value << after; };

    row("value", "Item {\n    x: 10\n}", "x", 7, "Item {\n    x: 7\n}");
    row("value also in the name", "Item {\n    x1: 1\n}", "x1", 5, "Item {\n    x1: 5\n}");
    row("value is the name", "Item {\n    x: x\n}", "x", "y", "Item {\n    x: y\n}");
    row("no patterns", "Item {\n    a: \"(.*)\"\n}", "a", "\"$& $1 \\\\\"",
        "Item {\n    a: \"$& $1 \\\\\"\n}");
    row("blanks in the name", "Item { anchors . fill : x }", "anchors.fill", "parent",
        "Item { anchors . fill : parent }");
    row("its semicolon goes", "Item {\n    x: 1;\n    y: 2\n}", "x", 3, "Item {\n    x: 3\n    y: 2\n}");
    row("next on the line", "Item { x: 1; y: 2 }", "x", 3, "Item { x: 3\n y: 2 }");
    row("object next on the line", "Item { onX: { }Text { } }", "onX", "f()", "Item { onX: f()\nText { } }");
    row("comment behind", "Item {\n    x: 1; /* px */ // {\n}", "x", 3, "Item {\n    x: 3 /* px */ // {\n}");
    row("declaration", "Item { property int a: 1 }", "a", 2, "Item { property int a: 2 }");
    row("declaration without value", "Item {\n    property int a\n}", "a", 2,
        "Item {\n    property int a: 2\n}");
    row("and with semicolon", "Item { property int a; x: 1 }", "a", 2, "Item { property int a: 2\n x: 1 }");
    row("over lines", "Item {\n    onX: {\n        f()\n    }\n}", "onX", "g()", "Item {\n    onX: g()\n}");
    row("behind others of two units", "Item {\n    t: \"\U0001F355\"; x: 1\n}", "x", 2,
        "Item {\n    t: \"\U0001F355\"; x: 2\n}");

    row("new", "Item {\n    x: 1\n}", "width", 5, "Item {\n    x: 1\n    width : 5\n}");
    row("new after the last of several", "Item {\n  x: 1\n  Text { }\n  y: 2;\n}", "z", 5,
        "Item {\n  x: 1\n  Text { }\n  y: 2;\n  z : 5\n}");
    row("new with tabs", "Item {\n\t\tx: 1\n}", "z", 5, "Item {\n\t\tx: 1\n\t\tz : 5\n}");
    row("new on one line", "Item { x: 1 }", "z", 5, "Item { x: 1\n z : 5 }");
    row("new after a semicolon", "Item {  x: 1;   y: 2}", "z", 5, "Item {  x: 1;   y: 2\n   z : 5}");
    row("new before an object", "Item { x:1;Text{} }", "z", 5, "Item { x:1;\n z : 5\nText{} }");
    row("new before a comment", "Item {\n    x: 1 // one\n}", "z", 5,
        "Item {\n    x: 1\n    z : 5 // one\n}");
    row("first", "Item { }", "z", 5, "Item { \n    z : 5}");
    row("first after a line end", "Item {\n}", "z", 5, "Item {\n    z : 5}");
    row("not into a bound object", "Item { x: \"{\"; transform: Rotation { angle: 5 } }", "z", 5,
        "Item { x: \"{\";\n z : 5\n transform: Rotation { angle: 5 } }");
    row("with bound objects only", "Item { transform: Rotation { angle: 5 } }", "z", 5,
        "Item { transform: Rotation { angle: 5 } \n    z : 5}");
    row("of a name that objects have", "Item {\n    x: 1\n}", "constructor", 5,
        "Item {\n    x: 1\n    constructor : 5\n}");
}

void TestEditorScript::updatesProperties()
{
    QFETCH(QString, before);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    m_script->open(before);
    select("Item");
    m_script->run("Ejs.updateProperty(a, b)", {property, value});
    QTEST(m_script->source(), "after");
    QCOMPARE(m_script->map(), m_script->api->parseAndGetMap(m_script->source()));
    QCOMPARE(m_script->run("Ejs.getProperty(a)", {property}).toString(), value.toString());
}

void TestEditorScript::refusesAndSaysWhy_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* code, const char* problem) { QTest::newRow(code) << code << problem; };
    row("Ejs.updateProperty('s', 5)", "A signal has no value.");
    row("Ejs.updateProperty('x', '')", "This is no value: Expected token `;'.");
    row("Ejs.updateProperties([{ element: 1, name: 'x', text: '3' }], () => false)",
        "This value cannot be used.");
    row("Ejs.removeElement()", "The document cannot do without this object.");
    row("Ejs.addObject({}, 'x: 1', true)", "This is not the source of an object.");
    row("Ejs.renameId('a b')", "\"a b\" cannot be an id.");
    row("Ejs.moveElements([1], 0, -1)", "The document cannot do without this object.");
    row("Ejs.replaceElement('Item {')", "This cannot be written here: Expected token `}'.");
}

void TestEditorScript::refusesAndSaysWhy()
{
    QFETCH(QString, code);
    const QString source = "Item { signal s(int a); x: 1; Text { y: 2 } }";
    m_script->open(source);
    select("Item");
    QCOMPARE(m_script->run(code), QVariant(false));
    QTEST(m_script->run("Ejs.problem").toString(), "problem");
    QCOMPARE(m_script->source(), source);
    QCOMPARE(m_script->map(), m_script->api->parseAndGetMap(source));
}

void TestEditorScript::updatesSeveralOrNone()
{
    m_script->open("Item { x: 1; Text { y: 2 } }");
    const QString both =
        "Ejs.updateProperties([{ element: 0, name: 'y', text: '3' }, { element: 1, name: 'z', text: a }])";
    QCOMPARE(m_script->run(both, {"}"}), QVariant(false));
    QCOMPARE(m_script->source(), QString("Item { x: 1; Text { y: 2 } }"));
    QCOMPARE(m_script->run(both, {"4"}), QVariant(true));
    QCOMPARE(m_script->source(), QString("Item { x: 1;\n z : 4\n Text { y: 3 } }"));
    QCOMPARE(m_script->map(), m_script->api->parseAndGetMap(m_script->source()));
}

void TestEditorScript::movesOnlyWhatIsBehind()
{
    m_script->open("Item { x: 1; Text { y: 2 } }");
    m_script->run("Ejs.updateMap(13, 100)"); // where Text begins
    const QVariantList map = m_script->map();
    const auto at = [&](int i, const char* key) { return map[i].toMap()[key].toInt(); };
    QCOMPARE(at(0, "pfirst"), 13);
    QCOMPARE(at(0, "pfirstL"), 119);
    QCOMPARE(at(0, "plast"), 126);
    QCOMPARE(map[0].toMap()["properties"].toMap()["y"].toMap()["pfirst"].toInt(), 120);
    QCOMPARE(at(1, "pfirst"), 0);
    QCOMPARE(at(1, "pfirstL"), 6);
    QCOMPARE(at(1, "plast"), 128);
    QCOMPARE(map[1].toMap()["properties"].toMap()["x"].toMap()["plast"].toInt(), 12);
}

void TestEditorScript::getsProperties()
{
    m_script->open("Item { text: \"a\"; property var f: function () { return 1 } }");
    select("Item");
    QCOMPARE(m_script->run("Ejs.getProperty('text')").toString(), QString("\"a\";"));
    QCOMPARE(m_script->run("Ejs.getProperty('f')").toString(), QString("function () { return 1 }"));
    QCOMPARE(m_script->run("Ejs.getProperty('missing')").toString(), QString());
    QCOMPARE(m_script->run("Ejs.getProperty('toString')").toString(), QString());
}

/// A new component in an item, placed and then removed, as when it is dropped on a page.
void TestEditorScript::addsObjects()
{
    m_script->open("Item {\n    Row { Text { x: 1 } }\n    z: 1\n}");
    select("Row");
    const QString prototype = "\nBasicImage {\n    source: 'a.png'\n}\n";
    m_script->run("Ejs.addObject(CAPI.parseAndGetMap(a)[0], a, true); Ejs.element = Ejs.map.length - 1",
                  {prototype});
    m_script->run("Ejs.updateProperty('x', 10); Ejs.updateProperty('y', 20)");
    QCOMPARE(m_script->source(),
             QString("Item {\n    Row { Text { x: 1 } \nBasicImage {\n    source: 'a.png'\n"
                     "    x : 10\n    y : 20\n}\n}\n    z: 1\n}"));
    QCOMPARE(m_script->map().last().toMap()["typename"].toString(), QString("BasicImage"));
    QCOMPARE(m_script->run("CAPI.sourceCode(Ejs.map[3].pfirst, Ejs.map[3].plast)").toString(),
             QString("BasicImage {\n    source: 'a.png'\n    x : 10\n    y : 20\n}"));
    m_script->run("Ejs.removeElement()");
    QCOMPARE(m_script->source(), QString("Item {\n    Row { Text { x: 1 } \n\n}\n    z: 1\n}"));
}

void TestEditorScript::removesElements_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("child") << "Item { x: 1; Text { y: 2 } z: 3 }"
                           << "Item { x: 1;  z: 3 }";
    QTest::newRow("with children") << "Item { Text { Row { } } z: 3 }"
                                   << "Item {  z: 3 }";
    QTest::newRow("first of a list") << "Item { data: [ Text { }, Row { } ] }"
                                     << "Item { data: [  Row { } ] }";
    QTest::newRow("last of a list") << "Item { data: [ Row { }, Text { } ] }"
                                    << "Item { data: [ Row { } ] }";
    QTest::newRow("commas in comments") << "Item { data: [ Row { } /* , */ , // ,\n Text { } ] }"
                                        << "Item { data: [ Row { } /* , */  // ,\n  ] }";
    QTest::newRow("in a property's value") << "Item { property Item a: Item { Text { } } }"
                                           << "Item { property Item a: Item {  } }";
}

void TestEditorScript::removesElements()
{
    QFETCH(QString, before);
    m_script->open(before);
    const int records = m_script->map().size();
    select("Text");
    m_script->run("Ejs.removeElement()");
    QTEST(m_script->source(), "after");
    const QVariantList fresh = m_script->api->parseAndGetMap(m_script->source());
    QCOMPARE(m_script->map().last(), fresh.last());
    QCOMPARE(m_script->map().size(), records);
    QCOMPARE(
        m_script->run("CAPI.sourceCode(Ejs.map[Ejs.element].pfirst, Ejs.map[Ejs.element].plast)").toString(),
        QString());
}

void TestEditorScript::numbersAreNeverUsedAgain()
{
    m_script->open("Item { data: [ Text { }, Row { }, Text { } ] }");
    for (int i = 0; i < 2; ++i) {
        m_script->run("Ejs.element = a; Ejs.removeElement()", {i});
        m_script->run("Ejs.element = 3; Ejs.addObject(CAPI.parseAndGetMap(a)[0], a, true)",
                      {"\nColumn { }\n"});
        QCOMPARE(m_script->map().size(), 5 + i);
    }
    m_script->run("Ejs.element = 2; Ejs.removeElement()");
    QCOMPARE(m_script->source(), QString("Item { data: [    ] \nColumn { }\n\nColumn { }\n}"));
}

/// The live item that a drop makes has the next number: it goes to the item, not to what the prototype holds.
void TestEditorScript::addsAPrototypeWithObjects()
{
    m_script->open("Item {\n}");
    m_script->run("Ejs.element = 0; b = CAPI.parseAndGetMap(a)[0]; Ejs.addObject(b, a, true)",
                  {"\nRow { Text { } }\n"});
    QCOMPARE(m_script->run("Ejs.map.map(record => record.typename).join()").toString(),
             QString("Item,Row,Text"));
    QCOMPARE(m_script->run("CAPI.sourceCode(Ejs.map[1].pfirst, Ejs.map[1].plast)").toString(),
             QString("Row { Text { } }"));
}

void TestEditorScript::pastes()
{
    m_script->open("import QtQuick 2.15\nItem {\n    id: a\n}");
    select("Item");
    const QString code = "Row { id: a; Text { x: a.x } }";
    QVERIFY(m_script->run("Ejs.paste(a, ['import QtQuick 2.0', 'import QtQuick.Layouts 1.15'])", {code})
                .toBool());
    QCOMPARE(m_script->source(),
             QString("import QtQuick 2.15\nimport QtQuick.Layouts 1.15\nItem {\n    id: a\n"
                     "Row { id: a2; Text { x: a2.x } }}"));
    QCOMPARE(m_script->run("Ejs.map.map(record => record.typename).join()").toString(),
             QString("Item,Text,Row"));
    QVERIFY(m_script->run("Ejs.insertObject('Grid { }', 0, 2)").toBool());
    QVERIFY(m_script->source().endsWith("    id: a\nGrid { }\nRow { id: a2; Text { x: a2.x } }}"));
}

void TestEditorScript::movesElements()
{
    m_script->open(
        "Item {\n    Row { Text { } }\n    Grid { }\n    Column { }\n}"); // Text, Row, Grid, Column, Item
    QVERIFY(m_script->run("Ejs.moveElements([3, 0], 2, -1) && Ejs.moveElements([2], 4, 1)").toBool());
    QCOMPARE(m_script->source(),
             QString("Item {\n    Grid {\n        Column { }\n        Text { }\n    }\n    Row { }\n}"));
    QCOMPARE(m_script->run("Ejs.map.map(record => record.typename).join()").toString(),
             QString("Text,Row,Grid,Column,Item"));
    m_script->run("Ejs.element = 0; Ejs.updateProperty('x', 1)");
    QVERIFY(m_script->source().contains("Text { \n            x : 1}"));
}

void TestEditorScript::replacesAndRenames()
{
    m_script->open("Item { Row { id: r; Text { x: r.y } } y: r.y }");
    select("Row");
    QVERIFY(m_script->run("Ejs.renameId('s')").toBool());
    QVERIFY(m_script->run("Ejs.replaceElement('Grid { id: s // c\\n}')").toBool());
    QCOMPARE(m_script->source(), QString("Item { Grid { id: s // c\n} y: s.y }"));
    QCOMPARE(m_script->run("Ejs.map[Ejs.element].typename").toString(), QString("Grid"));
    QCOMPARE(m_script->run("Ejs.getProperty('id')").toString(), QString("s"));
}

/// The way of a page: what the engine says of the text that it was handed becomes a line of the source.
void TestEditorScript::tellsFaultsOfTheSource()
{
    m_script->open("import QtQuick 2.15\nItem {\n    Item { }\n    Item { nothing: 1 }\n}");
    const QVariant faults =
        m_script->run("let source = CAPI.editedSourceCode(), text = CAPI.generateEditor();"
                      "try { Qt.createQmlObject(text, page, 'file:///p/') }"
                      "catch (error) { faults.inText(source, text, 'file:///p/', error.qmlErrors) }");
    const QVariantMap fault = faults.toList().value(0).toMap();
    QCOMPARE(fault["line"].toInt(), 4);
    QCOMPARE(fault["column"].toInt(), 12);
    QCOMPARE(fault["file"].toString(), QString());
    QVERIFY(fault["message"].toString().contains("nothing"));
    QCOMPARE(m_script->run("faults.inSource('Item { property int element }')[0].column").toInt(), 8);
}

void TestEditorScript::findsItemsUnderThePoint_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QVariantList>("elements");
    QTest::newRow("nowhere") << QPoint(500, 500) << QVariantList();
    QTest::newRow("root only") << QPoint(190, 190) << QVariantList({9});
    QTest::newRow("parents first") << QPoint(15, 15) << QVariantList({9, 1, 2});
    QTest::newRow("top sibling last") << QPoint(105, 5) << QVariantList({9, 4, 3});
    QTest::newRow("out of its parent") << QPoint(150, 60) << QVariantList({9, 5});
    QTest::newRow("scaled and turned") << QPoint(30, 130) << QVariantList({9, 6});
    QTest::newRow("beside the turned") << QPoint(75, 105) << QVariantList({9});
}

void TestEditorScript::findsItemsUnderThePoint()
{
    QQmlComponent component(&m_script->engine);
    component.setData(R"(import QtQuick 2.15
        Item { objectName: "frame"
            Item { property int element: 9; width: 200; height: 200; x: 0
                Item { property int element: 1; x: 10; y: 10; width: 50; height: 50
                    Item { property int element: 2; width: 20; height: 20 }
                    Item { property int element: 7; width: 50; height: 50; visible: false
                        Item { property int element: 8; width: 50; height: 50 }
                    }
                    Item { property int element: -1; width: 50; height: 50 }
                }
                Item { property int element: 3; x: 100; width: 20; height: 20; z: 1 }
                Item { property int element: 4; x: 100; width: 20; height: 20 }
                Item { x: 100; y: 50; width: 10; height: 10
                    Item { property int element: 5; width: 90; height: 20 }
                }
                Item { property int element: 6; x: 20; y: 120; width: 20; height: 10; scale: 2; rotation: 90 }
            }
        })",
                      QUrl());
    const std::unique_ptr<QObject> frame(component.create());
    QVERIFY2(frame, qPrintable(component.errorString()));
    QFETCH(QPoint, point);
    const QString numbers = "Ejs.childrenIn(b.x, b.y, a, a); Ejs.itemsAt.map(item => item.element)";
    QTEST(m_script->run(numbers, {QVariant::fromValue(frame.get()), QPointF(point)}).toList(), "elements");
}

void TestEditorScript::findsItemsByNumber()
{
    QQmlComponent component(&m_script->engine);
    component.setData(R"(import QtQuick 2.15
        Item { property int element: 3
            Row { Item { Item { property int element: 0; visible: false } } }
            Item { property int element: 1 }
        })",
                      QUrl());
    const std::unique_ptr<QObject> root(component.create());
    for (int element : {0, 1, 3}) {
        const QVariant found =
            m_script->run("Ejs.childrenByElement(a, b).element", {QVariant::fromValue(root.get()), element});
        QCOMPARE(found, QVariant(element));
    }
    QVERIFY(
        m_script->run("Ejs.childrenByElement(a, 2) === null", {QVariant::fromValue(root.get())}).toBool());
}

void TestEditorScript::keepsTheDirectoryMap()
{
    m_script->open("Item { }");
    m_script->api->updateDirmapFile(QVariantMap{{"main.qml", 7}, {"images/a b.png", 3}});
    const auto saved = [&](const char* path) { return m_script->api->dirmap().value(path); };

    QVERIFY(m_script->run("Ejs.incFileInDirmap('main.qml')").toBool());
    QCOMPARE(saved("main.qml"), QVariant(8));
    QVERIFY(m_script->run("Ejs.addFileToDirmap('images/new.png')").toBool());
    QCOMPARE(saved("images/new.png"), QVariant(1));
    QVERIFY(m_script->run("Ejs.addFileToDirmap('images/new.png')").toBool());
    QCOMPARE(saved("images/new.png"), QVariant(2));
    QVERIFY(m_script->run("Ejs.removeFileFromDirmap('images/a b.png')").toBool());
    QCOMPARE(m_script->api->dirmap().keys(), QStringList({"images/new.png", "main.qml"}));
    QVERIFY(m_script->run("Ejs.addFileToDirmap('images/a b.png')").toBool());
    QCOMPARE(saved("images/a b.png"), QVariant(4));
    QVERIFY(!m_script->run("Ejs.addFileToDirmap('')").toBool());
    QVERIFY(m_script->run("Ejs.addFileToDirmap('constructor')").toBool());
    QCOMPARE(saved("constructor"), QVariant(1));
    QCOMPARE(m_script->api->dirmap().size(), 4);
}

void TestEditorScript::acceptsNoSelection()
{
    m_script->open("Item { x: 1 }");
    QCOMPARE(m_script->run("Ejs.getProperty('x')").toString(), QString());
    for (const char* code :
         {"Ejs.updateProperty('x', 2)", "Ejs.removeElement()", "Ejs.addObject({}, 'Item { }', true)"}) {
        QTest::ignoreMessage(QtWarningMsg, "No item is selected. Element -1 of 1");
        QCOMPARE(m_script->run(code), QVariant(false));
    }
    QCOMPARE(m_script->source(), QString("Item { x: 1 }"));
}

QTEST_MAIN(TestEditorScript)
#include "tst_editorscript.moc"
