// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/archivecheck.h"
#include "api/limits.h"
#include "tests/support/hostilepaths.h"

#include <QTest>

#include <limits>

namespace {

constexpr qint64 archiveBytes = 1'000'000'000;

QuaZipFileInfo64 entry(const QString& name, quint64 size = 10, quint64 packedSize = 10)
{
    QuaZipFileInfo64 info{};
    info.name = name;
    info.uncompressedSize = size;
    info.compressedSize = packedSize;
    return info;
}

QuaZipFileInfo64 deflated(quint64 size, quint64 packedSize)
{
    QuaZipFileInfo64 info = entry("a", size, packedSize);
    info.method = 8;
    return info;
}

QVector<QuaZipFileInfo64> named(const QStringList& names)
{
    QVector<QuaZipFileInfo64> entries;
    for (const QString& name : names)
        entries.append(entry(name));
    return entries;
}

} // namespace

Q_DECLARE_METATYPE(QuaZipFileInfo64)

class TestArchiveCheck : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void kinds_data();
    void kinds();
    void sizes_data();
    void sizes();
    void counts();
};

void TestArchiveCheck::names_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("fault");

    const auto safe = [](const char* row, const QStringList& names) {
        QTest::newRow(row) << names << QString();
    };
    safe("files and folders", {"Shop/", "Shop/main.qml", "Shop/images/", "Shop/images/a b.png"});
    safe("folders without entries", {"a/b/c", "a/b/d/e"});
    safe("dots in names", {"..a", "a..", "...", ".hidden", "a/..b"});
    safe("non-Latin", {"店/画像.png", "Ünï", "🎬.mp4"});
    safe("64 parts", {QString("b/").repeated(64)});
    safe("prefix of a name", {"ab", "a/b", "abc/d"});

    const auto fault = [](const char* row, const QStringList& names, const char* fault) {
        QTest::newRow(row) << names << QString(fault);
    };
    int row = 0;
    for (const QString& path : hostilePaths()) {
        if (path != "a/") // the folder "a"
            QTest::newRow(qPrintable(QString("hostile %1").arg(++row)))
                << QStringList{"ok", path} << "a name";
    }
    fault("hidden folder", {"Shop/main.qml", ".import-0123456789abcdef/main.qml"}, "a project's folder");
    fault("twice", {"a/b", "c", "a/b"}, "a name occurs twice");
    fault("twice but for the case", {"a/Ärger.png", "A/äRGER.png"}, "a name occurs twice");
    fault("file and folder", {"a", "a/"}, "a name occurs twice");
    fault("file as folder, later", {"a/b/c", "a/b"}, "a file is also a folder");
    fault("file as folder, earlier", {"a", "x/y", "A/b/c/d"}, "a file is also a folder");
}

void TestArchiveCheck::names()
{
    QFETCH(QStringList, names);
    QFETCH(QString, fault);
    const QString found = archiveFault(named(names), archiveBytes);
    QVERIFY2(fault.isEmpty() ? found.isEmpty() : found.startsWith(fault), qPrintable(found));
}

void TestArchiveCheck::kinds_data()
{
    QTest::addColumn<quint32>("unixMode");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("method");
    QTest::addColumn<bool>("safe");
    QTest::newRow("no mode") << 0U << 0x800 << 0 << true;
    QTest::newRow("file") << 0100644U << 0x800 << 8 << true;
    QTest::newRow("folder") << 0040755U << 0 << 0 << true;
    QTest::newRow("link") << 0120777U << 0 << 0 << false;
    QTest::newRow("device") << 0060666U << 0 << 0 << false;
    QTest::newRow("pipe") << 0010666U << 0 << 0 << false;
    QTest::newRow("encrypted") << 0U << 1 << 8 << false;
    QTest::newRow("other method") << 0U << 0 << 12 << false;
}

void TestArchiveCheck::kinds()
{
    QFETCH(quint32, unixMode);
    QFETCH(int, flags);
    QFETCH(int, method);
    QFETCH(bool, safe);
    QuaZipFileInfo64 info = entry("a");
    info.externalAttr = unixMode << 16;
    info.flags = quint16(flags);
    info.method = quint16(method);
    QCOMPARE(archiveFault({info}, archiveBytes).isEmpty(), safe);
}

void TestArchiveCheck::sizes_data()
{
    using Entries = QVector<QuaZipFileInfo64>;
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<bool>("safe");
    constexpr quint64 most = 10'000 * limits::deflateRatio;
    constexpr quint64 max = std::numeric_limits<quint64>::max();
    QTest::newRow("deflated as well as can be") << Entries{deflated(most, 10'000)} << true;
    QTest::newRow("better than can be") << Entries{deflated(most + 1, 10'000)} << false;
    QTest::newRow("out of nothing") << Entries{deflated(1, 0)} << false;
    QTest::newRow("stored, larger than it is") << Entries{entry("a", 11, 10)} << false;
    QTest::newRow("as large as the archive") << Entries{entry("a", archiveBytes, archiveBytes)} << true;
    QTest::newRow("larger than the archive")
        << Entries{entry("a", archiveBytes + 1, archiveBytes + 1)} << false;
    QTest::newRow("overlapping") << Entries{entry("a", archiveBytes, archiveBytes), entry("b", 1, 1)}
                                 << false;
    QTest::newRow("packed sum overflows") << Entries{entry("a", max, max), entry("b", 2, 2)} << false;
    QTest::newRow("all ones") << Entries{entry("a", max, max)} << false;
}

void TestArchiveCheck::sizes()
{
    QFETCH(QVector<QuaZipFileInfo64>, entries);
    QFETCH(bool, safe);
    QCOMPARE(archiveFault(entries, archiveBytes).isEmpty(), safe);
}

void TestArchiveCheck::counts()
{
    QVERIFY(!archiveFault({}, archiveBytes).isEmpty());
    QVector<QuaZipFileInfo64> entries;
    for (int i = 0; i < limits::archiveEntries; ++i)
        entries.append(entry(QStringLiteral("folder%1/file%2").arg(i % 1000).arg(i)));
    QCOMPARE(archiveFault(entries, archiveBytes), QString());
    entries.append(entry("one more"));
    QVERIFY(!archiveFault(entries, archiveBytes).isEmpty());
}

QTEST_GUILESS_MAIN(TestArchiveCheck)
#include "tests/support/hostilepaths.h"
#include "tst_archivecheck.moc"
