// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/importqueue.h"
#include "api/leftovers.h"
#include "api/workspace.h"
#include "tests/support/faults.h"
#include "tests/support/files.h"
#include "tests/support/logcapture.h"
#include "tests/support/ziparchive.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestImportQueue : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void importsInTurn();
    void stops_data();
    void stops();
    void displacedProjectComesBack();

private:
    QString zip(const QString& name, const QVector<QByteArray>& files)
    {
        ZipArchive archive;
        for (const QByteArray& file : files) {
            ZipEntry entry;
            entry.name = file;
            entry.data = "new";
            archive.add(entry);
        }
        write(m_dir->filePath(name), archive.bytes());
        return m_dir->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_work;
};

void TestImportQueue::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_work = Workspace(m_dir->path()).workDirectory();
    write(m_work + "/Shop/main.qml", "old");
}

void TestImportQueue::importsInTurn()
{
    const QString shop = zip("shop.zip", {"Shop/main.qml", "Bar/main.qml"});
    const QString broken = zip("broken.zip", {"Shop/main.qml", "Shop/../x"});
    const QString files = zip("files.zip", {"loose"});
    ImportQueue queue(m_work);
    QSignalSpy running(&queue, &ImportQueue::runningChanged);
    QSignalSpy finished(&queue, &ImportQueue::finished);
    const LogCapture log;
    for (const QString& archive : {shop, broken, files})
        queue.start(archive);
    QCOMPARE(queue.archive(), shop);
    QTRY_COMPARE(finished.size(), 3);
    for (QVariantList& arguments : finished) {
        QStringList projects = arguments.at(2).toStringList();
        projects.sort();
        arguments[2] = projects.join(' ');
    }
    QCOMPARE(finished,
             QList<QVariantList>({{shop, "", "Bar Shop", false},
                                  {broken, "a name could lead out of the target: Shop/../x", "", false},
                                  {files, "", "", false}}));
    QCOMPARE(running, QList<QVariantList>({{true}, {false}}));
    QCOMPARE(queue.progress(), 1.0);
    QCOMPARE(contents(m_work + "/Shop/main.qml"), QByteArray("new"));
}

void TestImportQueue::stops_data()
{
    QTest::addColumn<bool>("byDestruction");
    QTest::newRow("when told to") << false;
    QTest::newRow("when it goes") << true;
}

// In the middle; a start of the program meanwhile leaves it alone, and nothing is left afterwards.
void TestImportQueue::stops()
{
    QFETCH(bool, byDestruction);
    QVector<QByteArray> files{"Shop/main.qml"};
    for (int i = 0; i < 20'000; ++i)
        files.append("Shop/" + QByteArray::number(i));
    const QString large = zip("large.zip", files);
    auto queue = std::make_unique<ImportQueue>(m_work);
    QSignalSpy finished(queue.get(), &ImportQueue::finished);
    queue->start(large);
    queue->start(large);
    QTRY_VERIFY(queue->progress() > 0);
    Leftovers(Workspace(m_dir->path())).wait();
    QCOMPARE(QDir(m_work).entryList({".import-*"}, QDir::Dirs | QDir::Hidden).size(), 1);
    if (byDestruction) { // at once: tidying up is left to the next start
        queue.reset();
        Leftovers(Workspace(m_dir->path())).wait();
    } else {
        queue->cancel();
        QTRY_COMPARE(finished, QList<QVariantList>({{large, "", QStringList(), true}}));
        QVERIFY(!queue->isRunning());
    }
    QCOMPARE(QDir(m_work).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList("Shop"));
    QCOMPARE(QDir(m_work + "/Shop").entryList(QDir::Files), QStringList("main.qml"));
    QCOMPARE(contents(m_work + "/Shop/main.qml"), QByteArray("old"));
}

// What a killed import had moved aside may be the only copy.
void TestImportQueue::displacedProjectComesBack()
{
    const QString aside = m_work + "/.import-0123456789abcdef/displaced/Cafe/main.qml";
    write(aside, "only copy");
    for (const Fault fault : {Fault::Rename, Fault::None}) {
        const LogCapture log;
        const FaultInjection injection(fault);
        Leftovers(Workspace(m_dir->path())).wait();
        QCOMPARE(QFile::exists(aside), fault == Fault::Rename);
    }
    QCOMPARE(contents(m_work + "/Cafe/main.qml"), QByteArray("only copy"));
    QVERIFY(!QFile::exists(m_work + "/.import-0123456789abcdef"));
}

QTEST_GUILESS_MAIN(TestImportQueue)
#include "tst_importqueue.moc"
