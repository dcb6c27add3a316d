// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#include "warninglog.h"

#include "quick/icontable.h"
#include "quick/syntaxhighlighter.h"
#include "quick/themetable.h"

#include <QFile>
#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QTemporaryDir>
#include <QtQuickTest>

/// Gives the widgets' tests what the program gives the widgets, a log of warnings and a folder of files to
/// browse.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine* engine);

private:
    QTemporaryDir m_folder;
};

void Setup::applicationAvailable()
{
    QFontDatabase::addApplicationFont(QStringLiteral(":/Nuvex/font/fontawesome-webfont.ttf"));
    QFontDatabase::addApplicationFont(
        QStringLiteral(":/Nuvex/Components/fonts/opensans-regular-webfont.ttf"));
    qmlRegisterType<SyntaxHighlighter>("Nuvex.Native", 1, 0, "QMLSyntaxHighlighter");
}

static QString textOf(const QString& resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

static QString makeFiles(const QString& root)
{
    for (const char* folder : {"Archives", "Empty", "Zoo & Ärger 100%"})
        QDir(root).mkdir(QString::fromUtf8(folder));
    for (const char* name : {"beta.zip", "alpha.zip", "gamma #1.zip", "notes.txt"}) {
        QFile file(root + QLatin1Char('/') + QLatin1String(name));
        if (file.open(QIODevice::WriteOnly))
            file.write("test");
    }
    return root;
}

void Setup::qmlEngineAvailable(QQmlEngine* engine)
{
    engine->addImportPath(QStringLiteral("qrc:///./"));
    QQmlContext* context = engine->rootContext();
    context->setContextProperty(QStringLiteral("dp"), 1.0);
    context->setContextProperty(QStringLiteral("faIcons"), iconTable());
    context->setContextProperty(QStringLiteral("bs"), themeTable());
    context->setContextProperty(QStringLiteral("roundedImageFragShader"),
                                textOf(QStringLiteral(":/Nuvex/GUI/RoundedImage.frag")));
    context->setContextProperty(QStringLiteral("imageScopeFragShader"),
                                textOf(QStringLiteral(":/Nuvex/GUI/ImageScope.frag")));
    context->setContextProperty(QStringLiteral("testFolder"),
                                QUrl::fromLocalFile(makeFiles(m_folder.path())));
    context->setContextProperty(QStringLiteral("warningLog"), new WarningLog(engine));
}

QUICK_TEST_MAIN_WITH_SETUP(gui, Setup)
#include "tst_gui.moc"
