// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archivepack.h"
#include "api/archivereader.h"
#include "api/projectimport.h"
#include "base/jobcontrol.h"
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

ImportResult imported(const QString& zipFile, const QString& work)
{
    JobControl control;
    return importArchive(zipFile, work, control);
}

bool import(const QString& zipFile, const QString& work)
{
    return bool(imported(zipFile, work).outcome);
}

bool pack(const QString& zipFile, const QString& folder)
{
    JobControl control;
    return bool(packArchive(zipFile, folder, control));
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
    void importsOverAnOlderProject_data();
    void importsOverAnOlderProject();
    void namesOfAllKinds();
    void thousandsOfEntries();
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

    void packsAsLaidOut();
    void packsMediaUncompressed();
    void otherToolsReadWhatIsPacked();
    void failedPackKeepsTheOldArchive_data();
    void failedPackKeepsTheOldArchive();
    void olderArchivesInTheFolder_data();
    void olderArchivesInTheFolder();
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
    QTest::newRow("leads out") << QByteArray("../evil") << "";
}

void TestArchive::firstEntryNamesTheProject()
{
    QFETCH(QByteArray, first);
    QFETCH(QString, name);
    const ZipArchive archive{file(first, first.endsWith('/') ? QByteArray() : QByteArray("x")),
                             file("z.qml")};
    QCOMPARE(archiveProjectName(zip(archive)), name);
    QCOMPARE(import(path("test.zip"), m_work), !name.isEmpty());
    QCOMPARE(QFile::exists(m_work + "/z.qml"), !name.isEmpty());
}

void TestArchive::importsOverAnOlderProject_data()
{
    QTest::addColumn<Fault>("disk");
    QTest::newRow("folders are exchanged") << Fault::None;
    QTest::newRow("no exchange of folders") << Fault::NoExchange;
    QTest::newRow("no hard links") << Fault::NoLinks;
}

// What the archive has is new, what the older project has besides stays as it is, links and all.
void TestArchive::importsOverAnOlderProject()
{
    QFETCH(Fault, disk);
    ZipEntry large = file("Shop/images/large.txt", QByteArray("text ").repeated(100'000));
    large.deflate = true;
    const ZipArchive archive{
        file("loose", "new"),    file("Shop/", {}),          file("Shop/main.qml", "new main"), large,
        file("Shop/empty/", {}), file("Bar/main.qml", "bar")};
    write(m_work + "/loose", "old");
    write(m_work + "/Shop/images/deep/.hidden", "stays");
    QVERIFY(QFile::link("../elsewhere", m_work + "/Shop/images/link"));
    QVERIFY(QFile::link(path("area"), m_work + "/Shop/main.link"));
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(m_work + "/Shop/kept.txt", mode));
    const QDateTime changed = QFileInfo(m_work + "/Shop/kept.txt").lastModified();
    Tree expected = treeOf(path("area"));
    for (const auto& [name, data] :
         {std::pair("loose", "new"), std::pair("Shop/main.qml", "new main"), std::pair("Shop/empty/", ""),
          std::pair("Bar/", ""), std::pair("Bar/main.qml", "bar")})
        expected[QString("work/") + name] = data;
    expected["work/Shop/images/large.txt"] = large.data;

    const FaultInjection injection(disk);
    const ImportResult result = imported(zip(archive), m_work);
    QVERIFY2(result.outcome, qPrintable(result.outcome.reason()));
    QCOMPARE(QSet<QString>(result.projects.begin(), result.projects.end()), (QSet<QString>{"Shop", "Bar"}));
    QCOMPARE(treeOf(path("area")), expected);
    const QFileInfo kept(m_work + "/Shop/kept.txt");
    QCOMPARE(kept.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
             QFile::Permissions(mode));
    QCOMPARE(kept.lastModified(), changed);
}

void TestArchive::namesOfAllKinds()
{
    const QByteArray deep = QByteArray("folder-with-a-rather-long-name/").repeated(33) + "x";
    ZipEntry dos = file("Gr\x81\xe1"
                        "e.txt"); // "Grüße.txt" as DOS wrote it
    dos.utf8 = false;
    ZipEntry unmarked = file("日本.txt"); // UTF-8 without the mark, as many tools write it
    unmarked.utf8 = false;
    QVERIFY(import(zip({file("画像/写真 1.png"), file(deep), unmarked, file("a'b\"c $d.txt")}), m_work));
    for (const char* name : {"画像/写真 1.png", "日本.txt", "a'b\"c $d.txt"})
        QVERIFY2(QFile::exists(m_work + '/' + name), name);
    QVERIFY(QFile::exists(m_work + '/' + deep));
    QVERIFY(import(zip({dos}), m_work));
    QVERIFY(QFile::exists(m_work + "/Grüße.txt"));
}

void TestArchive::thousandsOfEntries()
{
    ZipArchive archive;
    for (int i = 0; i < 3'000; ++i)
        archive.add(
            file("Many/" + QByteArray::number(i % 100) + "/" + QByteArray::number(i), QByteArray::number(i)));
    QVERIFY(import(zip(archive), m_work));
    const Tree tree = treeOf(m_work + "/Many");
    QCOMPARE(tree.size(), 3'100);
    QCOMPARE(tree.value("37/2937"), QByteArray("2937"));

    // The number at which the directory's count of 16 bits is all ones, without the long form.
    ZipArchive brim;
    for (int i = 0; i < 65'535; ++i)
        brim.add(file(QByteArray::number(i), {}));
    ArchiveReader reader(zip(brim));
    QVERIFY(reader.open());
    QCOMPARE(reader.entries().size(), 65'535);
}

void TestArchive::archivesOfOtherTools()
{
    const QString source = path("source");
    write(source + "/Lobby/main.qml", "main");
    write(source + "/Lobby/写真/фото.jpg", noise(100'000, 1));
    QDir().mkpath(source + "/Lobby/leer");
    QCOMPARE(runTool("zip", {"-q", "-r", path("tool.zip"), "Lobby"}, source), 0);
    QCOMPARE(archiveProjectName(path("tool.zip")), QStringLiteral("Lobby"));
    QVERIFY(import(path("tool.zip"), m_work));
    QCOMPARE(treeOf(m_work + "/Lobby"), treeOf(source + "/Lobby"));
}

// ------------------------------------------------------------------------------------------- hostile
// archives

void TestArchive::hostile_data()
{
    QTest::addColumn<ZipArchive>("archive");
    const auto row = [](const char* name, const ZipEntry& entry) {
        QTest::newRow(name) << ZipArchive{file("Shop/main.qml", "new"), entry, file("Shop/last", "x")};
    };
    for (const char* name :
         {"../evil", "../../evil", "Shop/../../evil", "/evil", "..", "C:\\evil", "a\\..\\evil", ""})
        row(qPrintable(QString("name %1").arg(name)), file(name));
    ZipEntry link = file("Shop/link", "../..");
    link.unixMode = 0120777;
    row("link", link);
    QTest::newRow("link and a file through it") << ZipArchive{link, file("Shop/link/evil")};
    ZipEntry device = file("Shop/null");
    device.unixMode = 0020666;
    row("device", device);
    row("twice", file("Shop/main.qml", "other"));
    row("twice but for the case", file("Shop/MAIN.qml", "other"));
    row("file as a folder", file("Shop/main.qml/x"));

    ZipEntry bomb = file("Shop/bomb", QByteArray(20'000'000, '0'));
    bomb.deflate = true;
    bomb.size = 1000;
    row("bomb that announces little", bomb);
    ZipEntry tooLarge = file("Shop/x");
    tooLarge.size = tooLarge.packedSize = 0xfffffffe;
    row("larger than the archive", tooLarge);
    ZipEntry longer = file("Shop/x", QByteArray("abc").repeated(1000));
    longer.deflate = true;
    longer.size = 4000;
    row("shorter than announced", longer);
    ZipEntry crc = file("Shop/x");
    crc.crc = 1;
    row("wrong checksum", crc);
    ZipEntry encrypted = file("Shop/x");
    encrypted.moreFlags = 1;
    row("encrypted", encrypted);
    ZipEntry method = file("Shop/x");
    method.method = 99;
    row("unknown method", method);
    ZipEntry garbage = file("Shop/x", noise(1000, 2));
    garbage.method = 8;
    row("no deflate stream", garbage);
    ZipEntry offset = file("Shop/x");
    offset.offset = 0x7fffffff;
    row("begins nowhere", offset);

    ZipArchive overlapping;
    for (int i = 0; i < 100; ++i) {
        ZipEntry same = file("Shop/" + QByteArray::number(i), noise(i == 0 ? 10'000 : 0, 3));
        same.packedSize = same.size = 10'000;
        same.offset = 0;
        overlapping.add(same);
    }
    QTest::newRow("overlapping") << overlapping;
    QTest::newRow("announces more entries") << ZipArchive{file("Shop/main.qml", "new")}.announce(3);
    QTest::newRow("no entries") << ZipArchive();
}

// A hostile archive changes nothing, anywhere, and says so.
void TestArchive::hostile()
{
    QFETCH(ZipArchive, archive);
    const QString name = zip(archive);
    const Tree before = treeOf(m_dir->path());
    const LogCapture log;
    QVERIFY(!imported(name, m_work).outcome.reason().isEmpty());
    QCOMPARE(treeOf(m_dir->path()), before);
    QCOMPARE(log.messages().filter("Cannot import " + name).size(), 1);
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
        const bool extracted = import(path("cut.zip"), m_work);
        QVERIFY2(!extracted || size > whole.size() - endRecordBytes, qPrintable(QString::number(size)));
        QCOMPARE(treeOf(m_work), extracted ? after : before);
        if (extracted)
            break;
    }
    QVERIFY(!import(path("missing.zip"), m_work));
    QVERIFY(!import(path("area"), m_work));
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
        if (!import(path("damaged.zip"), m_work))
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
    import(zip({entry}), m_work);
    import(zip({file(QByteArray("Shop/a\0/../../../evil", 21))}), m_work);
    QCOMPARE(treeOf(m_dir->path()).keys().filter("evil"), QStringList());
}

// An archive with a hole of some hundred megabytes that announces more than the disk has room for.
void TestArchive::notEnoughSpace()
{
    constexpr quint32 size = 0xf0000000;
    constexpr quint32 packedSize = size / 1000;
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
    QVERIFY(!import(sparse.fileName(), m_work));
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
    QVERIFY(!import(name, m_work));
    QCOMPARE(treeOf(m_dir->path()), before);
}

void TestArchive::failingDisk_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("full") << Fault::DiskFull;
    QTest::newRow("sync fails") << Fault::Fsync;
    QTest::newRow("rename fails") << Fault::Rename;
    QTest::newRow("another one is mounted in the project") << Fault::Mounted;
}

void TestArchive::failingDisk()
{
    QFETCH(Fault, fault);
    const QString name = zip({file("Shop/main.qml", "new"), file("Shop/large", noise(100'000, 5))});
    const Tree before = treeOf(path("area"));
    const LogCapture log;
    {
        const FaultInjection injection(fault);
        QVERIFY(!import(name, m_work));
    }
    QCOMPARE(treeOf(path("area")), before);
    QVERIFY(log.contains("Cannot import"));
    QCOMPARE(imported(name, path("missing")).outcome.reason(),
             path("missing") + ": No such file or directory");
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
        QVERIFY(pack(project + "/Shop.zip", project));
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
    QVERIFY(pack(path("media.zip"), m_work + "/Media"));
    QVERIFY(QFileInfo(path("media.zip")).size() > text.size());
    write(m_work + "/Text/clip.qml", text);
    QVERIFY(pack(path("text.zip"), m_work + "/Text"));
    QVERIFY(QFileInfo(path("text.zip")).size() < text.size() / 10);
}

void TestArchive::otherToolsReadWhatIsPacked()
{
    const QString project = m_work + "/プロジェクト";
    write(project + "/main.qml", QByteArray("import QtQuick 2.15\n").repeated(5000));
    write(project + "/写真/ü ö.jpg", noise(300'000, 6));
    write(project + "/none", {});
    QDir().mkpath(project + "/empty");
    QVERIFY(pack(path("new folder/p.zip"), project));
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
    QTest::addColumn<Fault>("fault");
    QTest::newRow("full") << Fault::DiskFull;
    QTest::newRow("rename fails") << Fault::Rename;
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
        QVERIFY(!pack(name, m_work + (fault == Fault::None ? "/missing" : "/Shop")));
    }
    QCOMPARE(treeOf(path("old")), (Tree{{"old.zip", "old"}}));
    QVERIFY2(log.messages().size() == 1, qPrintable(log.messages().join('\n')));
}

// An archive that is packed again does not hold itself, whichever way leads to it.
void TestArchive::olderArchivesInTheFolder_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("by its path") << "area/work/Shop/old.zip";
    QTest::newRow("through a linked folder") << "way/old.zip";
    QTest::newRow("through a link to it") << "link.zip";
}

void TestArchive::olderArchivesInTheFolder()
{
    QFETCH(QString, target);
    const QString project = m_work + "/Shop";
    write(project + "/old.zip", "old");
    QVERIFY(QFile::link(project, path("way")) && QFile::link(project + "/old.zip", path("link.zip")));
    QVERIFY(pack(path(target), path("way")));
    ArchiveReader reader(project + "/old.zip");
    QVERIFY(reader.open());
    QCOMPARE(reader.entries().size(), 2);
    QCOMPARE(QDir(project).entryList(QDir::Files | QDir::Hidden),
             (QStringList{"kept.txt", "main.qml", "old.zip"}));
}

void TestArchive::packedProjectComesBack()
{
    write(m_work + "/Shop/images/a.png", noise(50'000, 8));
    write(m_work + "/Shop/black.bmp", QByteArray(3'000'000, '\0')); // packs as well as anything can
    write(m_work + "/Shop/text.txt", QByteArray("text ").repeated(50'000));
    QVERIFY(pack(path("shop.zip"), m_work + "/Shop"));
    QCOMPARE(archiveProjectName(path("shop.zip")), QStringLiteral("images"));
    QDir().mkpath(path("elsewhere"));
    QVERIFY(import(path("shop.zip"), path("elsewhere")));
    QCOMPARE(treeOf(path("elsewhere")), treeOf(m_work + "/Shop"));
}

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
