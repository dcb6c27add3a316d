// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editingsession.h"

#include <QTest>

#include <climits>

namespace {

const QString rectangle = QStringLiteral("Rectangle { width: 100 }");

bool writeNothing(const QString&, const QString&)
{
    return false;
}

QString valueOf(const QVariantList& map, int i, const QString& property)
{
    return map.at(i).toMap()["properties"].toMap()[property].toMap()["value"].toString();
}

} // namespace

class TestEditingSession : public QObject
{
    Q_OBJECT

private slots:
    void everyTenthSaveIsWritten();
    void reads_data();
    void reads();
    void replaces_data();
    void replaces();
    void searches_data();
    void searches();
    void undoAndRedoSetTheSource();
    void generatesFromTextOrSource();
    void failedGenerationKeepsTheMap();
    void mapOfATextLeavesTheSessionAlone();
};

// The counter is the process's own, so this goes first.
void TestEditingSession::everyTenthSaveIsWritten()
{
    QStringList written;
    const auto writer = [&](const QString& text, const QString& fileName) {
        written.append(fileName + '=' + text);
        return false;
    };
    EditingSession first(writer);
    EditingSession second(writer);
    for (int i = 1; i <= 30; ++i) {
        EditingSession& session = i % 3 ? first : second;
        session.setSource(QString::number(i));
        session.saveState();
        QCOMPARE(written.size(), i / 10);
    }
    QCOMPARE(written, QStringList({"main.savestatus=10", "main.savestatus=20", "main.savestatus=30"}));
}

void TestEditingSession::reads_data()
{
    QTest::addColumn<int>("beg");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("expected");
    QTest::newRow("inside") << 1 << 3 << "bc";
    QTest::newRow("empty") << 2 << 2 << "";
    QTest::newRow("past the end") << 4 << 99 << "ef";
    QTest::newRow("from before the start") << -2 << 2 << "ab";
    QTest::newRow("negative length") << 3 << 1 << "def";
    QTest::newRow("behind the end") << 7 << 9 << "";
    QTest::newRow("widest") << INT_MIN << INT_MAX << "";
    QTest::newRow("widest backwards") << INT_MAX << INT_MIN << "";
}

void TestEditingSession::reads()
{
    QFETCH(int, beg);
    QFETCH(int, end);
    EditingSession session(writeNothing);
    session.setSource("abcdef");
    QTEST(session.source(beg, end), "expected");
}

void TestEditingSession::replaces_data()
{
    QTest::addColumn<int>("beg");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("expected");
    QTest::newRow("inside") << 1 << 3 << "a--def";
    QTest::newRow("insertion") << 2 << 2 << "ab--cdef";
    QTest::newRow("at the start") << 0 << 0 << "--abcdef";
    QTest::newRow("at the end") << 6 << 6 << "abcdef--";
    QTest::newRow("past the end") << 4 << 99 << "abcd--";
    QTest::newRow("behind the end") << 7 << 9 << "abcdef";
    QTest::newRow("before the start") << -1 << 2 << "abcdef";
    QTest::newRow("end first") << 3 << 1 << "abc--def";
    QTest::newRow("everything") << 0 << INT_MAX << "--";
    QTest::newRow("widest backwards") << 0 << INT_MIN << "--abcdef";
}

void TestEditingSession::replaces()
{
    QFETCH(int, beg);
    QFETCH(int, end);
    EditingSession session(writeNothing);
    session.setSource("abcdef");
    session.replace(beg, end, "--");
    QTEST(session.source(), "expected");
}

void TestEditingSession::searches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("previous");
    // In the text      a-b-B-a
    QTest::newRow("at the start") << "a" << 0 << 0 << 0;
    QTest::newRow("between") << "-" << 2 << 3 << 1;
    QTest::newRow("at from") << "-" << 3 << 3 << 3;
    QTest::newRow("case") << "B" << 0 << 4 << -1;
    QTest::newRow("none") << "x" << 3 << -1 << -1;
    QTest::newRow("two characters") << "-b" << 1 << 1 << 1;
    QTest::newRow("previous by its start") << "-B" << 4 << -1 << 3;
    QTest::newRow("last character") << "a" << 6 << 6 << 6;
    QTest::newRow("from the length") << "a" << 7 << -1 << 6;
    QTest::newRow("far behind") << "a" << INT_MAX << -1 << 6;
    QTest::newRow("before the start") << "a" << -1 << 0 << -1;
    QTest::newRow("longer than the text") << "a-b-B-a-" << 0 << -1 << -1;
}

void TestEditingSession::searches()
{
    QFETCH(QString, text);
    QFETCH(int, from);
    EditingSession session(writeNothing);
    session.setSource("a-b-B-a");
    QTEST(session.position(text, from), "next");
    QTEST(session.previousPosition(text, from), "previous");
    if (from == 0) {
        QTEST(session.position(text), "next");
        QTEST(session.previousPosition(text), "previous");
    }
}

void TestEditingSession::undoAndRedoSetTheSource()
{
    EditingSession session(writeNothing);
    session.setSource("unsaved");
    QCOMPARE(session.backward(), QString("unsaved"));
    QCOMPARE(session.forward(), QString("unsaved"));

    session.begin("one");
    QVERIFY(session.isNewest() && session.isOldest());
    session.replace(0, 3, "two");
    session.saveState();
    QVERIFY(session.isNewest() && !session.isOldest());
    session.setSource("not recorded");
    QCOMPARE(session.backward(), QString("one"));
    QCOMPARE(session.source(), QString("one"));
    QVERIFY(!session.isNewest() && session.isOldest());
    QCOMPARE(session.forward(), QString("two"));
    QCOMPARE(session.source(), QString("two"));

    session.begin("other");
    QCOMPARE(session.backward(), QString("other"));
}

void TestEditingSession::generatesFromTextOrSource()
{
    EditingSession session(writeNothing);
    session.begin(rectangle);
    QVERIFY(session.generateEditor().contains("element: 0\n"));
    QVERIFY(session.generateEditor(QString(), 7).contains("element: 0\n"));
    QVERIFY(session.generateEditor("Text { }").contains("Text { \nproperty int element: 0\n"));
    QVERIFY(session.generateEditor("Item { Text { x: 5 } }", 7).contains("element: 8\n"));
    QCOMPARE(valueOf(session.getMap(), 0, "x"), QString("5"));
    QCOMPARE(session.source(), rectangle);
    session.generateEditor();
    QCOMPARE(valueOf(session.getMap(), 0, "width"), QString("100"));
}

void TestEditingSession::failedGenerationKeepsTheMap()
{
    EditingSession session(writeNothing);
    QCOMPARE(session.generateEditor(), QString());
    QVERIFY(session.getMap().isEmpty());
    session.begin(rectangle);
    session.generateEditor();
    const QVariantList map = session.getMap();

    session.replace(23, 24, "");
    QCOMPARE(session.generateEditor(), rectangle.chopped(1));
    QCOMPARE(session.getMap(), map);

    session.setSource("Rectangle { width: ");
    QCOMPARE(session.generateEditor(), session.source());
    QCOMPARE(session.getMap().size(), 1);
    QCOMPARE(session.getMap().at(0).toMap()["plast"].toInt(), 24);
    QCOMPARE(valueOf(session.getMap(), 0, "width"), QString());
}

void TestEditingSession::mapOfATextLeavesTheSessionAlone()
{
    EditingSession session(writeNothing);
    session.begin(rectangle);
    session.generateEditor();
    QCOMPARE(EditingSession::parseAndGetMap("Item { Text { } }").size(), 2);
    QVERIFY(EditingSession::parseAndGetMap("Item {").isEmpty());
    QVERIFY(EditingSession::parseAndGetMap("").isEmpty());
    QCOMPARE(session.source(), rectangle);
    QCOMPARE(session.getMap().size(), 1);
    QVERIFY(session.isOldest() && session.isNewest());
}

QTEST_APPLESS_MAIN(TestEditingSession)
#include "tst_editingsession.moc"
