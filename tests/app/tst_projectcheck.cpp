// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/projectcheck.h"
#include "app/qmlcontext.h"
#include "cloud/deployment.h"

#include <QDir>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtTest>

class TestProjectCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void problems_data();
    void problems();

private:
    QQmlEngine m_engine;
};

void TestProjectCheck::initTestCase()
{
    prepareEngine(m_engine, {});
}

void TestProjectCheck::problems_data()
{
    QTest::addColumn<QString>("main");
    QTest::addColumn<QStringList>("expected");
    const QString head = "import QtQuick 2.15\nimport Nuvex.Components 1.0\n";
    QTest::newRow("sound") << head + "Item { BasicImage { source: 'images/here.png' } }" << QStringList();
    QTest::newRow("library picture")
        << head + "Item { Image { source: 'qrc:///Nuvex/Components/icons/noImage.png' } }" << QStringList();
    QTest::newRow("from the net") << head + "Image { source: 'https://example.org/a.png' }" << QStringList();
    QTest::newRow("syntax") << head + "Item {\n  width: \n}" << QStringList("main.qml:5: Expected token `;'");
    QTest::newRow("component") << head + "Item {\n  BasicImag { }\n}"
                               << QStringList("main.qml:4: BasicImag is not a type");
    QTest::newRow("picture") << head + "Image { source: 'images/gone.png' }"
                             << QStringList("main.qml:3: no file \"images/gone.png\"");
    QTest::newRow("font") << head + "Text { font.family: 'Nobody Sans' }"
                          << QStringList("main.qml:3: no font of the family \"Nobody Sans\"");
}

void TestProjectCheck::problems()
{
    QFETCH(QString, main);
    QTemporaryDir project;
    QDir(project.path()).mkdir("images");
    QFile picture(project.filePath("images/here.png"));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    QFile document(project.filePath("main.qml"));
    QVERIFY(document.open(QIODevice::WriteOnly));
    document.write(main.toUtf8());
    document.close();
    QStringList found = checkProject(m_engine, project.path());
    found.replaceInStrings(project.path() + '/', QString());
    QFETCH(QStringList, expected);
    QCOMPARE(found.join('\n'), expected.join('\n'));
}

QTEST_MAIN(TestProjectCheck)
#include "tst_projectcheck.moc"
