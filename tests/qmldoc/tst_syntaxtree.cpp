// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/outline.h"
#include "qmldoc/projectreferences.h"
#include "qmldoc/textplace.h"

#include <QTest>

class TestSyntaxTree : public QObject
{
    Q_OBJECT

private slots:
    void errors_data();
    void errors();
    void places();
    void literals_data();
    void literals();
    void references();
};

void TestSyntaxTree::errors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QString& text, int offset, const char* message) {
        QTest::newRow(name) << text << offset << message;
    };
    row("empty", "", 0, "Expected token");
    row("no document", "width: 1", 5, "Expected token `{'");
    row("end of lines", "Item {\r\n Text { }\n\r\u2028", 20, "Expected token");
    row("unclosed string", "Item { x: \"a\n }", 10, "Expected token `;'");
    row("two roots", "Item { } Text { }", 9, "Syntax error");
    row("behind a mark", "\ufeffItem { x }", 9, "Expected token `:'");
    row("behind two units", "Item { t: \"\U0001F355\"; x }", 18, "Expected token `:'");
    row("too deep", "\n " + QString("A{").repeated(1365) + QString("}").repeated(1365), 2731, "too deep");
    row("too long", "Item{}" + QString(16 * 1024 * 1024, ' '), 0, "too long");
}

void TestSyntaxTree::errors()
{
    QFETCH(QString, text);
    const Outline outline(text);
    QVERIFY(!outline.isValid());
    QVERIFY(outline.members().empty() && outline.items().empty());
    const SyntaxError& error = outline.error();
    QTEST(error.offset, "offset");
    QCOMPARE(error.line, textPlace(text, error.offset).line);
    QCOMPARE(error.column, textPlace(text, error.offset).column);
    QFETCH(QString, message);
    QVERIFY2(error.message.contains(message), qPrintable(error.message));
}

/// Every place leads to its offset and back, with the lines of the engine.
void TestSyntaxTree::places()
{
    const QString text = "a\r\n\nb\rcc\u2028\U0001F355d\u2029";
    const QVector<QPair<int, int>> expected{{1, 1}, {1, 2}, {-1, 0}, {2, 1}, {3, 1}, {3, 2}, {4, 1},
                                            {4, 2}, {4, 3}, {5, 1},  {5, 2}, {5, 3}, {5, 4}, {6, 1}};
    QCOMPARE(expected.size(), text.size() + 1);
    for (int offset = 0; offset <= text.size(); ++offset) {
        if (offset == 2) // between CR and LF
            continue;
        const TextPlace place = textPlace(text, offset);
        QCOMPARE(qMakePair(place.line, place.column), expected[offset]);
        QCOMPARE(textOffset(text, place), offset);
    }
    QCOMPARE(textOffset(text, {1, 99}), 1);
    QCOMPARE(textOffset(text, {99, 1}), text.size());
    QCOMPARE(textPlace(text, 99).line, 6);
}

void TestSyntaxTree::literals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("literal");
    QTest::newRow("quoted") << "\"a b\"" << QVariant("a b");
    QTest::newRow("escapes, comments") << "/**/ 'a\\'\\u0062' ; // c" << QVariant("a'b");
    QTest::newRow("empty") << "''" << QVariant("");
    QTest::newRow("worked out") << "'a' + 'b'" << QVariant(QVariant::String);
    QTest::newRow("name") << "a" << QVariant(QVariant::String);
}

void TestSyntaxTree::literals()
{
    QFETCH(QString, text);
    QFETCH(QVariant, literal);
    QCOMPARE(SyntaxTree::stringLiteral(text), literal.toString());
    QCOMPARE(SyntaxTree::stringLiteral(text).isNull(), literal.isNull());
}

void TestSyntaxTree::references()
{
    const QString document = R"(import QtQuick 2.15
Item {
    property string source: "declared.png"
    Image { source: "images/a b.png" }
    Image { source: flag ? "x.png" : "y.png" }
    Text { text: "source.png"; font { family: "Lobster" } }
    Component { Text { font . family: "Grotesk" } }
})";
    QStringList found;
    for (const ProjectReference& reference : projectReferences(document))
        found.append(QString("%1 %2 %3").arg(reference.kind).arg(reference.line).arg(reference.name));
    QCOMPARE(found, QStringList({"0 4 images/a b.png", "1 6 Lobster", "1 7 Grotesk"}));
    QVERIFY(projectReferences("Item {").isEmpty());
}

QTEST_APPLESS_MAIN(TestSyntaxTree)
#include "tst_syntaxtree.moc"
