// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archive.h"
#include "tests/support/faults.h"
#include "tests/support/files.h"
#include "tests/support/logcapture.h"
#include "tests/support/ziparchive.h"

#include <QDateTime>
#include <QDirIterator>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

#include <utime.h>

namespace {

using Tree = QMap<QString, QByteArray>; // relative path, a folder's with a final "/", to content

Tree treeOf(const QString& folder)
{
    Tree tree;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        if (it.fileInfo().isSymLink())
            tree.insert(path.mid(folder.size() + 1), "-> " + it.fileInfo().symLinkTarget().toUtf8());
        else if (it.fileInfo().isDir())
            tree.insert(path.mid(folder.size() + 1) + '/', {});
        else if (file.open(QIODevice::ReadOnly))
            tree.insert(path.mid(folder.size() + 1), file.readAll());
    }
    return tree;
}

QByteArray noise(int size, quint32 seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator random(seed);
    for (char& byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

ZipEntry file(const QByteArray& name, const QByteArray& data = "data")
{
    ZipEntry entry;
    entry.name = name;
    entry.data = data;
    return entry;
}

int runTool(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    return process.waitForFinished() ? process.exitCode() : -1;
}

} // namespace

Q_DECLARE_METATYPE(ZipArchive)

class TestArchive : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void firstEntryNamesTheProject_data();
    void firstEntryNamesTheProject();
    void extractsOverWhatIsThere();
    void namesOfAllKinds();
    void tenThousandEntries();
    void archivesOfOtherTools();

    void hostile_data();
    void hostile();
    void truncatedAnywhere();
    void damagedAnywhere();
    void hiddenNamesCannotMislead();
    void notEnoughSpace();
    void clashesWithTheWorkDirectory_data();
    void clashesWithTheWorkDirectory();
    void failingDisk_data();
    void failingDisk();
    void abandonedImportsGo();

    void packsAsLaidOut();
    void packsMediaUncompressed();
    void otherToolsReadWhatIsPacked();
    void failedPackKeepsTheOldArchive_data();
    void failedPackKeepsTheOldArchive();
    void packedProjectComesBack();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    QString zip(const ZipArchive& archive) const
    {
        write(path("test.zip"), archive.bytes());
        return path("test.zip");
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_work;
};

// The work directory lies in a folder of its own, beside which nothing may ever appear.
void TestArchive::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_work = path("area/work");
    write(m_work + "/Shop/main.qml", "old main");
    write(m_work + "/Shop/kept.txt", "kept");
}

// ------------------------------------------------------------------------------------------------ extracting

void TestArchive::firstEntryNamesTheProject_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << QByteArray("Lobby/") << "Lobby";
    QTest::newRow("file") << QByteArray("main.qml") << "main.qml";
    QTest::newRow("file in a folder") << QByteArray("Lobby/main.qml") << "Lobby/main.qml";
    QTest::newRow("non-Latin") << QByteArray("ロビー/") << "ロビー";
}

void TestArchive::firstEntryNamesTheProject()
{
    QFETCH(QByteArray, first);
    QFETCH(QString, name);
    const ZipArchive archive{file(first, first.endsWith('/') ? QByteArray() : QByteArray("x")),
                             file("z.qml")};
    QCOMPARE(archiveProjectName(zip(archive)), name);
    QVERIFY(extractArchive(path("test.zip"), m_work));
    QVERIFY(QFile::exists(m_work + '/' + name));
    QVERIFY(QFile::exists(m_work + "/z.qml"));
}

void TestArchive::extractsOverWhatIsThere()
{
    ZipEntry large = file("Shop/images/large.txt", QByteArray("text ").repeated(100'000));
    large.deflate = true;
    const ZipArchive archive{file("Shop/", {}), file("Shop/main.qml", "new main"), large,
                             file("Shop/empty/", {}), file("Shop/none", {})};
    Tree expected = treeOf(path("area"));
    expected["work/Shop/main.qml"] = "new main";
    expected["work/Shop/images/"] = {};
    expected["work/Shop/images/large.txt"] = large.data;
    expected["work/Shop/empty/"] = {};
    expected["work/Shop/none"] = {};
    QVERIFY(extractArchive(zip(archive), m_work));
    QCOMPARE(treeOf(path("area")), expected);
}

void TestArchive::namesOfAllKinds()
{
    const QByteArray deep = QByteArray("folder-with-a-rather-long-name/").repeated(33) + "x";
    ZipEntry dos = file("Gr\x81\xe1"
                        "e.txt"); // "Grüße.txt" as DOS wrote it
    dos.utf8 = false;
    ZipEntry unmarked = file("日本.txt"); // UTF-8 without the mark, as many tools write it
    unmarked.utf8 = false;
    QVERIFY(
        extractArchive(zip({file("画像/写真 1.png"), file(deep), unmarked, file("a'b\"c $d.txt")}), m_work));
    for (const char* name : {"画像/写真 1.png", "日本.txt", "a'b\"c $d.txt"})
        QVERIFY2(QFile::exists(m_work + '/' + name), name);
    QVERIFY(QFile::exists(m_work + '/' + deep));
    QVERIFY(extractArchive(zip({dos}), m_work));
    QVERIFY(QFile::exists(m_work + "/Grüße.txt"));
}

void TestArchive::tenThousandEntries()
{
    ZipArchive archive;
    for (int i = 0; i < 10'000; ++i)
        archive.add(
            file("Many/" + QByteArray::number(i % 100) + "/" + QByteArray::number(i), QByteArray::number(i)));
    QVERIFY(extractArchive(zip(archive), m_work));
    const Tree tree = treeOf(m_work + "/Many");
    QCOMPARE(tree.size(), 10'100);
    QCOMPARE(tree.value("37/9937"), QByteArray("9937"));

    // The number at which the directory's count of 16 bits is all ones, without the long form.
    ZipArchive brim;
    for (int i = 0; i < 65'535; ++i)
        brim.add(file(QByteArray::number(i), {}));
    QCOMPARE(archiveProjectName(zip(brim)), QStringLiteral("0"));
}

void TestArchive::archivesOfOtherTools()
{
    const QString source = path("source");
    write(source + "/Lobby/main.qml", "main");
    write(source + "/Lobby/写真/фото.jpg", noise(100'000, 1));
    QDir().mkpath(source + "/Lobby/leer");
    QCOMPARE(runTool("zip", {"-q", "-r", path("tool.zip"), "Lobby"}, source), 0);
    QCOMPARE(archiveProjectName(path("tool.zip")), QStringLiteral("Lobby"));
    QVERIFY(extractArchive(path("tool.zip"), m_work));
    QCOMPARE(treeOf(m_work + "/Lobby"), treeOf(source + "/Lobby"));
}

// ------------------------------------------------------------------------------------------- hostile
// archives

void TestArchive::hostile_data()
{
    QTest::addColumn<ZipArchive>("archive");
    QTest::addColumn<bool>("seenInDirectory"); // refused before anything is unpacked

    const auto row = [](const char* name, const ZipEntry& entry, bool seen = true) {
        QTest::newRow(name) << ZipArchive{file("Shop/main.qml", "new"), entry, file("Shop/last", "x")}
                            << seen;
    };
    for (const char* name :
         {"../evil", "../../evil", "Shop/../../evil", "/evil", "..", "C:\\evil", "a\\..\\evil", ""})
        row(qPrintable(QString("name %1").arg(name)), file(name));
    ZipEntry link = file("Shop/link", "../..");
    link.unixMode = 0120777;
    row("link", link);
    QTest::newRow("link and a file through it") << ZipArchive{link, file("Shop/link/evil")} << true;
    ZipEntry device = file("Shop/null");
    device.unixMode = 0020666;
    row("device", device);
    row("twice", file("Shop/main.qml", "other"));
    row("twice but for the case", file("Shop/MAIN.qml", "other"));
    row("file as a folder", file("Shop/main.qml/x"));

    ZipEntry bomb = file("Shop/bomb", QByteArray(20'000'000, '0'));
    bomb.deflate = true;
    row("bomb", bomb);
    ZipEntry quietBomb = bomb;
    quietBomb.size = 1000;
    row("bomb that announces little", quietBomb, false);
    ZipEntry tooLarge = file("Shop/x");
    tooLarge.size = tooLarge.packedSize = 0xfffffffe;
    row("larger than the archive", tooLarge);
    ZipEntry longer = file("Shop/x", QByteArray("abc").repeated(1000));
    longer.deflate = true;
    longer.size = 4000;
    row("shorter than announced", longer, false);
    ZipEntry crc = file("Shop/x");
    crc.crc = 1;
    row("wrong checksum", crc, false);
    ZipEntry encrypted = file("Shop/x");
    encrypted.moreFlags = 1;
    row("encrypted", encrypted);
    ZipEntry method = file("Shop/x");
    method.method = 99;
    row("unknown method", method);
    ZipEntry garbage = file("Shop/x", noise(1000, 2));
    garbage.method = 8;
    row("no deflate stream", garbage, false);
    ZipEntry offset = file("Shop/x");
    offset.offset = 0x7fffffff;
    row("begins nowhere", offset, false);

    ZipArchive overlapping;
    for (int i = 0; i < 100; ++i) {
        ZipEntry same = file("Shop/" + QByteArray::number(i), noise(i == 0 ? 10'000 : 0, 3));
        same.packedSize = same.size = 10'000;
        same.offset = 0;
        overlapping.add(same);
    }
    QTest::newRow("overlapping") << overlapping << true;
    QTest::newRow("announces more entries") << ZipArchive{file("Shop/main.qml", "new")}.announce(3) << true;
    QTest::newRow("no entries") << ZipArchive() << true;
}

// A hostile archive changes nothing, anywhere, and says so.
void TestArchive::hostile()
{
    QFETCH(ZipArchive, archive);
    QFETCH(bool, seenInDirectory);
    const QString name = zip(archive);
    const Tree before = treeOf(m_dir->path());
    const LogCapture log;
    QCOMPARE(archiveProjectName(name).isEmpty(), seenInDirectory);
    QVERIFY(!extractArchive(name, m_work));
    QCOMPARE(treeOf(m_dir->path()), before);
    QCOMPARE(log.messages().filter("Archive refused").size(), seenInDirectory ? 2 : 1);
    QVERIFY(log.contains(name));
}

// A few bytes at the very end may be missing without loss.
void TestArchive::truncatedAnywhere()
{
    constexpr int endRecordBytes = 22;
    ZipEntry packed = file("Shop/main.qml", QByteArray("0123456789").repeated(50));
    packed.deflate = true;
    const QByteArray whole = ZipArchive{packed, file("Shop/b", "b")}.bytes();
    const Tree before = treeOf(m_work);
    Tree after = before;
    after["Shop/main.qml"] = packed.data;
    after["Shop/b"] = "b";
    const LogCapture log;
    for (int size = 0; size < whole.size(); ++size) {
        write(path("cut.zip"), whole.left(size));
        const bool extracted = extractArchive(path("cut.zip"), m_work);
        QVERIFY2(!extracted || size > whole.size() - endRecordBytes, qPrintable(QString::number(size)));
        QCOMPARE(treeOf(m_work), extracted ? after : before);
        if (extracted)
            break;
    }
    QVERIFY(!extractArchive(path("missing.zip"), m_work));
    QVERIFY(!extractArchive(path("area"), m_work));
}

// Whatever is damaged, nothing lands outside and an archive that is refused changes nothing.
void TestArchive::damagedAnywhere()
{
    ZipEntry packed = file("Shop/a/main.qml", QByteArray("0123456789").repeated(20));
    packed.deflate = true;
    const QByteArray whole = ZipArchive{packed, file("Shop/b"), file("Shop/c/", {})}.bytes();
    QRandomGenerator random(4);
    const LogCapture log;
    for (int i = 0; i < 300; ++i) {
        QByteArray damaged = whole;
        for (int j = 0; j <= i % 4; ++j)
            damaged[int(random.bounded(damaged.size()))] = char(random.bounded(256));
        write(path("damaged.zip"), damaged);
        const Tree before = treeOf(path("area"));
        archiveProjectName(path("damaged.zip"));
        if (!extractArchive(path("damaged.zip"), m_work))
            QCOMPARE(treeOf(path("area")), before);
    }
    QCOMPARE(QDir(path("area")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"work"});
}

// The name counts that was checked: the directory's, up to a NUL.
void TestArchive::hiddenNamesCannotMislead()
{
    ZipEntry entry = file("Shop/good");
    entry.localName = "../../evil";
    extractArchive(zip({entry}), m_work);
    extractArchive(zip({file(QByteArray("Shop/a\0/../../../evil", 21))}), m_work);
    QCOMPARE(treeOf(m_dir->path()).keys().filter("evil"), QStringList());
}

// An archive with a hole of some hundred megabytes that announces more than the disk has room for.
void TestArchive::notEnoughSpace()
{
    constexpr quint32 size = 0xf0000000;
    constexpr quint32 packedSize = size / 199;
    const auto free = std::filesystem::space(m_work.toStdString()).available;
    const int count = int(free / size) + 1;
    ZipArchive archive;
    for (int i = 0; i < count; ++i) {
        ZipEntry entry = file("Shop/" + QByteArray::number(i));
        entry.method = 8;
        entry.size = size;
        entry.packedSize = packedSize;
        archive.add(entry);
    }
    const quint32 hole = packedSize * quint32(count);
    QFile sparse(path("sparse.zip"));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.seek(hole));
    sparse.write(archive.bytes(hole));
    sparse.close();
    const Tree before = treeOf(m_work);
    const LogCapture log;
    QVERIFY(!extractArchive(sparse.fileName(), m_work));
    QVERIFY2(log.contains("not enough free space"), qPrintable(log.messages().join('\n')));
    QCOMPARE(treeOf(m_work), before);
}

void TestArchive::clashesWithTheWorkDirectory_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("a folder is where the file goes") << QByteArray("folder");
    QTest::newRow("a file is where the folder goes") << QByteArray("Shop/main.qml/x");
    QTest::newRow("a link is where the folder goes") << QByteArray("link/x");
    QTest::newRow("a dangling link is where the folder goes") << QByteArray("dangling/x");
}

void TestArchive::clashesWithTheWorkDirectory()
{
    QFETCH(QByteArray, entry);
    QDir().mkpath(m_work + "/folder/inner");
    QDir().mkpath(path("outside"));
    QVERIFY(QFile::link(path("outside"), m_work + "/link"));
    QVERIFY(QFile::link(path("nowhere"), m_work + "/dangling"));
    const QString name = zip({file("Shop/kept.txt", "replaced"), file(entry)});
    const Tree before = treeOf(m_dir->path());
    QVERIFY(!extractArchive(name, m_work));
    QCOMPARE(treeOf(m_dir->path()), before);
}

void TestArchive::failingDisk_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("full") << Fault::DiskFull;
    QTest::newRow("rename fails") << Fault::Rename;
}

void TestArchive::failingDisk()
{
    QFETCH(Fault, fault);
    const QString name = zip({file("Shop/main.qml", "new"), file("Shop/large", noise(100'000, 5))});
    const Tree before = treeOf(path("area"));
    const LogCapture log;
    {
        const FaultInjection injection(fault);
        QVERIFY(!extractArchive(name, m_work));
    }
    QCOMPARE(treeOf(path("area")), before);
    QVERIFY(log.contains("Archive refused"));
    QVERIFY(!extractArchive(name, path("missing")));
}

void TestArchive::abandonedImportsGo()
{
    write(m_work + "/.import-old/a/b", "x");
    write(m_work + "/.import-new/a", "x");
    const time_t yesterday = QDateTime::currentSecsSinceEpoch() - 25 * 3600;
    const utimbuf times{yesterday, yesterday};
    QCOMPARE(utime(qPrintable(m_work + "/.import-old"), &times), 0);
    QVERIFY(extractArchive(zip({file("a")}), m_work));
    QVERIFY(!QFile::exists(m_work + "/.import-old"));
    QVERIFY(QFile::exists(m_work + "/.import-new/a"));
}

// --------------------------------------------------------------------------------------------------- packing

void TestArchive::packsAsLaidOut()
{
    const QString project = m_work + "/Shop";
    QDir().mkpath(project + "/images");
    write(project + "/sub/inner/x.txt", "x");
    write(project + "/.hidden", "h");
    write(project + "/.git/config", "h");
    QVERIFY(QFile::link(project + "/main.qml", project + "/link.qml"));
    QVERIFY(QFile::link(project, project + "/loop"));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(packArchive(project + "/Shop.zip", project));
        QProcess list;
        list.start("zipinfo", {"-1", project + "/Shop.zip"});
        QVERIFY(list.waitForFinished());
        QCOMPARE(QString::fromUtf8(list.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
                 (QStringList{"images/", "sub/", "sub/inner/", "sub/inner/x.txt", "kept.txt", "main.qml"}));
    }
    QCOMPARE(QDir(project).entryList({"*.tmp"}, QDir::AllEntries | QDir::Hidden), QStringList());
}

void TestArchive::packsMediaUncompressed()
{
    const QByteArray text = QByteArray("text ").repeated(10'000);
    write(m_work + "/Media/clip.MP4", text);
    QVERIFY(packArchive(path("media.zip"), m_work + "/Media"));
    QVERIFY(QFileInfo(path("media.zip")).size() > text.size());
    write(m_work + "/Text/clip.qml", text);
    QVERIFY(packArchive(path("text.zip"), m_work + "/Text"));
    QVERIFY(QFileInfo(path("text.zip")).size() < text.size() / 10);
}

void TestArchive::otherToolsReadWhatIsPacked()
{
    const QString project = m_work + "/プロジェクト";
    write(project + "/main.qml", QByteArray("import QtQuick 2.15\n").repeated(5000));
    write(project + "/写真/ü ö.jpg", noise(300'000, 6));
    write(project + "/none", {});
    QDir().mkpath(project + "/empty");
    QVERIFY(packArchive(path("new folder/p.zip"), project));
    QCOMPARE(runTool("unzip", {"-q", path("new folder/p.zip"), "-d", path("unpacked")}, m_dir->path()), 0);
    QCOMPARE(treeOf(path("unpacked")), treeOf(project));
    QFile archive(path("new folder/p.zip"));
    QVERIFY(archive.open(QIODevice::ReadOnly));
    const QByteArray bytes = archive.readAll();
    const int folderRecord = bytes.indexOf("写真/", bytes.indexOf("PK\1\2")) - 46;
    QVERIFY2(bytes[folderRecord + 9] & 0x08, "names must be marked as UTF-8");
}

void TestArchive::failedPackKeepsTheOldArchive_data()
{
    failingDisk_data();
    QTest::newRow("no such project") << Fault::None;
}

void TestArchive::failedPackKeepsTheOldArchive()
{
    QFETCH(Fault, fault);
    const QString name = path("old/old.zip");
    write(name, "old");
    write(m_work + "/Shop/large.jpg", noise(100'000, 7));
    const LogCapture log;
    {
        const FaultInjection injection(fault);
        QVERIFY(!packArchive(name, m_work + (fault == Fault::None ? "/missing" : "/Shop")));
    }
    QCOMPARE(treeOf(path("old")), (Tree{{"old.zip", "old"}}));
    QCOMPARE(log.messages().size(), 1);
}

void TestArchive::packedProjectComesBack()
{
    write(m_work + "/Shop/images/a.png", noise(50'000, 8));
    write(m_work + "/Shop/text.txt", QByteArray("text ").repeated(50'000));
    QVERIFY(packArchive(path("shop.zip"), m_work + "/Shop"));
    QCOMPARE(archiveProjectName(path("shop.zip")), QStringLiteral("images"));
    QDir().mkpath(path("elsewhere"));
    QVERIFY(extractArchive(path("shop.zip"), path("elsewhere")));
    QCOMPARE(treeOf(path("elsewhere")), treeOf(m_work + "/Shop"));
}

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
