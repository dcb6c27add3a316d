// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/dirmap.h"
#include "cloud/limits.h"
#include "tests/support/faults.h"
#include "tests/support/files.h"
#include "tests/support/hostilepaths.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestDirmap : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void parses_data();
    void parses();
    void bounds_data();
    void bounds();
    void writtenTextIsReadAlike();
    void unwritablePaths();
    void variantMap();
    void files();
    void removesListedFiles();
    void neverDeletesOutside();
    void changes();
    void failedWriteKeepsTheMap();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestDirmap::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestDirmap::parses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QVector<int>>("revisions");

    const auto row = [](const char* name, const char* text, const QStringList& paths,
                        const QVector<int>& revisions) {
        QTest::newRow(name) << QByteArray(text) << paths << revisions;
    };
    row("nothing", "", {}, {});
    row("two", "main.qml 3\nimages/a.png 12\n", {"main.qml", "images/a.png"}, {3, 12});
    row("space in the path", "Images/a b.png 12\n", {"Images/a b.png"}, {12});
    row("no final line feed", "a 1\nb 2", {"a", "b"}, {1, 2});
    row("short lines", "\nx\n1\n\na 1\n\n", {"a"}, {1});
    row("no space", "ab\n77\n", {"", ""}, {0, 77});
    row("no number", "a b\nc 1x\nd -5\ne 99999999999\nf +2\n", {"a", "c", "d", "e", "f"}, {0, 0, -5, 0, 2});
    row("spaces at the ends", " 5\na \na  7\n", {"", "a", "a "}, {5, 0, 7});
    row("CRLF", "a 1\r\nb 2\r\n", {"a", "b"}, {1, 2});
    row("twice", "a 1\na 2\n", {"a", "a"}, {1, 2});
    row("non-Latin", "画像/写真.png 4\n🎬.mp4 5\n", {"画像/写真.png", "🎬.mp4"}, {4, 5});
    row("broken UTF-8", "a\xff 1\n", {QString("a") + QChar(QChar::ReplacementCharacter)}, {1});
}

void TestDirmap::parses()
{
    QFETCH(QByteArray, text);
    const std::optional<Dirmap> map = parseDirmap(text);
    QVERIFY(map);
    QTEST(map->paths, "paths");
    QTEST(map->revisions, "revisions");
}

void TestDirmap::bounds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("accepted");
    const QByteArray longest = QByteArray(limits::dirmapLineBytes - 2, 'x') + " 1";
    QTest::newRow("longest line") << longest + "\na 1\n" << true;
    QTest::newRow("line too long") << "x" + longest + "\na 1\n" << false;
    QTest::newRow("most lines") << QByteArray("a 1\n").repeated(limits::dirmapLines) << true;
    QTest::newRow("too many lines") << QByteArray("a 1\n").repeated(limits::dirmapLines) + "b 1" << false;
    const QByteArray full = QByteArray(QByteArray(1023, 'x') + '\n').repeated(limits::dirmapBytes / 1024);
    QTest::newRow("largest") << full << true;
    QTest::newRow("too large") << full + 'x' << false;
}

void TestDirmap::bounds()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, accepted);
    const LogCapture log;
    QCOMPARE(parseDirmap(text).has_value(), accepted);
    QCOMPARE(log.messages().size(), accepted ? 0 : 1);
}

void TestDirmap::writtenTextIsReadAlike()
{
    Dirmap map;
    map.append(QStringLiteral("b b"), 2);
    map.append(QStringLiteral("a/ü 画"), -1);
    map.append(QStringLiteral("b b"), 3);
    const std::optional<QByteArray> text = dirmapText(map);
    QVERIFY(text);
    QCOMPARE(*text, QByteArray("b b 2\na/ü 画 -1\nb b 3\n"));
    QVERIFY(*parseDirmap(*text) == map);
}

void TestDirmap::unwritablePaths()
{
    for (const QString& path : {QStringLiteral("a\nb 1"), QString(5000, 'x')}) {
        Dirmap map;
        map.append(path, 1);
        QVERIFY(!dirmapText(map));
    }
}

void TestDirmap::variantMap()
{
    const Dirmap map = fromVariantMap({{"b", 2}, {"a", "7"}, {"c", 1.0}, {"d", "none"}});
    QCOMPARE(map.paths, (QStringList{"a", "b", "c", "d"}));
    QCOMPARE(map.revisions, (QVector<int>{7, 2, 1, 0}));
    QCOMPARE(toVariantMap(*parseDirmap("a 1\nb 2\na 3\n")), (QVariantMap{{"a", 3}, {"b", 2}}));
}

void TestDirmap::files()
{
    QVERIFY(readDirmap(m_dir->path())->isEmpty());
    QVERIFY(writeDirmap(m_dir->path(), fromVariantMap({{"b", 1}, {"a", 2}})));
    QCOMPARE(contents(path("dirmap")), QByteArray("a 2\nb 1\n"));
    QCOMPARE(readDirmap(m_dir->path())->revisions, (QVector<int>{2, 1}));
    QVERIFY(!writeDirmap(path("missing"), Dirmap()));
    QFile::remove(path("dirmap"));
    QDir(m_dir->path()).mkdir(QStringLiteral("dirmap"));
    QVERIFY(!readDirmap(m_dir->path()));
    QVERIFY(!writeDirmap(m_dir->path(), Dirmap()));
}

void TestDirmap::removesListedFiles()
{
    QDir(m_dir->path()).mkpath(QStringLiteral("images/folder"));
    for (const char* name : {"main.qml", "images/a b.png", "images/kept.png", "unmapped"})
        write(path(name), "x");
    write(path("dirmap"),
          "main.qml 1\nimages/a b.png 2\nimages/kept.png 3\ngone 4\nno/such 5\nimages/folder 6\n");
    QVERIFY(removeListedFiles(m_dir->path(),
                              QStringLiteral("images/a b.png\nunmapped\ngone\nno/such\nimages/folder\n")));
    QCOMPARE(contents(path("dirmap")), QByteArray("main.qml 1\nimages/kept.png 3\nimages/folder 6\n"));
    QVERIFY(!QFile::exists(path("images/a b.png")));
    for (const char* name : {"main.qml", "images/kept.png", "unmapped", "images/folder"})
        QVERIFY2(QFile::exists(path(name)), name);
}

void TestDirmap::neverDeletesOutside()
{
    const QString project = path("project");
    QDir(m_dir->path()).mkpath(QStringLiteral("project/sub"));
    QDir(m_dir->path()).mkdir(QStringLiteral("outside"));
    write(path("outside/file"), "x");
    QDir(m_dir->path()).mkdir(QStringLiteral("project-x"));
    write(path("project-x/file"), "x");
    write(project + "/main.qml", "x");
    QVERIFY(QFile::link(path("outside"), project + "/link"));
    QVERIFY(QFile::link(path("project-x"), project + "/link-x"));
    QStringList listed = hostilePaths().filter(QRegularExpression("^[^\n]{1,1000}$"));
    listed += {path("outside/file"), "link/file", "link-x/file", project + "/main.qml"};
    Dirmap map;
    for (const QString& name : listed)
        map.append(name, 1);
    QVERIFY(writeDirmap(project, map));
    const LogCapture log;
    QVERIFY(removeListedFiles(project, listed.join('\n')));
    QVERIFY(QFile::exists(path("outside/file")));
    QVERIFY(QFile::exists(path("project-x/file")));
    QVERIFY(QFile::exists(project + "/main.qml"));
    QVERIFY(*readDirmap(project) == map);
    QCOMPARE(log.messages().size(), listed.size());

    // A link itself may go, not what it points to.
    QVERIFY(QFile::link(path("outside/file"), project + "/own"));
    write(project + "/dirmap", "own 1\n");
    QVERIFY(removeListedFiles(project, QStringLiteral("own")));
    QVERIFY(!QFileInfo(project + "/own").isSymLink());
    QVERIFY(QFile::exists(path("outside/file")));
}

void TestDirmap::changes()
{
    const auto map = [](const char* text) { return *parseDirmap(QByteArray(text).replace(',', '\n')); };
    const struct
    {
        const char* from;
        const char* to;
        const char* changed;
        const char* gone;
    } rows[] = {
        {"", "", "", ""},
        {"", "a 1,b c 2", "a 1,b c 2", ""},
        {"a 1,b 2", "b 2,a 1", "", ""},
        {"a 1,b 2", "b 1,c 0", "b 1,c 0", "a"},
        {"a 1,a 2", "a 1", "", ""}, // the first line of a path counts
        {"a 1", "a 1,a 2", "a 2", ""},
        {"a 1", "A 1", "A 1", "a"},
    };
    for (const auto& row : rows) {
        const DirmapChanges changes = changesBetween(map(row.from), map(row.to));
        QVERIFY2(changes.changed == map(row.changed), row.to);
        QCOMPARE(changes.gone.join(','), QString(row.gone));
    }
}

void TestDirmap::failedWriteKeepsTheMap()
{
    write(path("dirmap"), "a 1\n");
    Dirmap large;
    for (int i = 0; i < 2000; ++i)
        large.append(QString::number(i), i);
    {
        const FaultInjection full(Fault::DiskFull);
        QVERIFY(!writeDirmap(m_dir->path(), large));
    }
    QCOMPARE(contents(path("dirmap")), QByteArray("a 1\n"));
    write(path("dirmap"), QByteArray(5000, 'x'));
    QVERIFY2(!removeListedFiles(m_dir->path(), QStringLiteral("a")), "a refused map must not be rewritten");
    QCOMPARE(contents(path("dirmap")).size(), 5000);
}

QTEST_GUILESS_MAIN(TestDirmap)
#include "tst_dirmap.moc"
