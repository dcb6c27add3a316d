// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/bracketmatcher.h"
#include "quick/highlighter/qmlblockdata.h"
#include "quick/highlighter/qmlhighlighter.h"

#include <QDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

namespace {

/// A highlighted document.
struct Document : QTextDocument
{
    explicit Document(const QString& text)
        : highlighter(new QMLHighlighter(this))
    {
        documentLayout(); // a document without one tells nobody of its changes
        setPlainText(text);
    }

    /// Puts `text` in the place of `length` characters, as typing does.
    void edit(int at, int length, const QString& text)
    {
        QTextCursor cursor(this);
        cursor.setPosition(at);
        cursor.setPosition(at + length, QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }

    QMLHighlighter* highlighter;
};

/// Foreground of every character of a line; empty names stand for the plain text colour.
QStringList colorsOf(const QTextBlock& block)
{
    QStringList colors;
    for (int i = 0; i < block.length() - 1; ++i)
        colors.append(QString());
    for (const QTextLayout::FormatRange& range : block.layout()->formats())
        for (int i = range.start; i < range.start + range.length; ++i)
            colors[i] = range.format.foreground().color().name();
    return colors;
}

QStringList colorsOfTokens(const QString& line, const LineTokens& tokens)
{
    static const QHash<int, QString> names{{2, "#949392"}, {3, "#b08000"}, {4, "#bf0303"},  {5, "#141312"},
                                           {6, "#0095ff"}, {7, "#0055af"}, {15, "#008000"}, {16, "#0057ae"}};
    QStringList colors;
    for (int i = 0; i < line.size(); ++i)
        colors.append(QString());
    for (const TokenRun& run : tokens.runs)
        for (int i = run.start; i < run.start + run.length; ++i)
            colors[i] = names[int(run.kind)];
    return colors;
}

QVector<int> bracketsOf(const QTextBlock& block)
{
    const auto* data = static_cast<QMLBlockData*>(block.userData());
    return data ? data->brackets : QVector<int>();
}

} // namespace

class TestQmlHighlighter : public QObject
{
    Q_OBJECT

private slots:
    void colorsOfDocuments_data();
    void colorsOfDocuments();
    void commentSpreadsAndShrinksAsTyped();
    void blockData();
    void mark_data();
    void mark();
    void brackets_data();
    void brackets();
    void bracketsTurnedIntoText_data();
    void bracketsTurnedIntoText();
};

void TestQmlHighlighter::colorsOfDocuments_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(NUVEX_TEST_DATA "/quick"));
    for (const QString& name : folder.entryList({"*.in.qml"}))
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TestQmlHighlighter::colorsOfDocuments()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Document document(QString::fromUtf8(file.readAll()));
    LineTokens tokens;
    tokens.state = -1;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        tokenizeQmlLine(block.text(), tokens.state, tokens);
        QCOMPARE(colorsOf(block), colorsOfTokens(block.text(), tokens));
        QCOMPARE(block.userState(), tokens.state);
        QCOMPARE(bracketsOf(block), tokens.brackets);
    }
}

void TestQmlHighlighter::commentSpreadsAndShrinksAsTyped()
{
    QString text = "/ comment\n";
    for (int i = 0; i < 2000; ++i)
        text += "Item { id: a }\n";
    Document document(text);
    const QTextBlock last = document.lastBlock().previous();
    QCOMPARE(colorsOf(last).first(), QString("#008000"));

    document.edit(1, 0, "*");
    QCOMPARE(colorsOf(last).first(), QString("#949392"));
    QCOMPARE(last.userState(), 4);

    document.edit(2, 0, "*/");
    QCOMPARE(colorsOf(last).first(), QString("#008000"));
    QCOMPARE(last.userState(), 0);
}

void TestQmlHighlighter::blockData()
{
    Document document("Item { a: { b: [1] }\nplain");
    QCOMPARE(bracketsOf(document.firstBlock()), QVector<int>({5, 10, 15, 17, 19}));
    QCOMPARE(document.firstBlock().userState(), 16);
    QVERIFY(!document.lastBlock().userData());

    document.edit(0, 5, QString()); // the list follows the text
    QCOMPARE(bracketsOf(document.firstBlock()), QVector<int>({0, 5, 10, 12, 14}));
    document.edit(0, 15, "none"); // and stays when the last bracket goes
    QCOMPARE(bracketsOf(document.firstBlock()), QVector<int>({0, 5, 10, 12, 14}));
}

void TestQmlHighlighter::mark_data()
{
    QTest::addColumn<QString>("mark");
    QTest::addColumn<bool>("caseSensitive");
    QTest::addColumn<QString>("marked");
    // text:                                               "width: Width\nnone\naaa"
    QTest::newRow("any case") << "width" << false << "#####..#####|....|...";
    QTest::newRow("exact case") << "width" << true << "#####.......|....|...";
    QTest::newRow("overlapping") << "aa" << false << "............|....|###";
    QTest::newRow("over tokens") << ": W" << false << ".....###....|....|...";
    QTest::newRow("absent") << "height" << false << "............|....|...";
    QTest::newRow("nothing") << "" << false << "............|....|...";
}

void TestQmlHighlighter::mark()
{
    QFETCH(QString, mark);
    QFETCH(bool, caseSensitive);
    Document document("width: Width\nnone\naaa");
    document.highlighter->setMark(mark, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    QStringList marked;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line(block.length() - 1, '.');
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            if (range.format.background().style() == Qt::NoBrush)
                continue;
            QCOMPARE(range.format.background().color().name(), QString("#bf0303"));
            QCOMPARE(range.format.foreground().color().name(), QString("#141312"));
            line.replace(range.start, range.length, QString(range.length, '#'));
        }
        marked.append(line);
    }
    QTEST(marked.join('|'), "marked");
}

void TestQmlHighlighter::brackets_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("partner");
    QTest::newRow("same line") << "a(b)" << 1 << 3;
    QTest::newRow("backwards") << "a(b)" << 3 << 1;
    QTest::newRow("nested") << "{[()]()}" << 0 << 7;
    QTest::newRow("nested, backwards") << "{[()]()}" << 7 << 0;
    QTest::newRow("over lines") << "{\n\nx\n(\n)\n}" << 0 << 9;
    QTest::newRow("over lines, backwards") << "{\n\nx\n(\n)\n}" << 9 << 0;
    QTest::newRow("not in texts and comments") << "(\")\" /*)*/ // )\n)" << 0 << 16;
    QTest::newRow("other kind") << "(]" << 0 << -1;
    QTest::newRow("other kind, backwards") << "(]" << 1 << -1;
    QTest::newRow("open to the end") << "a {\n b" << 2 << -1;
    QTest::newRow("no opening one") << "a\n} b" << 2 << -1;
    QTest::newRow("no bracket there") << "(a)" << 1 << -1;
    QTest::newRow("bracket in a text") << "\"(\" )" << 1 << -1;
    QTest::newRow("before the start") << "()" << -1 << -1;
    QTest::newRow("past the end") << "()" << 9 << -1;
    QTest::newRow("nothing") << "" << 0 << -1;
}

void TestQmlHighlighter::brackets()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QTEST(matchingBracket(Document(text), position), "partner");

    QTextDocument plain(text);
    QCOMPARE(matchingBracket(plain, position), -1);
}

/// Lines keep the bracket list of their last bracket; it must not count once they hold none.
void TestQmlHighlighter::bracketsTurnedIntoText_data()
{
    QTest::addColumn<int>("at");
    QTest::addColumn<QString>("typed");
    QTest::newRow("line commented out") << 5 << "//";
    QTest::newRow("comment opened above") << 3 << "/*";
    QTest::newRow("string opened") << 4 << "\"";
}

void TestQmlHighlighter::bracketsTurnedIntoText()
{
    QFETCH(int, at);
    QFETCH(QString, typed);
    Document document("{ a\n [(\n/**/}");
    QCOMPARE(matchingBracket(document, 0), -1);
    document.edit(at, 0, typed); // the second line loses its brackets
    QCOMPARE(matchingBracket(document, document.toPlainText().indexOf('(')), -1);
    QCOMPARE(matchingBracket(document, 0), document.toPlainText().size() - 1);
}

QTEST_MAIN(TestQmlHighlighter)
#include "tst_qmlhighlighter.moc"
