// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Memory that a restart in place leaves behind: Nuvex's whole set-up against a bare Qt application with an
// empty window, each in a process of its own. Arguments: "nuvex" or "bare".

#include "app/qmlhost.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
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

int runBare(int& argc, char** argv)
{
    int code = 0;
    do {
        QGuiApplication application(argc, argv);
        QQuickView view;
        QQmlComponent component(view.engine());
        component.setData("import QtQuick 2.15\nRectangle { color: 'teal' }", QUrl());
        view.setContent(QUrl(), &component, component.create());
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
    const bool bare = argc > 1 && qstrcmp(argv[1], "bare") == 0;
    const int code = bare ? runBare(argc, argv) : runHost(argc, argv, options);
    std::printf("| %s | %.0f | %.0f | %.0f |\n", bare ? "bare Qt" : "nuvex", memory.at(warmUp) / 1024,
                memory.last() / 1024, (memory.last() - memory.at(warmUp)) / (passes - 1 - warmUp));
    return code;
}
