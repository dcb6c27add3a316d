// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/folderexchange.h"
#include "base/stagingfolder.h"
#include "tests/support/faults.h"
#include "tests/support/files.h"

#include <QTemporaryDir>
#include <QTest>

class TestStagingFolder : public QObject
{
    Q_OBJECT

private slots:
    void onlyAbandonedFoldersAreFound();
    void replacesFolders_data();
    void replacesFolders();
};

void TestStagingFolder::onlyAbandonedFoldersAreFound()
{
    const QTemporaryDir dir;
    const QString left = dir.filePath(".import-left");
    write(left + "/deep/file", "x");
    write(dir.filePath(".export-left/file"), "x");
    QString path;
    {
        StagingFolder staging;
        QVERIFY(staging.create(dir.path(), ".import-"));
        path = staging.path();
        write(path + "/deep/file", "x");
        const auto found = StagingFolder::abandoned(dir.path(), ".import-");
        QCOMPARE(found.size(), size_t(1));
        QCOMPARE(found.front().path(), left);
        QVERIFY(StagingFolder::abandoned(dir.path(), ".import-").empty()); // found once, it is in use again
    }
    QVERIFY(!QFile::exists(left) && !QFile::exists(path) && QFile::exists(dir.filePath(".export-left/file")));
    StagingFolder nowhere;
    QVERIFY(!nowhere.create(dir.filePath("missing"), ".import-").reason().isEmpty());
}

void TestStagingFolder::replacesFolders_data()
{
    QTest::addColumn<Fault>("disk");
    QTest::addColumn<QString>("old"); // where the old folder is afterwards
    QTest::newRow("in one step") << Fault::None << "from";
    QTest::newRow("in two steps") << Fault::NoExchange << "aside";
    QTest::newRow("not at all") << Fault::Rename << "to";
}

void TestStagingFolder::replacesFolders()
{
    QFETCH(Fault, disk);
    QFETCH(QString, old);
    const QTemporaryDir dir;
    write(dir.filePath("from/file"), "new");
    write(dir.filePath("to/file"), "old");
    const FaultInjection injection(disk);
    QCOMPARE(bool(replaceFolder(dir.filePath("from"), dir.filePath("to"), dir.filePath("aside"))),
             old != "to");
    QCOMPARE(contents(dir.filePath(old + "/file")), QByteArray("old"));
    QCOMPARE(contents(dir.filePath(old == "to" ? "from/file" : "to/file")), QByteArray("new"));

    // In two steps, a second one that fails takes back the first.
    QDir().mkpath(dir.filePath("aside2"));
    QVERIFY(!replaceFolder(dir.filePath("missing"), dir.filePath("to"), dir.filePath("aside2")));
    QVERIFY(QFile::exists(dir.filePath("to/file")));
}

QTEST_GUILESS_MAIN(TestStagingFolder)
#include "tst_stagingfolder.moc"
