// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "componentfixture.h"

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
    }

    void qmlEngineAvailable(QQmlEngine* engine) { m_fixture->publish(*engine); }
    void cleanupTestCase() { m_fixture.reset(); }

private:
    std::unique_ptr<ComponentFixture> m_fixture;
};

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QTEST_SET_MAIN_SOURCE_PATH
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "components", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "tst_components.moc"
