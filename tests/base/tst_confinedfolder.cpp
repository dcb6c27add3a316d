// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/confinedfolder.h"
#include "tests/support/files.h"
#include "tests/support/hostilepaths.h"

#include <QTemporaryDir>

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// A folder "root" with a neighbour, both with a file, and links of every kind in it.
class TestConfinedFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void paths_data();
    void paths();
    void onlyFilesAreOpened();
    void noRace();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    void link(const QByteArray& target, const char* name) const
    {
        QCOMPARE(::symlink(target.constData(), path(name).toUtf8().constData()), 0);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestConfinedFolder::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    write(path("root/folder/file"), "inside");
    write(path("outside/file"), "outside");
    link("folder", "root/inside");
    link("../outside", "root/out");
    link(path("outside/file").toUtf8(), "root/absolute");
    link("nowhere", "root/dangling");
}

void TestConfinedFolder::paths_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<bool>("replaceable");
    QTest::newRow("file") << "folder/file" << true << true;
    QTest::newRow("new") << "new/deeper/file" << false << true;
    QTest::newRow("by a link inside") << "inside/file" << true << true;
    QTest::newRow("by a link out") << "out/file" << false << false;
    QTest::newRow("new, by a link out") << "out/new/file" << false << false;
    QTest::newRow("link out") << "absolute" << false << true;
    QTest::newRow("dangling") << "dangling" << false << true;
    QTest::newRow("below a dangling link") << "dangling/file" << false << false;
    QTest::newRow("folder") << "folder" << false << false;
    QTest::newRow("below a file") << "folder/file/x" << false << false;
    for (const QString& hostile : hostilePaths())
        QTest::addRow("hostile: %.30s", qPrintable(hostile)) << hostile << false << false;
}

void TestConfinedFolder::paths()
{
    QFETCH(QString, name);
    QFETCH(bool, replaceable);
    const ConfinedFolder folder(path("root"));
    QFile file;
    QTEST(bool(folder.openForReading(name, file)), "readable");
    QCOMPARE(file.isOpen() ? file.readAll() : "inside", QByteArray("inside"));
    write(path("new"), "new");
    const Outcome moved = folder.moveInto(path("new"), name);
    QCOMPARE(bool(moved), replaceable);
    QCOMPARE(moved.reason().isEmpty(), replaceable);
    QCOMPARE(contents(replaceable ? path("root/" + name) : path("new")), QByteArray("new"));
    QCOMPARE(contents(path("outside/file")), QByteArray("outside"));
    QVERIFY(!QFileInfo::exists(path("outside/new")));
}

// A pipe without a writer must not hold up the reader.
void TestConfinedFolder::onlyFilesAreOpened()
{
    QCOMPARE(::mkfifo(path("root/pipe").toUtf8().constData(), 0600), 0);
    QFile file;
    QVERIFY(!ConfinedFolder(path("root")).openForReading("pipe", file));
    QVERIFY(!ConfinedFolder(path("missing")).openForReading("file", file));
    QVERIFY(!ConfinedFolder(path("missing")).moveInto(path("outside/file"), "file"));
}

// What is a folder at one moment and a link out at the next never leads out.
void TestConfinedFolder::noRace()
{
    std::atomic_bool done{false};
    std::thread swapper([&] {
        const QByteArray root = path("root").toUtf8();
        while (!done)
            ::renameat2(AT_FDCWD, (root + "/folder").constData(), AT_FDCWD, (root + "/out").constData(),
                        RENAME_EXCHANGE);
    });
    const ConfinedFolder folder(path("root"));
    int opened = 0;
    int refused = 0;
    while (opened < 500 || refused < 500) {
        QFile file;
        const bool isOpen = bool(folder.openForReading("folder/file", file));
        if (isOpen && file.readAll() != "inside")
            break;
        ++(isOpen ? opened : refused);
    }
    done = true;
    swapper.join();
    QVERIFY2(opened >= 500 && refused >= 500, "a file outside was opened");
}

QTEST_GUILESS_MAIN(TestConfinedFolder)

#include "tst_confinedfolder.moc"
