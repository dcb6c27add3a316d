// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/editorpage.h"
#include "tests/support/files.h"
#include "tests/support/logcapture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <cstdio>
#include <random>

namespace {

constexpr int reportedActions = 500;
// A document that has grown to so many times its length begins anew: a few times "select all, duplicate"
// makes any size.
constexpr int largestGrowth = 12;

} // namespace

/// Random work in the editor on each demo. After each action the source can be shown and the item map is that
/// of the source; undoing all of it leads through states that were there; the editor's own documents have no
/// warnings. NUVEX_MONKEY_ACTIONS and NUVEX_MONKEY_SEED ask for more.
class TestEditorMonkey : public QObject
{
    Q_OBJECT

private slots:
    void work_data();
    void work();

private:
    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }
    QPoint point() { return {210 + number(740), 50 + number(670)}; }
    Qt::KeyboardModifiers modifiers();
    QString act(EditorPage& page);
    void drag(QWindow& window);
    void report(int action, EditorPage& page) const;

    std::mt19937 m_random;
    QElapsedTimer m_time;
};

// What the desk is asked to do; %1 is a small number, %2 another one.
static const QStringList calls{
    "desk.undo()",
    "desk.undo()",
    "desk.redo()",
    "desk.selection.goUp()",
    "desk.selection.selectAll()",
    "desk.changes.nudge(%1, -%2)",
    "desk.changes.settle()",
    "desk.insertion.addChosen(['BasicText', 'BasicRectangle', 'BasicRow', 'MenuItem1', 'Slide'][%2 % 5])",
    "desk.insertion.remove()",
    "desk.insertion.copy()",
    "desk.insertion.cut()",
    "desk.insertion.paste()",
    "desk.insertion.duplicate()",
    "desk.arrangement.align(['left', 'centre', 'right', 'top', 'middle', 'bottom'][%1 % 6])",
    "desk.arrangement.distribute(['across', 'down'][%1 % 2])",
    "desk.arrangement.order(['front', 'forward', 'backward', 'back'][%1 % 4])",
    "desk.selection.item && desk.changes.property(['x', 'width', 'opacity', 'z', 'nothing'][%1 % 5], '%2')",
    "desk.selection.item && desk.changes.property(['y', 'height', 'scale'][%1 % 3], 'parent.width / (1 + "
    "%2)')",
    "desk.selection.item && desk.changes.property('onXChanged', 'console.warn(%1)')",
    "desk.selection.item && desk.changes.property('width', ['}{', 'nothing +', '\"wide\"', '{ return %1; "
    "}'][%2 % 4])",
    "desk.selection.item && desk.changes.rename('name%1')",
    "desk.selection.item && desk.applySource(desk.selection.record && Ejs.codeToEdit)",
    "desk.frame.viewport.zoomBy(%1 % 3 - 1, 400, 300)",
    "desk.save()"};

void TestEditorMonkey::work_data()
{
    QTest::addColumn<QString>("project");
    const QDir demos(NUVEX_DEMOS);
    const QStringList names = demos.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names)
        if (demos.exists(name + "/main.qml"))
            QTest::newRow(qPrintable(name)) << demos.filePath(name);
}

Qt::KeyboardModifiers TestEditorMonkey::modifiers()
{
    Qt::KeyboardModifiers keys;
    keys.setFlag(Qt::ShiftModifier, number(4) == 0);
    keys.setFlag(Qt::ControlModifier, number(3) == 0);
    return keys;
}

void TestEditorMonkey::drag(QWindow& window)
{
    const Qt::KeyboardModifiers keys = modifiers();
    QTest::mousePress(&window, Qt::LeftButton, keys, point());
    for (int i = 0; i < 3; ++i)
        QTest::mouseMove(&window, point());
    QTest::mouseRelease(&window, Qt::LeftButton, keys, point());
}

// Does something; what it was.
QString TestEditorMonkey::act(EditorPage& page)
{
    const int choice = number(calls.size() + 12);
    if (choice < calls.size()) {
        const QString call = QString(calls[choice])
                                 .replace("%1", QString::number(number(30)))
                                 .replace("%2", QString::number(number(300)));
        page.run(call);
        return call;
    }
    if (choice < calls.size() + 6) {
        QTest::mouseClick(&page.window(), Qt::LeftButton, modifiers() & Qt::ShiftModifier, point());
        return "click";
    }
    drag(page.window());
    return "drag";
}

// How far a long run is, and whether anything grows.
void TestEditorMonkey::report(int action, EditorPage& page) const
{
    QFile memory("/proc/self/statm");
    const bool isThere = memory.open(QIODevice::ReadOnly);
    const qint64 pages = isThere ? memory.readAll().split(' ')[1].toLongLong() : 0;
    std::printf("%d actions, %lld s, %d characters, %d MiB\n", action, m_time.elapsed() / 1000,
                page.capi().editedSourceCode().size(), int(pages / 256));
    std::fflush(stdout);
}

void TestEditorMonkey::work()
{
    QFETCH(QString, project);
    const int actions = qEnvironmentVariableIntValue("NUVEX_MONKEY_ACTIONS");
    const int seed = qEnvironmentVariableIntValue("NUVEX_MONKEY_SEED");
    m_random.seed(unsigned(seed));
    const LogCapture log;
    const QString demo = QString::fromUtf8(contents(project + "/main.qml"));
    EditorPage page(demo, project);
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    QVERIFY(page.isShown());
    QVERIFY(page.capi().writeToFile(demo, "demo.txt"));
    const auto state = [&] {
        return QCryptographicHash::hash(page.capi().editedSourceCode().toUtf8(), QCryptographicHash::Sha1);
    };
    QSet<QByteArray> states{state()};
    const QMetaObject::Connection recording =
        connect(&page.capi(), &CAPI::newerEditingState, this, [&] { states.insert(state()); });
    m_time.start();
    for (int i = 0; i < (actions > 0 ? actions : 60); ++i) {
        if (i % reportedActions == 0)
            report(i, page);
        if (page.capi().editedSourceCode().size() > largestGrowth * demo.size())
            page.run("desk.adopt(CAPI.readTextFile('demo.txt'))");
        const QString action = act(page);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as a running event loop does
        const QString disorder = page.disorder();
        QVERIFY2(disorder.isEmpty(), qPrintable(QString("%1: %2\n%3").arg(i).arg(action, disorder)));
    }
    page.run("desk.settle()");
    disconnect(recording);
    states.remove(QCryptographicHash::hash({}, QCryptographicHash::Sha1)); // an empty slot: nobody sees it
    for (int i = 0; i < 25; ++i) {
        page.run("desk.undo()");
        QVERIFY(states.contains(state()));
    }
    const QStringList told = log.messages().filter(QRegularExpression("qrc:/Nuvex/(Editor|PlayerQML)"));
    QVERIFY2(told.isEmpty(), qPrintable(told.mid(0, 5).join('\n')));
}

QTEST_MAIN(TestEditorMonkey)
#include "tst_editormonkey.moc"
