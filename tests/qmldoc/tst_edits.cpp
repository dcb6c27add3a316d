// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/idedits.h"
#include "qmldoc/edits/objectedits.h"
#include "qmldoc/edits/propertyedits.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <functional>

using Make = std::function<Change(const QString& source)>;
Q_DECLARE_METATYPE(Make)

namespace {

// The object with that text at its begin; -1 stands for none.
int at(const QString& source, const QString& begin)
{
    return begin.isEmpty() ? -1 : source.indexOf(begin);
}

Passage whole(const QString& source)
{
    return Passage(source, 0, source.size());
}

Make set(const QString& object, const QString& name, const QString& text)
{
    return [=](const QString& source) {
        return setProperties(whole(source), {{at(source, object), name, text}});
    };
}

Make take(const QStringList& objects)
{
    return [=](const QString& source) {
        std::vector<int> offsets;
        for (const QString& object : objects)
            offsets.push_back(at(source, object));
        return removeObjects(whole(source), offsets);
    };
}

Make move(const QStringList& objects, const QString& parent, const QString& before = {})
{
    return [=](const QString& source) {
        std::vector<int> offsets;
        for (const QString& object : objects)
            offsets.push_back(at(source, object));
        return moveObjects(whole(source), offsets, at(source, parent), at(source, before));
    };
}

Make insert(const QString& code, const QString& parent, const QString& before = {},
            const QStringList& imports = {})
{
    return [=](const QString& source) {
        return insertObject(whole(source), at(source, parent), at(source, before), code, imports);
    };
}

Make add(const QString& code, const QString& parent, const QStringList& imports = {})
{
    return
        [=](const QString& source) { return addObjects(whole(source), at(source, parent), code, imports); };
}

Make identify(const QString& object, const QString& name)
{
    return [=](const QString& source) { return renameId(whole(source), at(source, object), name); };
}

// What the change makes of the source, or its refusal.
QString made(const QString& source, const Change& change)
{
    return change.isPossible() ? edited(source, change.edits) : "refused: " + change.refusal;
}

} // namespace

/// What each change makes of a source, to the byte. That map and source stay in step is proved elsewhere.
class TestEdits : public QObject
{
    Q_OBJECT

private slots:
    void properties_data();
    void properties();
    void objects_data();
    void objects();
    void reordering_data();
    void reordering();
    void ids_data();
    void ids();
    void freshIds_data();
    void freshIds();
    void reservedIds();
    void severalProperties();

private:
    void columns();
    void row(const char* name, const QString& source, const Make& make, const QString& after);
    void compare();
};

void TestEdits::compare()
{
    QFETCH(QString, source);
    QFETCH(Make, make);
    QTEST(made(source, make(source)), "after");
}

void TestEdits::columns()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("after");
}

void TestEdits::row(const char* name, const QString& source, const Make& make, const QString& after)
{
    QTest::newRow(name) << source << make << after;
}

void TestEdits::properties_data()
{
    columns();
    const auto x = [](const QString& text) { return set("Item", "x", text); };
    row("comment at the end of a line", "Item {\n    x: 1\n}", x("5 // c"), "Item {\n    x: 5 // c\n}");
    row("comment before a brace", "Item { x: 1 }", x("5 // c"), "Item { x: 5 // c\n }");
    row("comment before another", "Item { x: 1; y: 2 }", x("5 // c"), "Item { x: 5 // c\n y: 2 }");
    row("empty", "Item { x: 1 }", x(""), "refused: This is no value: Expected token `;'.");
    row("line break in a value", "Item { x: 1 }", x("[1,\n 2]"), "Item { x: [1,\n 2] }");
    row("line break between two", "Item { x: 1 }", x("1\n2"),
        "refused: This is no value: Expected a qualified name id.");
    row("two", "Item { x: 1; y: 1 }", x("1; y: 2"), "refused: This is more than one value.");
    row("out of the object", "Item { x: 1 }", x("1 }\nItem { x: 2"),
        "refused: This is no value: Syntax error.");
    row("unclosed", "Item { x: 1 }", x("a("), "refused: This is no value: Expected token `)'.");
    row("a statement that takes the next", "Item { x: 1\n y: 2 }", x("if (a)"),
        "refused: This is no value: Expected token `;'.");
    row("slash before a comment", "Item { x: 1/* c */ }", x("a /"),
        "refused: This is no value: Expected token `numeric literal'.");
    row("CRLF", "Item {\r\n    x: 1\r\n}", set("Item", "y", "[\n]"),
        "Item {\r\n    x: 1\r\n    y : [\r\n]\r\n}");
    row("CR", "Item {\r\tx: 1; y: 2\r}", x("f()"), "Item {\r\tx: f()\r y: 2\r}");
    row("template before a bound object", "Item { t: `}`; transform: Rotation { angle: 5 } }",
        set("Item", "z", "5"), "Item { t: `}`;\n z : 5\n transform: Rotation { angle: 5 } }");
    row("expression before a bound object", "Item { t: /[{]/; transform: Rotation { angle: 5 } }",
        set("Item", "z", "5"), "Item { t: /[{]/;\n z : 5\n transform: Rotation { angle: 5 } }");
    row("in the bound object", "Item { transform: Rotation { angle: 5 } }", set("Item", "angle", "6"),
        "Item { transform: Rotation { angle: 6 } }");
    row("a bound object", "Item { delegate: Text { Row { } } }", set("Item", "delegate", "Row { }"),
        "Item { delegate: Row { } }");
    row("a bound list", "Item { states: [State { }]\n x: 1 }", set("Item", "states", "[]"),
        "Item { states: []\n x: 1 }");
    row("in a group", "Text { font { bold: true } }", set("Text", "font.bold", "false"),
        "Text { font { bold: false } }");
    row("beside a group", "Text { font { bold: true } }", set("Text", "font.family", "\"x\""),
        "Text { font { bold: true } \n    font.family : \"x\"}");
    row("beside an animation", "Item { NumberAnimation on x { to: 1 } }", x("3"),
        "Item { NumberAnimation on x { to: 1 } \n    x : 3}");
    row("the last of two", "Item { x: 1; x: 2 }", x("3"), "Item { x: 1; x: 3 }");
    row("signal", "Item { signal x }", x("3"), "refused: A signal has no value.");
    row("required", "Item { required property int x }", x("3"),
        "refused: This cannot be written here: Expected token `;'.");
    row("declared list", "Item { property list<Item> x: [ Text { } ]; y: 1 }", x("[ Row { } ]"),
        "Item { property list<Item> x: [ Row { } ]; y: 1 }");
    row("not as known", "Item { x: 1 }", set("tem", "x", "2"),
        "refused: The source is not as the editor knows it.");
}

void TestEdits::properties()
{
    compare();
}

void TestEdits::objects_data()
{
    columns();
    row("beside a component", "Item { data: [ Component { Item { } }, Text { } ] }", take({"Text"}),
        "Item { data: [ Component { Item { } } ] }");
    row("two of a list", "Item { data: [ Row { }, Text { }, Grid { } ] }", take({"Text", "Grid"}),
        "Item { data: [ Row { } ] }");
    row("first and last of a list", "Item { data: [ Row { }, Text { }, Grid { } ] }", take({"Row", "Grid"}),
        "Item { data: [  Text { } ] }");
    row("all of a list", "Item { data: [ Row { }, /* c */ Text { } ] }", take({"Row", "Text"}),
        "Item { data: [  /* c */  ] }");
    row("the last of a declared list", "Item { property list<Item> l: [ Text { } ]; x: 1 }", take({"Text"}),
        "Item { property list<Item> l; x: 1 }");
    row("the same on lines", "Item {\n    property list<Item> l: [\n        Text { }\n    ]\n    x: 1\n}",
        take({"Text"}), "Item {\n    property list<Item> l\n    x: 1\n}");
    row("what holds another", "Item { Row { Text { } } }", take({"Text", "Row"}), "Item {  }");
    row("the root", "Item { }", take({"Item"}), "refused: The document cannot do without this object.");
    row("all of a component", "Item { component C: Text { } }", take({"Text"}),
        "refused: A component cannot do without this object.");

    const QString board =
        "Item {\n    Row {\n        Text {\n            t: `a\n    b`\n        }\n    }\n    Grid { }\n}";
    row("out of its parent", board, move({"Text"}, "Item", "Grid"),
        "Item {\n    Row {\n    }\n    Text {\n        t: `a\n    b`\n    }\n    Grid { }\n}");
    row("into an empty one", board, move({"Text"}, "Grid"),
        "Item {\n    Row {\n    }\n    Grid {\n        Text {\n            t: `a\n    b`\n        }\n    "
        "}\n}");
    row("to the front", board, move({"Grid"}, "Item", "Row"),
        "Item {\n    Grid { }\n    Row {\n        Text {\n            t: `a\n    b`\n        }\n    }\n}");
    row("several, in their order", board, move({"Grid", "Text"}, "Row"),
        "Item {\n    Row {\n        Grid { }\n        Text {\n            t: `a\n    b`\n        }\n    "
        "}\n}");
    row("to where it is", board, move({"Grid"}, "Item", "Grid"), board);
    row("on one line", "Item { Row { } Text { } Grid { } }", move({"Grid"}, "Item", "Row"),
        "Item { Grid { } Row { } Text { } }");
    row("from a list", "Item {\n    data: [ Row { }, Text { } ]\n}", move({"Row"}, "Item"),
        "Item {\n    data: [  Text { } ]\n    Row { }\n}");
    row("into itself", board, move({"Row"}, "Text"), "refused: An object cannot be moved into itself.");
    row("before what is elsewhere", board, move({"Grid"}, "Item", "Text"),
        "refused: The place is not in that object.");

    row("inserted", board, insert("Text {\n    x: 1\n}", "Row", "Text"),
        "Item {\n    Row {\n        Text {\n            x: 1\n        }\n        Text {\n            t: `a\n "
        "   b`\n"
        "        }\n    }\n    Grid { }\n}");
    row("inserted in a line", "Item { x: 1 }", insert("Text { }", "Item"), "Item { x: 1\n    Text { }\n}");
    row("no object", "Item { }", insert("x: 1", "Item"), "refused: This is not the source of one object.");
    row("added as it stands", "Item {\n}", add("Text { }", "Item"), "Item {\nText { }}");
    row("added behind a property", "Item { x: 1 }", add("Text { }", "Item"), "Item { x: 1 \nText { }}");
    row("added with a comment", "Item { }", add("Text { } // c", "Item"), "Item { Text { } // c\n}");
    row("two added", "Item { }", add("Text { }\nRow { }", "Item"), "Item { Text { }\nRow { }}");
    row("with a property", "Item { }", add("Text { }\nx: 1", "Item"),
        "refused: This is not the source of an object.");

    const QStringList imports{"import A 1.0", "import B 2.0 as B"};
    row("imports", "import A 2.0 // c\nItem { }", add("Text { }", "Item", imports),
        "import A 2.0 // c\nimport B 2.0 as B\nItem { Text { }}");
    row("imports on one line", "import C 1.0; Item { }", add("Text { }", "Item", imports),
        "import C 1.0; \nimport A 1.0\nimport B 2.0 as B\nItem { Text { }}");
    row("first imports", "// c\r\nItem { }", add("Text { }", "Item", imports),
        "// c\r\nimport A 1.0\r\nimport B 2.0 as B\r\nItem { Text { }}");
    row("the same module twice", "import B 2.0\n\nItem { }", insert("Text { }", "Item", {}, imports),
        "import B 2.0\nimport A 1.0\nimport B 2.0 as B\n\nItem {\n    Text { }\n}");
    row("no import", "Item { }", add("Text { }", "Item", {"x"}),
        "refused: This cannot be written here: Unexpected token `identifier'.");
}

void TestEdits::objects()
{
    compare();
}

void TestEdits::reordering_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("after"); // with A behind B
    const auto row = [](const char* name, const QString& source, const QString& after) {
        QTest::newRow(name) << source << after;
    };
    row("blank lines", "Item {\n\n    A { }\n\n\n    B { }\n    C { }\n}",
        "Item {\n\n    B { }\n\n\n    A { }\n    C { }\n}");
    row("the last two", "Item {\n    A {\n    }\n\n    B { }\n}", "Item {\n    B { }\n\n    A {\n    }\n}");
    row("CRLF", "Item {\r\n    A { }\r\n\r\n    B {\r\n    }\r\n}",
        "Item {\r\n    B {\r\n    }\r\n\r\n    A { }\r\n}");
    row("own comments", "Item {\n    // a\n    /* A\n */\n    A { } // a }\n    // b\n    B { }\n}",
        "Item {\n    // b\n    B { }\n    // a\n    /* A\n */\n    A { } // a }\n}");
    row("comments of others",
        "Item { // i\n    // all\n\n    A { }\n    x: 1 // x\n    B { } /* b */\n    // end\n}",
        "Item { // i\n    // all\n\n    B { } /* b */\n    x: 1 // x\n    A { }\n    // end\n}");
    row("on one line", "Item { /* a */ A { } B { } /* b */ }", "Item { /* a */ B { } A { } /* b */ }");
    row("line shared with the end", "Item {\n    A { } // a\n    B { } }",
        "Item {\n    B { } // a\n    A { } }");
    row("other members between", "Item {\n    A { }\n    y: 2; function f() { }\n    B { }\n}",
        "Item {\n    B { }\n    y: 2; function f() { }\n    A { }\n}");
    row("list on a line", "Item { states: [ A { }, B { } ] }", "Item { states: [ B { }, A { } ] }");
    row("list on lines",
        "Item {\n    data: [\n        A { }, // one\n        // b\n        B { } // two\n    ]\n}",
        "Item {\n    data: [\n        // b\n        B { }, // one\n        A { } // two\n    ]\n}");
    row("other indentation", "Item {\n    A {\n        x: 1\n    }\n  B { }\n}",
        "Item {\n    B { }\n  A {\n      x: 1\n  }\n}");
}

/// Two neighbours change places; moved back, the bytes are what they were.
void TestEdits::reordering()
{
    QFETCH(QString, source);
    QFETCH(QString, after);
    const Change forward = moveObjects(whole(source), {source.indexOf("B {")}, 0, source.indexOf("A {"));
    QCOMPARE(made(source, forward), after);
    const Change back = moveObjects(whole(after), {after.indexOf("A {")}, 0, after.indexOf("B {"));
    QCOMPARE(made(after, back), source);
}

void TestEdits::ids_data()
{
    columns();
    row("references",
        "Item { id: a; x: a.y + b.a; Text { text: `${f(a)} a`; onX: { let q = { a: a, a }; q.a = a[0] } } }",
        identify("Item", "b2"),
        "Item { id: b2; x: b2.y + b.a; Text { text: `${f(b2)} a`; onX: { let q = { a: b2, a: b2 }; q.a = "
        "b2[0] } } }");
    row("in states, aliases and groups",
        "Item { property alias q: a.x; Text { id: a; anchors.a: 1 } states: State { AnchorChanges { target: "
        "a; "
        "anchors { left: a.right } } } }",
        identify("Text", "b"),
        "Item { property alias q: b.x; Text { id: b; anchors.a: 1 } states: State { AnchorChanges { target: "
        "b; "
        "anchors { left: b.right } } } }");
    row("owner in a delegate", "Item { id: a; Repeater { Text { x: a.width; text: 'a' } } }",
        identify("Item", "b"), "Item { id: b; Repeater { Text { x: b.width; text: 'a' } } }");
    row("model of a repeater", "Item { id: a; Repeater { model: a; Text { } } }", identify("Item", "b"),
        "Item { id: b; Repeater { model: b; Text { } } }");
    row("first id", "Item {\n    x: 1\n}", identify("Item", "a"), "Item {\n    x: 1\n    id : a\n}");
    row("name in use", "Item { id: a\n Text { id: b }\n x: b }", identify("Item", "b"),
        "refused: \"b\" is used already, in line 2, 3.");
    row("first id that a script knows", "Item {\n x: b\n}", identify("Item", "b"),
        "refused: \"b\" is used already, in line 2.");
    row("parameter", "Item { id: a\n function f(a) { return a }\n}", identify("Item", "b"),
        "refused: It is not clear what \"a\" means in line 2.");
    row("parameter of a signal", "Item { id: a; signal s(int a)\n onS: a.x\n}", identify("Item", "b"),
        "refused: It is not clear what \"a\" means in line 1.");
    row("the engine's own parameter", "Item { id: mouse\n MouseArea { onClicked: mouse.accepted = true } }",
        identify("Item", "b"), "refused: It is not clear what \"mouse\" means in line 2.");
    row("role or id", "Item { id: price\n ListView { delegate: Text { text: price } } }",
        identify("Item", "b"), "refused: It is not clear what \"price\" means in line 2.");
    row("property or id", "Item { id: text\n Component { Text { text: 'a'; width: text.length } } }",
        identify("Item", "b"), "refused: It is not clear what \"text\" means in line 2.");
    row("twice", "Item { Component { Item { id: a } }\n Component { Item { id: a } } }",
        identify("Item { id", "b"), "refused: It is not clear what \"a\" means in line 2.");
}

void TestEdits::ids()
{
    compare();
}

void TestEdits::freshIds_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("after");
    QTest::newRow("none") << "Text { x: a.x }"
                          << "Text { x: a.x }";
    QTest::newRow("taken") << "Text { id: a; x: a.x; Row { id: b9; y: b9.y } Row { id: c } }"
                           << "Text { id: a3; x: a3.x; Row { id: b2; y: b2.y } Row { id: c } }";
    QTest::newRow("quoted") << "Text { id: \"a\"; x: a.x }"
                            << "Text { id: \"a3\"; x: a3.x }";
    QTest::newRow("two objects") << "Text { id: a } // c\nRow { x: a.x }"
                                 << "Text { id: a3 } // c\nRow { x: a3.x }";
    QTest::newRow("parameter") << "Text { id: a; function f(a) { return a } }"
                               << "Text { id: a3; function f(a) { return a } }";
    QTest::newRow("role") << "Repeater { id: a; Text { text: a; x: a.x } }"
                          << "Repeater { id: a3; Text { text: a; x: a3.x } }";
    QTest::newRow("no document") << "Text { id: a"
                                 << "Text { id: a";
}

void TestEdits::freshIds()
{
    QFETCH(QString, code);
    QTEST(withFreshIds(code, Outline("Item { id: a; Text { id: a2 } Component { Row { id: b9 } } }")),
          "after");
}

/// Every name that the engine refuses for an id is refused before.
void TestEdits::reservedIds()
{
    QQmlEngine engine;
    QStringList names{"A", "1a", "a-b", "if", "this", "null", "parent", "element", "", "a b"};
    const QJSValue globals = engine.evaluate("Object.getOwnPropertyNames(this)");
    for (int i = 0; i < globals.property("length").toInt(); ++i)
        names.append(globals.property(quint32(i)).toString());
    QVERIFY(names.size() > 50);
    for (const QString& name : names) {
        const QString source = "Item { }";
        QCOMPARE(made(source, identify("Item", name)(source)), "refused: \"" + name + "\" cannot be an id.");
    }
}

/// Several at once, in the same and in other objects: all or none.
void TestEdits::severalProperties()
{
    const QString source = "Item {\n    Text { }\n    Row {\n        x: 1; y: 2\n    }\n}";
    std::vector<PropertyValue> values{{source.indexOf("Text"), "x", "3"},
                                      {source.indexOf("Text"), "y", "4 // c"},
                                      {source.indexOf("Row"), "y", "5"},
                                      {source.indexOf("Row"), "x", "6"},
                                      {source.indexOf("Item"), "z", "7"}};
    QCOMPARE(made(source, setProperties(whole(source), values)),
             QString("Item {\n    Text { \n        x : 3\n        y : 4 // c\n}\n    Row {\n        x: 6\n "
                     "y: 5\n    }\n    z : 7}"));
    values.push_back({source.indexOf("Row"), "z", ""});
    QVERIFY(!setProperties(whole(source), values).isPossible());
    QVERIFY(!setProperties(whole(source), {values[2], values[2]}).isPossible());
}

QTEST_GUILESS_MAIN(TestEdits)
#include "tst_edits.moc"
