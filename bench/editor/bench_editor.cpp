// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Times of the desktop editor on documents of 20 to 20 000 items, opening beside the engine's load of the raw
// text; of its source panel from a key to the picture; of its start beside the player's. Wants an X server.
// Prints Markdown tables.

#include "tests/support/editorpage.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTextStream>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <vector>

namespace {

constexpr int rounds = 6; // the first one is dropped
constexpr int sizes[] = {20, 500, 5000, 20000};
const QStringList steps{"raw load", "open", "select", "drag step", "release", "undo", "save", "move all"};

QString document(int items)
{
    const int columns = int(std::ceil(std::sqrt(items)));
    QString text = QStringLiteral("import QtQuick 2.15\n\nRectangle {\n    width: 1920\n    height: 1080\n");
    for (int i = 0; i < items; ++i)
        text += QStringLiteral("\n    Rectangle {\n        x: %1\n        y: %2\n        width: %3\n"
                               "        height: %4\n        color: \"steelblue\"\n    }\n")
                    .arg(1800.0 * (i % columns) / columns, 0, 'f', 0)
                    .arg(1000.0 * (i / columns) / columns, 0, 'f', 0)
                    .arg(1200 / columns)
                    .arg(700 / columns);
    return text + "}\n";
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

using Times = std::map<QString, std::vector<double>>;

class Round
{
public:
    Round(EditorPage& page, const QString& source)
        : m_page(page)
        , m_source(source)
    {
    }

    void run(Times& times)
    {
        take(times, "raw load", [this] { loadRaw(); });
        take(times, "open", [this] { m_page.run("desk.open()"); });
        m_page.run("desk.frame.viewport.zoomTo(1, 0, 0)");
        const QPoint start = firstItem();
        take(times, "select", [this] {
            m_page.run("desk.selection.click(desk.frame.mapFromItem(" + item + ", 2, 2), false)");
        });
        QTest::mousePress(&m_page.window(), Qt::LeftButton, Qt::NoModifier, start);
        QTest::mouseMove(&m_page.window(), start + QPoint(9, 9)); // edges are gathered here
        take(times, "drag step", [&] { QTest::mouseMove(&m_page.window(), start + QPoint(31, 27)); });
        take(times, "release", [&] {
            QTest::mouseRelease(&m_page.window(), Qt::LeftButton, Qt::NoModifier, start + QPoint(31, 27));
        });
        if (m_page.capi().editedSourceCode() == m_source)
            qFatal("nothing was moved");
        take(times, "undo", [this] { m_page.run("desk.undo()"); });
        if (m_page.capi().editedSourceCode() != m_source)
            qFatal("nothing was undone");
        take(times, "save", [this] { m_page.run("desk.save()"); });
        m_page.run("desk.selection.selectAll()");
        take(times, "move all", [this] { m_page.run("desk.changes.nudge(1, 1); desk.settle()"); });
        m_page.run("desk.undo(); desk.save()");
    }

private:
    static void take(Times& times, const QString& step, const std::function<void()>& work)
    {
        times[step].push_back(milliseconds(work));
        QCoreApplication::processEvents();
    }

    void loadRaw()
    {
        QQmlComponent component(m_page.window().engine());
        component.setData(m_source.toUtf8(), QUrl("file:///raw.qml"));
        delete component.create();
        m_page.window().engine()->clearComponentCache();
    }

    // A point of the window on the last item, which is on top.
    QPoint firstItem()
    {
        return m_page
            .run("desk.frame.mapToItem(null, desk.frame.mapFromItem(" + item + ", 2, 2).x, " +
                 "desk.frame.mapFromItem(" + item + ", 2, 2).y)")
            .toPointF()
            .toPoint();
    }

    const QString item = "Ejs.childrenByElement(desk.live.root, 0)";
    EditorPage& m_page;
    QString m_source;
};

double median(std::vector<double> values)
{
    values.erase(values.begin());
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Times timesOf(int items)
{
    const QString source = document(items);
    EditorPage page(source);
    if (!QTest::qWaitForWindowExposed(&page.window()))
        qFatal("no window");
    auto* question = page.window().rootObject()->findChild<QObject*>("largeQuestion");
    QMetaObject::invokeMethod(question, "answer", Q_ARG(QVariant, true)); // it may lie over the canvas
    QTest::qWait(500);
    Times times;
    for (int round = 0; round < rounds; ++round)
        Round(page, source).run(times);
    return times;
}

// From a key in the source panel to the picture that shows it, in a source of so many lines.
double keyTime(int lines)
{
    EditorPage page(document(lines / 7));
    page.run("desk.selection.set([desk.live.root])");
    auto* source = page.window().rootObject()->findChild<QQuickItem*>("source");
    source->parentItem()->setVisible(true);
    source->forceActiveFocus();
    QTest::qWait(500); // until the panel has coloured it
    std::vector<double> times;
    for (int round = 0; round < 4 * rounds; ++round) {
        QSignalSpy frames(&page.window(), &QQuickWindow::frameSwapped);
        times.push_back(milliseconds([&] {
            QTest::keyClick(&page.window(), Qt::Key_Space);
            frames.wait();
        }));
    }
    if (page.window().rootObject()->findChild<QQuickItem*>("apply")->isEnabled())
        return median(times);
    qFatal("nothing was typed");
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    QTextStream out(stdout);
    out << "Milliseconds, median of " << rounds - 1 << " rounds.\n\n| items | " << steps.join(" | ")
        << " | open to raw load |\n|" << QString("---|").repeated(steps.size() + 2) << "\n";
    std::map<QString, std::vector<std::pair<double, double>>> points;
    for (const int items : sizes) {
        const Times times = timesOf(items);
        out << "| " << items;
        for (const QString& step : steps) {
            out << " | " << QString::number(median(times.at(step)), 'f', 2);
            points[step].emplace_back(std::log(items), std::log(median(times.at(step))));
        }
        out << " | " << QString::number(median(times.at("open")) / median(times.at("raw load")), 'f', 2)
            << " |\n";
        out.flush();
    }
    out << "| slope, 500 to 20 000";
    for (const QString& step : steps) {
        const auto& line = points[step];
        out << " | "
            << QString::number((line[3].second - line[1].second) / (line[3].first - line[1].first), 'f', 2);
    }
    out << " | |\n\nA key in the source panel to its picture, 300 lines: "
        << QString::number(keyTime(300), 'f', 1) << " ms\n";
    return 0;
}
