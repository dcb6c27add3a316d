// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/qmltokenizer.h"
#include "quick/highlighter/qmlwords.h"
#include "runmask.h"

#include <QDir>
#include <QtTest>

#include <limits>

class TestQmlTokenizer : public QObject
{
    Q_OBJECT

private slots:
    void words_data();
    void words();
    void lines_data();
    void lines();
    void documents_data();
    void documents();
    void depthThatDoesNotFitIsCut();
};

void TestQmlTokenizer::words_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("instanceof") << 6;
    QTest::newRow("null") << 6;
    QTest::newRow("String") << 7; // also a type and, as "string", a keyword
    QTest::newRow("string") << 6;
    QTest::newRow("Number") << 15;
    QTest::newRow("Keys") << 15; // also a property
    QTest::newRow("filter") << 7;
    QTest::newRow("__lookupSetter__") << 7;
    QTest::newRow("localCompare") << 7;
    QTest::newRow("Camera") << 15;
    QTest::newRow("MenuSlideshow") << 15;
    QTest::newRow("border") << 16;
    QTest::newRow("onTouchUpdated") << 16;
    QTest::newRow("item") << 1;
    QTest::newRow("Borders") << 1;
    QTest::newRow("") << 1;
}

void TestQmlTokenizer::words()
{
    QFETCH(int, kind);
    QCOMPARE(int(classifyWord(QString(QTest::currentDataTag()))), kind);

    const QmlWords& words = QmlWords::instance();
    QCOMPARE(words.keywords.size(), 37);
    QCOMPARE(words.knownIds.size(), 128);
    QCOMPARE(words.qmlTypes.size(), 263);
    QCOMPARE(words.qmlProperties.size(), 101);
}

void TestQmlTokenizer::lines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<int>("after");

    QTest::newRow("empty") << "" << -1 << "" << 0;
    QTest::newRow("empty in comment") << "" << 36 << "" << 36;
    QTest::newRow("division is a regular expression") << "x = a / b / c" << 0 << "..O...Sssss.." << 0;
    QTest::newRow("open string") << "a: \"b: 1" << 0 << ".O......" << 0;
    QTest::newRow("other quote inside") << "\"it's\"'\"'" << 0 << "SsssssSss" << 0;
    QTest::newRow("escaped quote") << R"("a\"b"1)" << 0 << "SsssssN" << 0;
    QTest::newRow("escaped backslash does not close") << R"("a\\"b)" << 0 << "......" << 0;
    QTest::newRow("comment opens") << "a /* b" << 16 << "..Cccc" << 20;
    QTest::newRow("comment closes") << "b */ id" << 20 << "Cccc.Pp" << 16;
    QTest::newRow("comment closes at the end") << "*/" << 4 << "Cc" << 0;
    QTest::newRow("star shared by both ends") << "/*/ id" << 0 << "Cccccc" << 4;
    QTest::newRow("line comment in comment") << "// */ id" << 4 << "Ccccc.Pp" << 0;
    QTest::newRow("slash at the end") << "1 /" << 0 << "N.." << 0;
    QTest::newRow("two up, one down") << "{ {}" << 0 << "{.{}" << 16;
    QTest::newRow("more closing than opening") << "}}" << 0 << "}}" << -32;
    QTest::newRow("comment under negative depth") << "}/*" << 0 << "}Cc" << -12;
    QTest::newRow("which the next line forgets") << "id" << -12 << "Pp" << 0;
    QTest::newRow("number and word") << "0x1F a1 _2" << 0 << "N........." << 0;
    QTest::newRow("no operator at brackets") << "a[0](1)" << 0 << ".[N](N)" << 0;
    QTest::newRow("digits and letters of other scripts") << u8"\u0663\u00e9=\u00a0_" << 0 << "N.O.." << 0;
    QTest::newRow("every bracket") << "(){}[]" << 0 << "(){}[]" << 0;
    QTest::newRow("carriage return") << "id\r" << 16 << "Pp." << 16;
    QTest::newRow("surrogates are operators") << QString(u8"\U0001F355") << 0 << "OO" << 0;
}

void TestQmlTokenizer::lines()
{
    QFETCH(QString, line);
    QFETCH(int, before);
    LineTokens tokens;
    tokenizeQmlLine(line, before, tokens);
    QTEST(runMask(line, tokens), "mask");
    QTEST(tokens.state, "after");
}

/// A pair of files is a document and the masks and states of its lines.
void TestQmlTokenizer::documents_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("runs");
    const QDir folder(QStringLiteral(NUVEX_TEST_DATA "/quick"));
    for (const QString& name : folder.entryList({"*.in.qml"}))
        QTest::newRow(qPrintable(name))
            << folder.filePath(name) << folder.filePath(name).replace(".in.qml", ".runs");
}

void TestQmlTokenizer::documents()
{
    QFETCH(QString, source);
    QFETCH(QString, runs);
    QFile in(source), expected(runs);
    QVERIFY(in.open(QIODevice::ReadOnly) && expected.open(QIODevice::ReadOnly));
    const QStringList wanted = QString::fromUtf8(expected.readAll()).split('\n');
    LineTokens tokens;
    tokens.state = -1;
    int number = 0;
    for (const QString& line : QString::fromUtf8(in.readAll()).split('\n')) {
        tokenizeQmlLine(line, tokens.state, tokens);
        QCOMPARE(QString("%1 | %2").arg(runMask(line, tokens)).arg(tokens.state), wanted.value(number++));
    }
    QCOMPARE(number, wanted.size() - 1);
}

void TestQmlTokenizer::depthThatDoesNotFitIsCut()
{
    const int most = std::numeric_limits<int>::max() / 16;
    LineTokens tokens;
    tokenizeQmlLine(u"{{/*", lineState(most, LineState::Start), tokens);
    QCOMPARE(tokens.state, most * 16 + int(LineState::Comment));
}

QTEST_APPLESS_MAIN(TestQmlTokenizer)
#include "tst_qmltokenizer.moc"
