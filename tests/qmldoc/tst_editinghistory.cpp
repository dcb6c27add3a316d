// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editinghistory.h"

#include <QTest>

#include <random>
#include <vector>

namespace {

// The ring written down plainly: slots, and numbers that tell where in them the current state is.
struct Ring
{
    std::vector<QString> slot;
    int count = 0;
    int head = -1;
    int position = 0;

    void reset(int capacity)
    {
        slot.assign(size_t(capacity), QString());
        count = position = 0;
        head = -1;
    }
    void push(const QString& text)
    {
        if (head == -1) {
            count = position = 1;
            head = 0;
        } else {
            count = count < int(slot.size()) ? count + 1 : count;
            head = (head + 1) % count;
            position = count;
        }
        slot[size_t(head)] = text;
    }
    QString undo()
    {
        if (position != 1) {
            head = head == 0 ? count - 1 : head - 1;
            --position;
        }
        return slot[size_t(head)];
    }
    QString redo()
    {
        if (position != count) {
            ++position;
            head = (head + 1) % count;
        }
        return slot[size_t(head)];
    }
};

} // namespace

class TestEditingHistory : public QObject
{
    Q_OBJECT

private slots:
    void anySequenceFollowsTheRing();
    void pushAfterUndoLeavesAnEmptySlot();
    void resetEmptiesTheSlots();
    void oldestStateGoesWhenFull();
    void nothingRecorded();
};

void TestEditingHistory::anySequenceFollowsTheRing()
{
    std::mt19937 random(20);
    for (int run = 0; run < 300; ++run) {
        const int capacity = run % 3 ? 20 : 1 + run % 7;
        EditingHistory history(capacity);
        Ring ring;
        ring.reset(capacity);
        for (int step = 0; step < 200; ++step) {
            const QString text = QString::number(step);
            const unsigned action = random() % 64;
            if (action == 0 && run % 2) {
                history.reset(20);
                ring.reset(20);
            }
            if (action < 24 || history.isEmpty()) {
                history.push(text);
                ring.push(text);
            } else if (action < 48) {
                QCOMPARE(history.undo(), ring.undo());
            } else {
                QCOMPARE(history.redo(), ring.redo());
            }
            QCOMPARE(history.count(), ring.count);
            QCOMPARE(history.isNewest(), ring.position == ring.count);
            QCOMPARE(history.isOldest(), ring.position == 1);
        }
    }
}

void TestEditingHistory::pushAfterUndoLeavesAnEmptySlot()
{
    EditingHistory history(20);
    for (const char* state : {"A", "B", "C"})
        history.push(state);
    QCOMPARE(history.undo(), QString("B"));
    history.push("D");
    QCOMPARE(history.count(), 4);
    QVERIFY(history.isNewest());
    QCOMPARE(history.undo(), QString("B"));
    QCOMPARE(history.undo(), QString("A"));
    QVERIFY(!history.isOldest());
    QCOMPARE(history.undo(), QString());
    QVERIFY(history.isOldest());
    QCOMPARE(history.undo(), QString());
    for (const char* state : {"A", "B", "D", "D"})
        QCOMPARE(history.redo(), QString(state));
}

/// What the run before left in the slots must not come back.
void TestEditingHistory::resetEmptiesTheSlots()
{
    EditingHistory history(20);
    for (const char* state : {"A", "B", "C"})
        history.push(state);
    history.reset(20);
    for (const char* state : {"a", "b"})
        history.push(state);
    history.undo();
    history.push("c");
    history.undo();
    QCOMPARE(history.undo(), QString());
}

void TestEditingHistory::oldestStateGoesWhenFull()
{
    EditingHistory history(20);
    for (int i = 0; i < 21; ++i)
        history.push(QString::number(i));
    QCOMPARE(history.count(), 20);
    for (int i = 19; i > 0; --i)
        QCOMPARE(history.undo(), QString::number(i));
    QVERIFY(history.isOldest());
    QCOMPARE(history.undo(), QString("1"));
}

void TestEditingHistory::nothingRecorded()
{
    EditingHistory history(0);
    QVERIFY(history.undo().isNull());
    QVERIFY(history.redo().isNull());
    QVERIFY(history.isNewest());
    QVERIFY(!history.isOldest());
    history.push("only");
    history.push("newer");
    QCOMPARE(history.count(), 1);
    QCOMPARE(history.undo(), QString("newer"));
}

QTEST_APPLESS_MAIN(TestEditingHistory)
#include "tst_editinghistory.moc"
