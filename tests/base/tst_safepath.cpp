// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/safepath.h"
#include "tests/support/hostilepaths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestSafePath : public QObject
{
    Q_OBJECT

private slots:
    void bounds();
    void hostile();
    void links_data();
    void links();
};

void TestSafePath::bounds()
{
    const QString part(255, QLatin1Char('p'));
    const QString longest = (QString(127, QLatin1Char('p')) + '/').repeated(8).chopped(1) + 'p';
    for (const QString& path : {QString("a"), QString("Bilder/Grüße %20 #?.png"), QString(".hidden"),
                                QString("..."), QString("ab:c"), part, QString("a/").repeated(63) + "a"})
        QVERIFY2(pathFault(path).isEmpty(), qPrintable(path));
    QCOMPARE(longest.size(), 1024);
    QCOMPARE(pathFault(longest), QString());
    QVERIFY(!pathFault(longest + "p").isEmpty());
}

void TestSafePath::hostile()
{
    const QTemporaryDir root;
    for (const QString& path : hostilePaths()) {
        QVERIFY2(!pathFault(path).isEmpty(), qPrintable(path));
        QVERIFY2(!pathInside(root.path(), path), qPrintable(path));
    }
    QVERIFY(!pathInside(root.filePath("missing"), "a"));
}

void TestSafePath::links_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("followed"); // may be opened
    QTest::addColumn<bool>("kept");     // may be removed or replaced
    QTest::newRow("file") << "folder/file" << true << true;
    QTest::newRow("not there") << "new/deeper/file" << true << true;
    QTest::newRow("link inside") << "inside/file" << true << true;
    QTest::newRow("link to the root") << "self/folder/file" << true << true;
    QTest::newRow("link out") << "out" << false << true;
    QTest::newRow("below a link out") << "out/file" << false << false;
    QTest::newRow("not there, below a link out") << "out/new/file" << false << false;
    QTest::newRow("link to nowhere outside") << "nowhere" << false << true;
    QTest::newRow("below a link to nowhere") << "nowhere/file" << false << false;
    QTest::newRow("neighbour with the same beginning") << "neighbour/file" << false << false;
}

void TestSafePath::links()
{
    QFETCH(QString, path);
    const QTemporaryDir place;
    const QString root = place.filePath("root");
    const QDir dir(root);
    QVERIFY(dir.mkpath("folder") && QDir(place.path()).mkpath("root2"));
    QFile file(dir.filePath("folder/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const auto link = [&dir](const QString& target, const char* name) {
        return QFile::link(target, dir.filePath(name));
    };
    QVERIFY(link(dir.filePath("folder"), "inside") && link(root, "self") && link(place.path(), "out") &&
            link(place.filePath("missing"), "nowhere") && link(place.filePath("root2"), "neighbour"));

    const QString expected = QFileInfo(root).canonicalFilePath() + '/' + path;
    QTEST(pathInside(root, path).value_or("") == expected, "followed");
    QTEST(pathInside(root, path, LastLink::Keep).value_or("") == expected, "kept");
}

QTEST_GUILESS_MAIN(TestSafePath)

#include "tst_safepath.moc"
