// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "networkfixture.h"
#include "tests/qml/components/componentfixture.h"

#include <QQmlContext>
#include <QtQuickTest>

/// Prepares each test document's engine as start-up does, and a server beside it.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
        QCoreApplication::setApplicationName(QStringLiteral("Nuvex"));
        m_fixture = std::make_unique<ComponentFixture>();
        m_server = std::make_unique<NetworkFixture>();
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
    std::unique_ptr<ComponentFixture> m_fixture;
    std::unique_ptr<NetworkFixture> m_server;
};

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QTEST_SET_MAIN_SOURCE_PATH
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "network", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "tst_network.moc"
