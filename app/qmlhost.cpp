// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/qmlhost.h"

#include "api/capi.h"
#include "api/platform.h"
#include "app/nativetypes.h"
#include "app/restart.h"
#include "app/screenshot.h"
#include "app/startpage.h"
#include "cloud/deployment.h"
#include "quick/icontable.h"
#include "quick/themetable.h"
#include "quick/transparentvideo.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <malloc.h>
#include <memory>

namespace {

Q_LOGGING_CATEGORY(lcApp, "nuvex.app")

constexpr std::chrono::seconds networkAddressInterval(30);

QUrl picturesPath()
{
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::PicturesLocation);
    return QUrl::fromLocalFile(places.isEmpty() ? QCoreApplication::applicationDirPath()
                                                : places.constFirst());
}

void loadIconFont()
{
    if (QFontDatabase::addApplicationFont(QStringLiteral(":/Nuvex/font/fontawesome-webfont.ttf")) == -1)
        qCWarning(lcApp) << "Error: failed to load FontAwesome font";
}

void publishShader(QQmlContext* context, const QString& property, const QString& resource)
{
    QFile file(resource);
    if (file.open(QIODevice::ReadOnly))
        context->setContextProperty(property, QTextStream(&file).readAll());
}

void publishTables(QQmlContext* context)
{
    context->setContextProperty(QStringLiteral("faIcons"), iconTable());
    context->setContextProperty(QStringLiteral("bs"), themeTable());
    publishShader(context, QStringLiteral("roundedImageFragShader"),
                  QStringLiteral(":/Nuvex/GUI/RoundedImage.frag"));
    publishShader(context, QStringLiteral("imageScopeFragShader"),
                  QStringLiteral(":/Nuvex/GUI/ImageScope.frag"));
}

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
    QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("nuvex.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Nuvex"));

    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setColor(Qt::black);
    registerNativeTypes(deployment);

    const auto windowMode =
        options.windowed ? CAPI::WindowMode::AlwaysWindowed : CAPI::WindowMode::FullScreenAllowed;
    auto capi = std::make_unique<CAPI>(&view, &application, windowMode);
    TransparentVideo::setPathResolver([&capi](const QString& path) { return capi->resolvedPath(path); });
    QQmlContext* context = view.rootContext();
    context->setContextProperty(QStringLiteral("CAPI"), capi.get());
    context->setContextProperty(QStringLiteral("picturesPath"), picturesPath());
    addImportPaths(*view.engine());
    QObject::connect(view.engine(), &QQmlEngine::quit, &application, &QGuiApplication::quit);
    const QScreen* screen = QGuiApplication::screens().constFirst();
    context->setContextProperty(QStringLiteral("dp"), densityFactor(screen->physicalDotsPerInch()));
    loadIconFont();
    publishTables(context);
    const QRect available = screen->availableGeometry();
    context->setContextProperty(QStringLiteral("asw"), available.width());
    context->setContextProperty(QStringLiteral("ash"), available.height());

    view.setInitialProperties(startPage(options, capi->getWorkDirectory()));
    view.setSource(QUrl(QStringLiteral("qrc:///Nuvex/PlayerQML/main.qml")));
    keepNetworkAddress(view);
    placeWindow(view, available, options.windowed);
    view.show();
    if (!options.screenshotFile.isEmpty())
        saveScreenshotLater(view, options);
    const int code = QGuiApplication::exec();

    // Documents say goodbye through CAPI, so they go first.
    view.setSource(QUrl());
    TransparentVideo::setPathResolver({});
    capi.reset();
    return code;
}

} // namespace

double densityFactor(double dotsPerInch)
{
    return qMax(1.0, qRound(dotsPerInch) / 125.0);
}

int runHost(int& argc, char** argv, const Options& options)
{
    prepareIconTable();
    const Deployment deployment = Deployment::find(options.deployment);
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
