// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/nativetypes.h"
#include "cloud/deployment.h"
#include "quick/tables/icontable.h"
#include "quick/tables/themetable.h"

#include <QFileInfo>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQmlPropertyMap>
#include <QUrl>

/// What a playing project asks of CAPI, and no more.
class PlainCapi : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE QString resolveUrl(const QString& path) const { return path; }
    Q_INVOKABLE bool fileExist(const QString& path) const
    {
        return QFileInfo::exists(QUrl(path).toLocalFile());
    }
    Q_INVOKABLE QString readTextFile(const QString&) const { return {}; }
    Q_INVOKABLE QString getBaseFolder() const { return {}; }
};

/// Lets qmlscene and qml show a project's document: publishes the names that Nuvex publishes to every
/// document.
class PlainHostPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override { qmlRegisterModule(uri, 1, 0); }

    void initializeEngine(QQmlEngine* engine, const char*) override
    {
        registerNativeTypes(Deployment());
        QQmlContext* context = engine->rootContext();
        context->setContextProperty(QStringLiteral("CAPI"), new PlainCapi(engine));
        context->setContextProperty(QStringLiteral("dp"), 1.0);
        context->setContextProperty(QStringLiteral("bs"), themeTable());
        context->setContextProperty(QStringLiteral("faIcons"), iconTable());
    }
};

#include "plainhost.moc"
