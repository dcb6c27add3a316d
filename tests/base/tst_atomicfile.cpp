// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/atomicfile.h"
#include "base/jobcontrol.h"
#include "tests/support/faults.h"
#include "tests/support/files.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

QStringList everything(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class TestAtomicFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesAndReplaces();
    void keepsPermissionsAndLinks();
    void faultsLeaveTheOldFile_data();
    void faultsLeaveTheOldFile();
    void refusesOtherThanFiles();
    void replaceFileFails();
    void twoWritersOfOneFile();
    void onlyAbandonedFilesAreRemoved();

private:
    QString path(const char* name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestAtomicFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestAtomicFile::writesAndReplaces()
{
    const QByteArray large(3'000'000, 'x');
    const QString name = path("имя с пробелом.qml");
    for (const QByteArray& bytes : {QByteArray("first"), large, QByteArray(), QByteArray("\0\r\n", 3)}) {
        QVERIFY(writeFileAtomically(name, bytes));
        QCOMPARE(contents(name), bytes);
    }
    QCOMPARE(everything(m_dir->path()).size(), 1);
}

void TestAtomicFile::keepsPermissionsAndLinks()
{
    const QString file = path("file");
    const mode_t mask = ::umask(022);
    QVERIFY(writeFileAtomically(file, "1"));
    ::umask(mask);
    QVERIFY(QFile::permissions(file).testFlag(QFile::ReadOther));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(QFile::link(file, path("link")));
    QVERIFY(writeFileAtomically(path("link"), "2"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QCOMPARE(contents(file), QByteArray("2"));
    QVERIFY(!QFile::permissions(file).testFlag(QFile::ReadOther));
}

void TestAtomicFile::faultsLeaveTheOldFile_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("disk full") << Fault::DiskFull;
    QTest::newRow("sync fails") << Fault::Fsync;
    QTest::newRow("rename fails") << Fault::Rename;
}

void TestAtomicFile::faultsLeaveTheOldFile()
{
    QFETCH(Fault, fault);
    QVERIFY(writeFileAtomically(path("file"), "old"));
    const LogCapture log;
    {
        const FaultInjection injection(fault);
        QVERIFY(!writeFileAtomically(path("file"), QByteArray(1'000'000, 'n')));
        QVERIFY(!writeFileAtomically(path("new"), QByteArray(1'000'000, 'n')));
    }
    QCOMPARE(contents(path("file")), QByteArray("old"));
    QCOMPARE(everything(m_dir->path()), QStringList{QStringLiteral("file")});
    QCOMPARE(log.messages().size(), 2);
}

void TestAtomicFile::refusesOtherThanFiles()
{
    QDir(m_dir->path()).mkdir(QStringLiteral("folder"));
    QVERIFY(!writeFileAtomically(path("folder"), "x"));
    QVERIFY(!writeFileAtomically(path("missing/file"), "x"));
    QVERIFY(!writeFileAtomically(QStringLiteral("/dev/full"), "x"));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/full")).isFile());
    QCOMPARE(everything(m_dir->path()), QStringList{QStringLiteral("folder")});
}

void TestAtomicFile::replaceFileFails()
{
    QVERIFY(writeFileAtomically(path("from"), "new"));
    QVERIFY(writeFileAtomically(path("to"), "old"));
    QVERIFY(!replaceFile(path("nothing"), path("to")));
    QVERIFY(!replaceFile(path("from"), path("missing/to")));
    QCOMPARE(contents(path("to")), QByteArray("old"));
    QVERIFY(replaceFile(path("from"), path("to")));
    QCOMPARE(contents(path("to")), QByteArray("new"));
    QCOMPARE(everything(m_dir->path()), QStringList{QStringLiteral("to")});
}

void TestAtomicFile::twoWritersOfOneFile()
{
    AtomicFile one(path("file"));
    AtomicFile other(path("file"));
    for (AtomicFile* file : {&one, &other}) {
        QVERIFY(file->open());
        QCOMPARE(file->device().write("first half, "), 12);
    }
    QCOMPARE(other.device().write("other"), 5);
    QVERIFY(other.commit());
    QCOMPARE(contents(path("file")), QByteArray("first half, other"));
    QCOMPARE(one.device().write("one"), 3);
    QVERIFY(one.commit());
    QCOMPARE(contents(path("file")), QByteArray("first half, one"));
}

// What this process is writing is locked, as what another one writes is.
void TestAtomicFile::onlyAbandonedFilesAreRemoved()
{
    write(path("deep/.hidden/.main.qml.0123456789abcdef.tmp"), "left by a killed write");
    const QStringList others{".main.qml.123-4.tmp", "main.qml.0123456789abcdef.tmp", ".0123456789abcdef.tmp"};
    for (const QString& name : others)
        write(m_dir->filePath("deep/.hidden/" + name), "not ours");
    AtomicFile file(path("deep/.hidden/file"));
    QVERIFY(file.open());
    removeAbandonedFiles(m_dir->path(), JobControl());
    QVERIFY(file.commit());
    QStringList left = everything(path("deep/.hidden"));
    left.removeOne("file");
    QCOMPARE(QSet<QString>(left.begin(), left.end()), QSet<QString>(others.begin(), others.end()));
}

QTEST_GUILESS_MAIN(TestAtomicFile)
#include "tst_atomicfile.moc"
