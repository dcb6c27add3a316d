// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/qmlcontext.h"

#include "api/capi.h"
#include "app/guardednetwork.h"
#include "app/nativetypes.h"
#include "quick/tables/icontable.h"
#include "quick/tables/themetable.h"
#include "quick/video/transparentvideo.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QLoggingCategory>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QSize>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>

namespace {

Q_LOGGING_CATEGORY(lcQmlContext, "nuvex.app")

QUrl picturesPath()
{
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::PicturesLocation);
    return QUrl::fromLocalFile(places.isEmpty() ? QCoreApplication::applicationDirPath()
                                                : places.constFirst());
}

void loadIconFont()
{
    if (QFontDatabase::addApplicationFont(QStringLiteral(":/Nuvex/font/fontawesome-webfont.ttf")) == -1)
        qCWarning(lcQmlContext) << "Error: failed to load FontAwesome font";
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

} // namespace

void setApplicationNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("nuvex.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Nuvex"));
}

void prepareEngine(QQmlEngine& engine, const Deployment& deployment)
{
    static GuardedNetwork network; // without state
    registerNativeTypes(deployment);
    engine.setNetworkAccessManagerFactory(&network);
    engine.addImportPath(QStringLiteral("qrc:///./"));
    engine.addImportPath(QStringLiteral("qrc:///./Nuvex/Components/"));
}

void loadProgramFonts()
{
    QDirIterator files(QStringLiteral(":/Nuvex"), {"*.ttf", "*.otf"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        QFontDatabase::addApplicationFont(files.next());
}

double densityFactor(double dotsPerInch)
{
    return qMax(1.0, qRound(dotsPerInch) / 125.0);
}

QmlContext::QmlContext(QQmlEngine& engine, CAPI& capi, const QSize& available, double dotsPerInch)
{
    TransparentVideo::setPathResolver([&capi](const QString& path) { return capi.resolvedPath(path); });
    QQmlContext* context = engine.rootContext();
    context->setContextProperty(QStringLiteral("CAPI"), &capi);
    context->setContextProperty(QStringLiteral("picturesPath"), picturesPath());
    context->setContextProperty(QStringLiteral("dp"), densityFactor(dotsPerInch));
    loadIconFont();
    publishTables(context);
    context->setContextProperty(QStringLiteral("asw"), available.width());
    context->setContextProperty(QStringLiteral("ash"), available.height());
}

QmlContext::~QmlContext()
{
    TransparentVideo::setPathResolver({});
}
