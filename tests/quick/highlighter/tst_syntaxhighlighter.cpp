// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/qmlhighlighter.h"
#include "quick/highlighter/syntaxhighlighter.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

#include <memory>

/// The highlighter as QML pages use it, on every kind of text area they have.
class TestSyntaxHighlighter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void colorsTextAreas_data();
    void colorsTextAreas();
    void refusesOtherObjects_data();
    void refusesOtherObjects();

private:
    std::unique_ptr<QObject> create(const QByteArray& imports, const QByteArray& area);
    QQmlEngine m_engine;
};

void TestSyntaxHighlighter::initTestCase()
{
    qmlRegisterType<SyntaxHighlighter>("Nuvex.Native", 1, 0, "QMLSyntaxHighlighter");
}

/// An item with a text area `area` and, once complete, what the highlighter says of it.
std::unique_ptr<QObject> TestSyntaxHighlighter::create(const QByteArray& imports, const QByteArray& area)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick 2.15\nimport Nuvex.Native 1.0\n" + imports + R"(
        Item {
            property var area: )" +
                          area + R"(
            QMLSyntaxHighlighter { id: highlighter }
            function highlight() { highlighter.setHighlighter(area) }
            function match() { return highlighter.matchingBracket(area, 5) }
            function mark(text, exact) { highlighter.setMark(area, text, exact) }
        })",
                      QUrl());
    std::unique_ptr<QObject> item(component.create());
    if (!item)
        qWarning() << component.errors();
    return item;
}

void TestSyntaxHighlighter::colorsTextAreas_data()
{
    QTest::addColumn<QByteArray>("imports");
    QTest::addColumn<QByteArray>("area");
    QTest::newRow("TextEdit") << QByteArray() << QByteArray("TextEdit { text: 'Item { id: a }' }");
    QTest::newRow("Controls 1") << QByteArray("import QtQuick.Controls 1.4 as C")
                                << QByteArray(
                                       "C.TextArea { text: 'Item { id: a }'; textFormat: Qt.PlainText }");
    QTest::newRow("Controls 2") << QByteArray("import QtQuick.Controls 2.15 as C")
                                << QByteArray("C.TextArea { text: 'Item { id: a }' }");
}

void TestSyntaxHighlighter::colorsTextAreas()
{
    QFETCH(QByteArray, imports);
    QFETCH(QByteArray, area);
    const auto item = create(imports, area);
    QVERIFY(item);
    auto* textArea = item->property("area").value<QObject*>();
    const QTextDocument* document =
        textArea->property("textDocument").value<QQuickTextDocument*>()->textDocument();
    const auto formats = [&] { return document->firstBlock().layout()->formats(); };

    QVERIFY(QMetaObject::invokeMethod(item.get(), "highlight"));
    QTRY_VERIFY(!formats().isEmpty());
    QCOMPARE(formats().first().format.foreground().color(), QColor("#008000"));
    QCOMPARE(document->findChildren<QMLHighlighter*>().size(), 1);

    QVariant partner;
    QVERIFY(QMetaObject::invokeMethod(item.get(), "match", Q_RETURN_ARG(QVariant, partner)));
    QCOMPARE(partner.toInt(), 13);

    const auto mark = [&](const QString& text, bool exact) {
        QMetaObject::invokeMethod(item.get(), "mark", Q_ARG(QVariant, text), Q_ARG(QVariant, exact));
        return formats().first().format.background().style() == Qt::SolidPattern;
    };
    QVERIFY(mark("item", false));
    QVERIFY(!mark("item", true));
    QVERIFY(mark("Item", true));
    QVERIFY(!mark("", false));

    QVERIFY(QMetaObject::invokeMethod(item.get(), "highlight"));
    QCOMPARE(document->findChildren<QMLHighlighter*>().size(), 2);
}

void TestSyntaxHighlighter::refusesOtherObjects_data()
{
    QTest::addColumn<QByteArray>("area");
    QTest::addColumn<QString>("message");
    QTest::newRow("null") << QByteArray("null") << "No text area to highlight";
    QTest::newRow("no text") << QByteArray("Item { }") << "Not a text area with a text document:";
    QTest::newRow("no document") << QByteArray("Item { property var textDocument: 'x' }")
                                 << "Not a text area with a text document:";
    QTest::newRow("an object that is none")
        << QByteArray("Item { property var textDocument: this }") << "Not a text area with a text document:";
}

void TestSyntaxHighlighter::refusesOtherObjects()
{
    QFETCH(QByteArray, area);
    QFETCH(QString, message);
    const QRegularExpression warning("^" + QRegularExpression::escape(message));
    for (int i = 0; i < 3; ++i)
        QTest::ignoreMessage(QtWarningMsg, warning);
    const auto item = create({}, area);
    QVERIFY(item);
    QVariant partner;
    QVERIFY(QMetaObject::invokeMethod(item.get(), "highlight"));
    QVERIFY(QMetaObject::invokeMethod(item.get(), "match", Q_RETURN_ARG(QVariant, partner)));
    QVERIFY(QMetaObject::invokeMethod(item.get(), "mark", Q_ARG(QVariant, "x"), Q_ARG(QVariant, true)));
    QCOMPARE(partner.toInt(), -1);
}

QTEST_MAIN(TestSyntaxHighlighter)
#include "tst_syntaxhighlighter.moc"
