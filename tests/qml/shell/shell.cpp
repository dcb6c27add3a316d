// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/shell.h"

#include "cloud/deployment.h"

#include <QDir>
#include <QQmlEngine>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

namespace {

QDir workDirectory()
{
    return QDir(QStandardPaths::standardLocations(QStandardPaths::AppLocalDataLocation).constFirst() +
                "/PlayerQML/Work");
}

} // namespace

TestProfile::TestProfile()
{
    for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(place, QFile::encodeName(m_folder.filePath(place)));
    setApplicationNames();
}

void TestProfile::reset(const QVariantMap& settings)
{
    QSettings store;
    store.clear();
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        store.setValue(setting.key(), setting.value());
    workDirectory().removeRecursively();
}

QVariant TestProfile::setting(const QString& name)
{
    return QSettings().value(name);
}

void TestProfile::addProject(const QString& name, const QString& document)
{
    const QDir folder(workDirectory().filePath(name));
    QVERIFY(folder.mkpath("."));
    if (document.isNull())
        return;
    QFile file(folder.filePath("main.qml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(document.toUtf8());
}

Shell::Shell(const QVariantMap& initial, const QSize& size)
    : m_api(std::make_unique<CAPI>(&m_view, nullptr, Deployment(), CAPI::WindowMode::AlwaysWindowed))
    , m_context(*m_view.engine(), *m_api, size, 96)
{
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    QQmlEngine* engine = m_view.engine();
    QObject::connect(engine, &QQmlEngine::warnings, [this](const QList<QQmlError>& errors) {
        for (const QQmlError& error : errors)
            m_warnings.append(error.toString());
    });
    prepareEngine(*engine, Deployment());
    m_view.setInitialProperties(initial);
    m_view.resize(size);
    m_view.setSource(QUrl("qrc:///Nuvex/PlayerQML/main.qml"));
    m_view.show();
}

Shell::~Shell()
{
    m_view.setSource(QUrl());
}

void Shell::goBack()
{
    m_view.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&m_view));
    QTest::keyClick(&m_view, Qt::Key_Escape);
}
