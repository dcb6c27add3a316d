// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/quickmain.h"

#include "tests/qml/components/componentfixture.h"

#include <QQmlContext>
#include <QtQuickTest>

/// What the framework calls before the tests, for each document and after the tests.
class QuickSetup : public QObject
{
    Q_OBJECT

public:
    explicit QuickSetup(const std::function<QObject*()>& makeServer)
        : m_makeServer(makeServer)
    {
    }

public slots:
    void applicationAvailable()
    {
        setApplicationNames();
        m_fixture = std::make_unique<ComponentFixture>();
        if (m_makeServer)
            m_server.reset(m_makeServer());
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        m_fixture->publish(*engine);
        engine->rootContext()->setContextProperty(QStringLiteral("server"), m_server.get());
    }

    void cleanupTestCase()
    {
        m_server.reset();
        m_fixture.reset();
    }

private:
    std::function<QObject*()> m_makeServer;
    std::unique_ptr<ComponentFixture> m_fixture;
    std::unique_ptr<QObject> m_server;
};

int runQuickTests(int argc, char** argv, const char* name, const char* folder,
                  const std::function<QObject*()>& makeServer)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // With a render thread the framework's waiting for a frame is a race: its spy is written to from there.
    qputenv("QSG_RENDER_LOOP", "basic");
    QuickSetup setup(makeServer);
    return quick_test_main_with_setup(argc, argv, name, folder, &setup);
}

#include "quickmain.moc"
