// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editortext.h"
#include "qmldoc/faults.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString head = QStringLiteral("import QtQuick 2.15\n");
const QString controlsHead = head + QStringLiteral("import QtQuick.Controls 2.15\n");

/// The child: makes an object of a file's text. Says the root's number, or the errors as "line:column
/// message".
int load(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(file.readAll(), QUrl());
    QTextStream out(stdout);
    const std::unique_ptr<QObject> object(component.create());
    if (object)
        out << "element " << object->property("element").toInt() << "\n";
    for (const QQmlError& error : component.errors())
        out << error.line() << ":" << error.column() << " " << error.description() << "\n";
    return object ? 0 : 1;
}

} // namespace

/// What the engine makes of the text that it is handed. Each text goes to an engine in a process of its own:
/// some that the engine should refuse bring it down.
class TestThinnedText : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheSourceShows_data();
    void showsWhatTheSourceShows();
    void faultsAreThoseOfTheSource_data();
    void faultsAreThoseOfTheSource();
    void faultsInSource_data();
    void faultsInSource();
    void offsets();

private:
    QString engineSays(const QString& text);

    QTemporaryDir m_folder;
};

/// "crashed" when the engine did.
QString TestThinnedText::engineSays(const QString& text)
{
    QFile file(m_folder.filePath("text.qml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        return "not written";
    file.close();
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--load", file.fileName()});
    if (!child.waitForFinished(60000))
        return "hangs";
    const bool crashed = child.exitStatus() == QProcess::CrashExit;
    return crashed ? "crashed" : QString::fromUtf8(child.readAllStandardOutput()).trimmed();
}

void TestThinnedText::showsWhatTheSourceShows_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* body) { QTest::newRow(name) << head + body; };
    row("groups", "Text { font { bold: true } anchors { margins: 2 } layer { enabled: true } }");
    row("group and dots", "Text { font { bold: true } font.pixelSize: 20; font { family: 'x' } }");
    row("group in a delegate", "ListView { model: 2; delegate: Text { font { bold: true } } }");
    row("group in a list's delegate", "Repeater { delegate: Rectangle { border { width: 1 } Item { } } }");
    row("group in a component", "Loader { sourceComponent: Text { font { bold: true } } }");
    row("group in a declared value", "Item { property Item i: Text { font { bold: true } Item { } } }");
    row("group in a bound object", "Item { transform: Rotation { origin { x: 1 } } }");
    row("group in an animation", "Item { NumberAnimation on x { to: 3; easing { type: Easing.InQuad } } }");
    row("group in a list", "Item { transform: [ Rotation { axis { x: 1; y: 0; z: 0 } }, Scale { } ] }");
    row("group in a group's object",
        "Item { component C: Item { property Item i: Item { } } C { i { x: 3 } } }");
    row("anchor changes",
        "Item { id: r; states: State { AnchorChanges { target: r; anchors { left: r.left } } } }");
    row("property changes", "Item { id: r; Text { id: t } states: State { PropertyChanges { target: t; font "
                            "{ bold: true } } } }");
    row("list elements",
        "ListModel { ListElement { a: 1; b: [ ListElement { c: 1 } ] } ListElement { a: 2 } }");
    row("alias of an inline component", "Item { component T: Item { property alias f: t.font; Text { id: t } "
                                        "} T { f { bold: true } } Item { } }");
    row("signals", "Item { id: r; Connections { target: r; function onXChanged() { } } }");
    row("values", "Item { Behavior on x { SpringAnimation { } } Timer { } QtObject { property int a } }");
    row("components",
        "Item { Component { id: c; Rectangle { border { width: 1 } } } Loader { sourceComponent: c } }");
    row("semicolons and comments", "Item { x: 1; Item { } y: 2; Item { z: 1 // }\n} }");
    row("byte-order mark", "Item { }");
    const QString controls = "Control { background: Rectangle { border { width: 1 } } contentItem: Text { "
                             "font { bold: true } } }";
    QTest::newRow("controls") << controlsHead + controls;
    QTest::newRow("qualified") << "import QtQuick 2.15 as Q\nQ.ListModel { Q.ListElement { a: 1 } }";
}

void TestThinnedText::showsWhatTheSourceShows()
{
    QFETCH(QString, text);
    QCOMPARE(engineSays(text), QString("element 0"));
    const Outline outline(text);
    QCOMPARE(engineSays(thinnedText(text, outline, 7)),
             QString("element %1").arg(outline.items().size() + 6));
}

void TestThinnedText::faultsAreThoseOfTheSource_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("type") << head + "Item {\n    Item { }\n    Item { Nothing { } }\n}";
    QTest::newRow("behind others on its line") << head + "Item { Item { } Item { } Nothing { } }";
    QTest::newRow("property") << head + "Item {\r\n Item { x: 1 // c\r\n}\r\n Item { nothing: 2 }\r\n}";
    QTest::newRow("value") << head + "Item { Item { }\n Text { anchors { margins: 2 } x: 'a' } }";
    QTest::newRow("closing brace") << head + "Item { Item { }\n Nothing { } Item { }\n}";
    QTest::newRow("look-alike") << head + "// \nproperty int element: 0\nItem { }";
    QTest::newRow("in what is not numbered") << head + "Item { Item { } Component { Nothing { } } Item { } }";
    QTest::newRow("syntax") << head + "Item { Item { }\n x y }";
}

void TestThinnedText::faultsAreThoseOfTheSource()
{
    QFETCH(QString, text);
    const QString raw = engineSays(text);
    const Outline outline(text);
    for (const QString& handed : {editorText(text, outline, 0), thinnedText(text, outline, 0), text}) {
        const QString said = engineSays(handed);
        const TextPlace place{said.section(':', 0, 0).toInt(),
                              said.section(':', 1).section(' ', 0, 0).toInt()};
        const TextPlace found = sourcePlace(text, handed, place);
        QCOMPARE(QString("%1:%2 ").arg(found.line).arg(found.column) + said.section(' ', 1), raw);
    }
}

void TestThinnedText::faultsInSource_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("none") << "Item { property int elements; Component { Item { property int element } } }"
                          << QStringList();
    QTest::newRow("syntax") << "Item {\n x y }" << QStringList("2:4");
    QTest::newRow("own members")
        << "Item {\n property int element\n Item { function evaluate() { }\n} signal element\n}"
        << QStringList({"2:2", "3:9", "4:3"});
}

void TestThinnedText::faultsInSource()
{
    QFETCH(QString, text);
    QStringList places;
    for (const Fault& fault : ::faultsInSource(Outline(text)))
        places.append(QString("%1:%2").arg(fault.place.line).arg(fault.place.column));
    QTEST(places, "places");
}

/// Every character of the source is found again in both texts, also where it stands beside one that was put
/// in.
void TestThinnedText::offsets()
{
    const QString text = "\ufeffItem { t: \"\U0001F355\"; Text { font { bold: true }} Row { } // }\r\n}\r\n";
    const Outline outline(text);
    for (const QString& handed : {editorText(text, outline, 9), thinnedText(text, outline, 9), text}) {
        QString found;
        int last = -1;
        for (int offset = 0; offset < handed.size(); ++offset) {
            const int at = sourceOffset(outline, handed, offset);
            QVERIFY(at >= last && at < text.size());
            if (handed.at(offset) == text.at(at))
                found = found.left(at) + text.at(at);
            last = at;
        }
        QCOMPARE(found, text);
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 2 && qstrcmp(argv[1], "--load") == 0)
        return load(argc, argv);
    QCoreApplication application(argc, argv);
    TestThinnedText test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_thinnedtext.moc"
