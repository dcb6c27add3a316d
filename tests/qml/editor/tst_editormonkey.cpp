// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/editorpage.h"
#include "tests/support/files.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QQuickItem>
#include <QtTest>

#include <random>
#include <set>

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

    std::mt19937 m_random;
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

void TestEditorMonkey::work()
{
    QFETCH(QString, project);
    const int actions = qEnvironmentVariableIntValue("NUVEX_MONKEY_ACTIONS");
    const int seed = qEnvironmentVariableIntValue("NUVEX_MONKEY_SEED");
    m_random.seed(unsigned(seed));
    const LogCapture log;
    EditorPage page(QString::fromUtf8(contents(project + "/main.qml")), project);
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    QVERIFY(page.isShown());
    std::set<QString> states{page.capi().editedSourceCode()};
    const QMetaObject::Connection recording = connect(&page.capi(), &CAPI::newerEditingState, this,
                                                      [&] { states.insert(page.capi().editedSourceCode()); });
    for (int i = 0; i < (actions > 0 ? actions : 60); ++i) {
        const QString action = act(page);
        QCoreApplication::processEvents();
        const QString disorder = page.disorder();
        QVERIFY2(disorder.isEmpty(), qPrintable(QString("%1: %2\n%3").arg(i).arg(action, disorder)));
    }
    page.run("desk.settle()");
    disconnect(recording);
    states.erase(QString()); // an empty slot of the history: nobody ever sees it
    for (int i = 0; i < 25; ++i) {
        page.run("desk.undo()");
        QVERIFY(states.count(page.capi().editedSourceCode()) > 0);
    }
    const QString told = log.messages().join('\n');
    QVERIFY2(!told.contains("qrc:/Nuvex/Editor") && !told.contains("qrc:/Nuvex/PlayerQML"), qPrintable(told));
}

QTEST_MAIN(TestEditorMonkey)
#include "tst_editormonkey.moc"
