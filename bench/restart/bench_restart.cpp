// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Memory that a restart in place leaves behind: Nuvex's whole set-up against a bare Qt application with an
// empty window, and against one that shows a page of widgets in such a window and nothing else of Nuvex. Each
// in a process of its own. Arguments: "nuvex", "empty" or "widgets".

#include "app/qmlcontext.h"
#include "app/qmlhost.h"
#include "cloud/deployment.h"
#include "quick/tables/icontable.h"
#include "quick/tables/themetable.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int passes = 21;
constexpr int warmUp = 5;
QVector<double> memory; // KiB at the end of each pass

double residentKib()
{
    QFile status("/proc/self/smaps_rollup");
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("Anonymous:"))
            return line.mid(10).simplified().split(' ').first().toDouble();
    }
    return 0;
}

void endPassLater()
{
    QTimer::singleShot(400, [] {
        memory.append(residentKib());
        QCoreApplication::exit(memory.size() < passes ? restartCode : 0);
    });
}

void showNothing(QQuickView& view)
{
    QQmlComponent component(view.engine());
    component.setData("import QtQuick 2.15\nRectangle { color: 'teal' }", QUrl());
    view.setContent(QUrl(), &component, component.create());
}

void showWidgets(QQuickView& view)
{
    view.rootContext()->setContextProperty(QStringLiteral("faIcons"), iconTable());
    view.rootContext()->setContextProperty(QStringLiteral("bs"), themeTable());
    view.rootContext()->setContextProperty(QStringLiteral("dp"), 1.0);
    prepareEngine(*view.engine(), {});
    view.setSource(QUrl(QStringLiteral("qrc:///Nuvex/Gallery/Gallery.qml")));
}

int runBare(int& argc, char** argv, void (*show)(QQuickView&))
{
    int code = 0;
    do {
        QGuiApplication application(argc, argv);
        QQuickView view;
        view.resize(1280, 720);
        show(view);
        view.show();
        code = QGuiApplication::exec();
    } while (code == restartCode);
    return code;
}

} // namespace
Q_COREAPP_STARTUP_FUNCTION(endPassLater)

int main(int argc, char** argv)
{
    const QTemporaryDir profile;
    Options options;
    options.profile = profile.path();
    useProfile(options);
    const QByteArray setup(argc > 1 ? argv[1] : "nuvex");
    const int code = setup == "empty"     ? runBare(argc, argv, showNothing)
                     : setup == "widgets" ? runBare(argc, argv, showWidgets)
                                          : runHost(argc, argv, options);
    std::printf("| %s | %.0f | %.0f | %.0f |\n", setup.constData(), memory.at(warmUp) / 1024,
                memory.last() / 1024, (memory.last() - memory.at(warmUp)) / (passes - 1 - warmUp));
    return code;
}
