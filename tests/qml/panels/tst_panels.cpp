// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/components/componentfixture.h"

#include <QQmlContext>
#include <QtQuickTest>

/// Prepares each test document's engine as start-up does.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
        QCoreApplication::setApplicationName(QStringLiteral("Nuvex"));
        m_fixture = std::make_unique<ComponentFixture>();
        m_pictures = std::make_unique<QTemporaryDir>();
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        m_fixture->publish(*engine);
        engine->rootContext()->setContextProperty(QStringLiteral("picturesPath"), m_pictures->path());
    }

    void cleanupTestCase()
    {
        m_fixture.reset();
        m_pictures.reset();
    }

private:
    std::unique_ptr<ComponentFixture> m_fixture;
    std::unique_ptr<QTemporaryDir> m_pictures;
};

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QTEST_SET_MAIN_SOURCE_PATH
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "panels", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "tst_panels.moc"
