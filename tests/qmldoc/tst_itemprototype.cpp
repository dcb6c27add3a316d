// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/itemprototype.h"

#include <QTest>

class TestItemPrototype : public QObject
{
    Q_OBJECT

private slots:
    void prototype_data();
    void prototype();
};

void TestItemPrototype::prototype_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("literal") << "Item { property string cPrototype: \"Clock { x: 1 }\"; y: \"z\" }"
                             << "Clock { x: 1 }";
    QTest::newRow("several lines") << "cPrototype:\n  \"A {\n  b: 'c'\n}\""
                                   << "A {\n  b: 'c'\n}";
    QTest::newRow("not unescaped") << "cPrototype: \"a\\n\\\"b\""
                                   << "a\\n\\";
    QTest::newRow("the first counts") << "// cPrototype \"a\"\n cPrototype: \"b\""
                                      << "a";
    QTest::newRow("empty literal") << "cPrototype: \"\""
                                   << "";
    QTest::newRow("quotes before it") << "x: \"1\"; cPrototype: \"a\""
                                      << "a";
    QTest::newRow("absent") << "Item { property string prototype: \"a\" }"
                            << "";
    QTest::newRow("other case") << "CPROTOTYPE \"a\""
                                << "";
    QTest::newRow("empty text") << ""
                                << "";
    QTest::newRow("no quote after it") << "x: \"1\" cPrototype"
                                       << "x: ";
    QTest::newRow("no quote at all") << "Item { cPrototype }"
                                     << "Item { cPrototype }";
    QTest::newRow("no closing quote") << "x cPrototype: \"a b"
                                      << "a b";
    QTest::newRow("quote at the end") << "cPrototype\""
                                      << "";
}

void TestItemPrototype::prototype()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(itemPrototype(text), expected);
}

QTEST_APPLESS_MAIN(TestItemPrototype)
#include "tst_itemprototype.moc"
