// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/documentfaults.h"

#include "tests/support/files.h"

#include <QTemporaryDir>
#include <QTest>

/// What is said of a document before the engine gets it, for it would take long or bring the program down.
class TestDocumentFaults : public QObject
{
    Q_OBJECT

private slots:
    void burden_data();
    void burden();
    void loading_data();
    void loading();
};

void TestDocumentFaults::burden_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<double>("objects");
    QTest::addColumn<int>("line");
    QTest::newRow("items") << "Item {\n Text { font { bold: true } }\n states: [ State { } ]\n}" << 4.0 << 0;
    QTest::newRow("repeater") << "Item {\n\n Repeater { model: 100000000; Row { Text { } } }\n}" << 2e8 + 2
                              << 3;
    QTest::newRow("nested") << "Item { Repeater { model: 1e4;\nRepeater { model: 1e4\nText { } } } }"
                            << 100010002.0 << 1;
    QTest::newRow("delegate") << "Item { Repeater { delegate: Text { }\nmodel: 50 } }" << 52.0 << 1;
    QTest::newRow("model that is worked out") << "Item { Repeater { model: n * 9; Text { } } }" << 3.0 << 0;
    QTest::newRow("view, which makes what it shows") << "ListView { model: 100000000; Text { } }" << 2.0 << 0;
    QTest::newRow("no document") << "Item {" << 0.0 << 0;
}

void TestDocumentFaults::burden()
{
    QFETCH(QString, source);
    const QVariantMap burden = DocumentFaults().burden(source);
    QCOMPARE(burden["characters"].toInt(), source.size());
    QTEST(burden["objects"].toDouble(), "objects");
    QTEST(burden["line"].toInt(), "line");
}

void TestDocumentFaults::loading_data()
{
    QTest::addColumn<QByteArray>("main");
    QTest::addColumn<QByteArray>("part"); // Part.qml
    QTest::addColumn<QString>("message"); // of the fault in the second line; empty: it loads
    const QByteArray loaded = "Item { Loader { source: \"main.qml\" } }";
    QTest::newRow("itself") << QByteArray("Item {\nLoader { source: \"main.qml\" } }") << QByteArray()
                            << "main.qml loads itself again, without end";
    QTest::newRow("each other") << QByteArray("Item {\nRow { Loader { source: './Part.qml' } } }") << loaded
                                << "Part.qml loads itself again, without end";
    QTest::newRow("by a type") << QByteArray("Item {\nPart { } }") << loaded
                               << "Part.qml loads itself again, without end";
    QTest::newRow("another that loads itself")
        << QByteArray("Item {\nLoader { source: 'Part.qml' } }")
        << QByteArray("Item { Loader { source: 'Part.qml' } }") << "Part.qml loads itself again, without end";
    QTest::newRow("another") << QByteArray("Item { Loader { source: 'Part.qml' } Part { } }")
                             << QByteArray("Item { }") << "";
    QTest::newRow("by a switch") << QByteArray("Item { Loader { active: a; source: 'main.qml' } }")
                                 << QByteArray() << "";
    QTest::newRow("as rows of a tree")
        << QByteArray("Item { Repeater { model: m; Loader { source: 'main.qml' } } }") << QByteArray() << "";
    QTest::newRow("of the same name as one of a module")
        << QByteArray("import M 1.0\nItem { Part { } }") << QByteArray("import M 1.0\nPart { }") << "";
}

void TestDocumentFaults::loading()
{
    QFETCH(QByteArray, main);
    QFETCH(QByteArray, part);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    write(folder.filePath("main.qml"), main);
    write(folder.filePath("Part.qml"), part);
    const QVariantList faults =
        DocumentFaults().inLoading(main, QUrl::fromLocalFile(folder.filePath("main.qml")));
    QCOMPARE(faults.size(), message.isEmpty() ? 0 : 1);
    if (!faults.isEmpty()) {
        QCOMPARE(faults[0].toMap()["message"].toString(), message);
        QCOMPARE(faults[0].toMap()["line"].toInt(), 2);
    }
}

QTEST_GUILESS_MAIN(TestDocumentFaults)
#include "tst_documentfaults.moc"
