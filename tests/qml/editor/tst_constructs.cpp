// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/files.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// What documents can hold, through the editor and the real engine, each in a process of its own: shown, and
/// after each item was moved and that taken back the same bytes; or why not, in words. Never a crash.
class TestConstructs : public QObject
{
    Q_OBJECT

private slots:
    void constructs_data();
    void constructs();
};

void TestConstructs::constructs_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("told");
    const auto shown = [](const char* name, const char* body) { QTest::newRow(name) << body << "shown"; };
    shown("groups", "Item { Text { font { pixelSize: 9 } anchors { left: parent.left } }\n"
                    "Rectangle { border { width: 2 } layer { enabled: false } x: 4; y: 5 } }");
    shown("group in a value", "Item { Image { sourceSize { width: 4 }\n"
                              "transform: Rotation { origin { x: 3 } angle: 9 } } }");
    shown("group in a delegate",
          "ListView { width: 50; height: 50; model: 3\ndelegate: Text { font { bold: true } } }");
    shown("value source", "Rectangle { NumberAnimation on x { easing { type: Easing.InQuad } to: 9 } }");
    shown("repeater", "Row { Repeater { model: 3; Rectangle { width: 9; height: 9 } } }");
    shown("list element",
          "ListView { model: ListModel { ListElement { name: 'a' } ListElement { name: 'b' } } }");
    shown("component", "Item { Component { id: c; Rectangle { } } Loader { sourceComponent: c } }");
    shown("states",
          "Item { id: p; states: [ State { name: 'a'; PropertyChanges { target: p; x: 5 } },"
          "State { name: 'b' } ]\ntransitions: Transition { NumberAnimation { properties: 'x' } } }");
    shown("behaviour",
          "Item { Rectangle { width: 9; Behavior on x { NumberAnimation { duration: 900 } } } }");
    shown("endless animation",
          "Item { Rectangle { RotationAnimation on rotation { loops: -1; from: 0; to: 360 } } }");
    shown("timer",
          "Item { Timer { interval: 1; running: true; repeat: true; onTriggered: parent.x += 1 } Text { } }");
    shown("bindings",
          "Item { width: 90; Rectangle { x: parent.width / 3; y: Math.max(1, 2); width: height } }");
    shown("anchors and layouts",
          "Row { Text { anchors.bottom: parent.bottom } Rectangle { width: 5; height: 5 } }");
    shown("line ends", "Item {\r\n  Rectangle {\r\n    x: 1\r\n  }\r\n}\r\n");
    shown("beyond the BMP", "Item { /* \xF0\x9F\x98\x80 */ Text { text: '\xF0\x9F\x98\x80'; x: 3 } }");
    shown("one line", "Item { Rectangle { x: 1; y: 2 } Rectangle { } }");
    shown("quoted id", "Item { id: 'a'; Rectangle { width: a.width } }");
    shown("inline component", "Item { component Dot: Rectangle { width: 4 } Dot { x: 3 } }");
    shown("attached", "Item { Keys.onPressed: { } Component.onCompleted: x = 3; Text { } }");
    shown("names of the editor",
          "Item { property var desk: 1; property int root: 2; Text { text: root; x: desk } }");
    shown("particles",
          "import QtQuick.Particles 2.15\nItem { width: 99; height: 99; ParticleSystem {\n"
          "Emitter { width: 9; height: 9; emitRate: 300 } ImageParticle { source: 'particle.png' }\n"
          "Affector { onAffectParticles: { } } } Text { } }");
    QTest::newRow("window") << "import QtQuick.Window 2.15\nWindow { }"
                            << "its root is no visual item";
    QTest::newRow("no item") << "Timer { }"
                             << "its root is no visual item";
    QTest::newRow("own member") << "Item { function evaluate() { } }"
                                << "is taken by the editor";
    QTest::newRow("unknown type") << "Item { Nothing { } }"
                                  << "Nothing is not a type";
    QTest::newRow("unknown module") << "import Not.There 1.0\nItem { }"
                                    << "is not installed";
    QTest::newRow("broken") << "Item { x: }"
                            << "Expected token";
    QTest::newRow("endless load") << "Item { Component.onCompleted: { while (true); } }"
                                  << "does not end";
    QTest::newRow("id twice") << "Item { Text { id: a } Text { id: a } }"
                              << "id is not unique";
}

void TestConstructs::constructs()
{
    QFETCH(QString, body);
    QFETCH(QString, told);
    const QTemporaryDir folder;
    const QString file = folder.filePath("main.qml");
    write(file, "import QtQuick 2.15\n" + body.toUtf8());
    QProcess process;
    process.start(NUVEX_TRIAL, {file});
    QVERIFY(process.waitForFinished(60000));
    const QString output = process.readAllStandardOutput() + process.readAllStandardError();
    QVERIFY2(process.exitStatus() == QProcess::NormalExit, qPrintable("crashed: " + output));
    QVERIFY2(process.exitCode() == 0 && output.contains(told), qPrintable(output));
}

QTEST_MAIN(TestConstructs)
#include "tst_constructs.moc"
