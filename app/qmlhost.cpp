// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/qmlhost.h"

#include "api/capi.h"
#include "api/platform.h"
#include "app/displayhold.h"
#include "app/qmlcontext.h"
#include "app/restart.h"
#include "app/screenshot.h"
#include "app/scriptguard.h"
#include "app/startpage.h"
#include "app/termination.h"
#include "cloud/deployment.h"
#include "cloud/http/transferthread.h"
#include "quick/tables/icontable.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QTimer>

#include <malloc.h>
#include <memory>

namespace {

constexpr std::chrono::seconds networkAddressInterval(30);

void placeWindow(QQuickView& view, const QRect& available, bool windowed)
{
    const QSize deskSize(1280, 720);
    view.setGeometry(0, 0, available.width(), available.height() - view.geometry().top());
    if (windowed)
        view.resize(deskSize.boundedTo(available.size()));
}

// The shell shows the address on its standby picture; it may change while the program runs.
void keepNetworkAddress(QQuickView& view)
{
    const auto tell = [&view] {
        if (QQuickItem* root = view.rootObject())
            root->setProperty("networkAddress", platform::networkAddress());
    };
    auto* timer = new QTimer(&view);
    QObject::connect(timer, &QTimer::timeout, tell);
    timer->start(networkAddressInterval);
    tell();
}

// One pass: everything is built, run and torn down in reverse.
int runOnce(int& argc, char** argv, const Options& options, const Deployment& deployment)
{
    QGuiApplication application(argc, argv);
    setApplicationNames();

    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setColor(Qt::black);
    prepareEngine(*view.engine(), deployment);

    const auto windowMode =
        options.windowed ? CAPI::WindowMode::AlwaysWindowed : CAPI::WindowMode::FullScreenAllowed;
    auto capi = std::make_unique<CAPI>(&view, &application, deployment, windowMode);
    const QScreen* screen = QGuiApplication::screens().constFirst();
    const QRect available = screen->availableGeometry();
    auto context =
        std::make_unique<QmlContext>(*view.engine(), *capi, available.size(), screen->physicalDotsPerInch());
    QObject::connect(view.engine(), &QQmlEngine::quit, &application, &QGuiApplication::quit);
    QObject::connect(view.engine(), &QQmlEngine::exit, &application, &QGuiApplication::exit,
                     Qt::QueuedConnection);

    const ScriptGuard guard(*view.engine());
    view.setInitialProperties(startPage(options, capi->getWorkDirectory()));
    view.setSource(QUrl(QStringLiteral("qrc:///Nuvex/PlayerQML/main.qml")));
    keepNetworkAddress(view);
    placeWindow(view, available, options.windowed);
    view.show();
    if (!options.screenshotFile.isEmpty())
        saveScreenshotLater(view, options);
    const Termination termination;
    const int code = QGuiApplication::exec();

    // Documents say goodbye through CAPI, so they go first.
    view.setSource(QUrl());
    context.reset();
    capi.reset();
    return code;
}

// Mesa keeps compiled shaders in a file that it maps into memory: a disk that is full kills the program
// there. Qt keeps those of its own in files that it writes.
void keepMesaFromTheDisk()
{
    if (!qEnvironmentVariableIsSet("MESA_SHADER_CACHE_DISABLE"))
        qputenv("MESA_SHADER_CACHE_DISABLE", "true");
}

} // namespace

int runHost(int& argc, char** argv, const Options& options)
{
    prepareIconTable();
    const Deployment deployment = Deployment::find(options.deployment);
    const DisplayHold display;
    keepMesaFromTheDisk();
    useLightEventLoops();
    // Lets a web view be shown later without loading its library now.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    int code = 0;
    do {
        code = runOnce(argc, argv, options, deployment);
        if (code == restartCode && !restartableInPlace())
            replaceProcess(argv);
        malloc_trim(0); // a pass leaves the heap free but in pieces, which would add up
    } while (code == restartCode);
    return code;
}
