// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/sync/syncplan.h"
#include "tests/support/hostilepaths.h"

#include <QTest>

#include <random>

namespace {

// "a 1, b 2" as a map; "-" for none.
std::optional<Dirmap> map(const QString& text)
{
    if (text == "-")
        return std::nullopt;
    return parseDirmap(QString(text).replace(", ", "\n").toUtf8());
}

QString text(const Dirmap& map)
{
    return QString::fromUtf8(dirmapText(map).value()).trimmed().replace("\n", ", ");
}

QString text(const QString& plan)
{
    return plan.trimmed().replace("\n", ", ");
}

} // namespace

class TestSyncPlan : public QObject
{
    Q_OBJECT

private slots:
    void pulls_data();
    void pulls();
    void pushes_data();
    void pushes();
    void hostilePaths();
    void filesThatAreMissing();
    void afterAnythingASecondRunPlansNothing();
};

void TestSyncPlan::pulls_data()
{
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("synced");
    QTest::addColumn<QString>("cloud");
    QTest::addColumn<QString>("onDisk");
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("localAfter");
    QTest::addColumn<QString>("syncedAfter");
    const auto row = [](const char* name, const char* local, const char* synced, const char* cloud,
                        const char* onDisk, const char* plan, const char* localAfter,
                        const char* syncedAfter) {
        QTest::newRow(name) << local << synced << cloud << onDisk << plan << localAfter << syncedAfter;
    };
    row("nothing here", "", "-", "b 2, a/x y 1", "", "fetch b 2, fetch a/x y 1", "b 2, a/x y 1",
        "b 2, a/x y 1");
    row("the same", "a 1, b 2", "a 1, b 2", "a 1, b 2", "a b", "", "a 1, b 2", "a 1, b 2");
    row("changed, new and gone", "a 1, b 2, c 3", "a 1, b 2, c 3", "a 1, b 3, d 1", "a b c",
        "fetch b 3, fetch d 1, remove c", "a 1, b 3, d 1", "a 1, b 3, d 1");
    row("without a record the cloud wins", "a 9, b 2", "-", "a 1", "a b", "fetch a 1, remove b", "a 1",
        "a 1");
    row("a file that is not there", "a 1, b 1", "a 1, b 1", "a 1, b 1", "b", "fetch a 1", "a 1, b 1",
        "a 1, b 1");
    row("edited here", "a 2, b 1", "a 1, b 1", "a 1, b 2", "a b", "fetch b 2", "a 2, b 2", "a 1, b 2");
    row("edited on both sides", "a 2", "a 1", "a 5", "a", "keep a", "a 2", "a 1");
    row("to the same number", "a 2", "a 1", "a 2", "a", "keep a", "a 2", "a 1");
    row("edited here, gone there", "a 2", "a 1", "b 1", "a", "fetch b 1", "b 1, a 2", "b 1, a 1");
    row("new here", "a 1, n 1", "a 1", "a 1", "a n", "", "a 1, n 1", "a 1");
    row("new on both sides", "n 1", "", "n 7", "n", "keep n", "n 1", "");
    row("new here and not listed", "", "", "n 1, m 1", "n", "fetch m 1, keep n", "m 1", "m 1");
    row("deleted here", "b 1", "a 1, b 1", "a 1, b 1", "b", "", "b 1", "a 1, b 1");
    row("deleted here, changed there", "b 1", "a 1, b 1", "a 2, b 1", "b", "fetch a 2", "a 2, b 1",
        "a 2, b 1");
    row("twice", "", "-", "a 1, a 2", "", "fetch a 1", "a 1", "a 1");
    row("differing in case", "", "-", "a 1, A 2", "", "fetch a 1, fetch A 2", "a 1, A 2", "a 1, A 2");
    row("a file below a file", "", "-", "a/b 1, a 1", "", "fetch a 1, refuse a/b", "a 1", "a 1");
    row("the map in itself", "", "-", "dirmap 3, a 1", "", "fetch a 1, refuse dirmap", "a 1", "a 1");
    row("no path, no revision", "", "-", "abc, x y", "", "fetch x 0, refuse ", "x 0", "x 0");
}

void TestSyncPlan::pulls()
{
    QFETCH(QString, local);
    QFETCH(QString, synced);
    QFETCH(QString, cloud);
    QFETCH(QString, onDisk);
    QFETCH(QString, plan);
    const QStringList files = onDisk.split(' ');
    const PullPlan actual = planPull(*map(local), map(synced), *map(cloud),
                                     [&](const QString& path) { return files.contains(path); });
    QCOMPARE(text(toText(actual)), plan.trimmed());
    QTEST(text(actual.local), "localAfter");
    QTEST(text(actual.synced), "syncedAfter");
}

void TestSyncPlan::pushes_data()
{
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("unlisted");
    QTest::addColumn<QString>("synced");
    QTest::addColumn<QString>("cloud");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("cloudAfter");
    QTest::addColumn<QString>("localAfter");
    QTest::addColumn<QString>("syncedAfter");
    const auto row = [](const char* name, const char* local, const char* unlisted, const char* synced,
                        const char* cloud, const char* theirs, const char* plan, const char* cloudAfter,
                        const char* localAfter, const char* syncedAfter) {
        QTest::newRow(name) << local << unlisted << synced << cloud << theirs << plan << cloudAfter
                            << localAfter << syncedAfter;
    };
    row("first", "a 1, b 4", "c", "-", "", "", "upload a 1, upload b 4, upload c 1", "a 1, b 4, c 1",
        "a 1, b 4, c 1", "a 1, b 4, c 1");
    row("nothing new", "a 1", "", "a 1", "a 1", "", "", "a 1", "a 1", "a 1");
    row("edited", "a 2, b 1", "", "a 1, b 1", "a 1, b 1", "", "upload a 2", "a 2, b 1", "a 2, b 1",
        "a 2, b 1");
    row("edited, with a lower number", "a 1", "", "a 4", "a 4", "", "upload a 5", "a 5", "a 5", "a 5");
    row("deleted here", "b 1", "", "a 1, b 1", "a 1, b 1", "", "", "b 1", "b 1", "b 1");
    row("deleted here, changed there", "b 1", "", "a 1, b 1", "a 2, b 1", "", "", "b 1, a 2", "b 1",
        "b 1, a 1");
    row("changed there", "a 1", "", "a 1", "a 2, n 1", "", "", "a 2, n 1", "a 1", "a 1");
    row("gone there", "a 1, b 2", "", "a 1, b 1", "b 1", "", "upload b 2", "b 2", "a 1, b 2", "a 1, b 2");
    row("both, ours", "a 2", "", "a 1", "a 7", "", "upload a 8, conflict a", "a 8", "a 8", "a 8");
    row("both to the same number", "a 2", "", "a 1", "a 2", "", "upload a 3, conflict a", "a 3", "a 3",
        "a 3");
    row("both, theirs", "a 2, b 2", "", "a 1, b 1", "a 7, b 1", "a", "upload b 2, conflict a", "a 7, b 2",
        "a 6, b 2", "a 6, b 2");
    row("new on both sides", "", "n", "", "n 3", "", "upload n 5, conflict n", "n 5", "n 5", "n 5");
    row("without a record, they differ", "a 1", "", "-", "a 7, x 1", "", "upload a 8, conflict a", "a 8, x 1",
        "a 8", "a 8");
    row("without a record, theirs", "a 1", "", "-", "a 7", "a", "conflict a", "a 7", "a 6", "a 6");
    row("highest number of all", "a 2", "", "a 1", "a 2147483647", "", "upload a -2147483648, conflict a",
        "a -2147483648", "a -2147483648", "a -2147483648");
}

void TestSyncPlan::pushes()
{
    QFETCH(QString, local);
    QFETCH(QString, unlisted);
    QFETCH(QString, synced);
    QFETCH(QString, cloud);
    QFETCH(QString, theirs);
    const PushPlan actual = planPush(*map(local), unlisted.split(' ', Qt::SkipEmptyParts), map(synced),
                                     *map(cloud), theirs.isEmpty() ? QSet<QString>() : QSet<QString>{theirs});
    QTEST(text(toText(actual)), "plan");
    QTEST(text(actual.cloud), "cloudAfter");
    QTEST(text(actual.local), "localAfter");
    QTEST(text(actual.synced), "syncedAfter");
}

void TestSyncPlan::hostilePaths()
{
    Dirmap cloud;
    for (const QString& path : ::hostilePaths())
        cloud.append(path, 1);
    cloud.append("good", 1);
    const PullPlan plan = planPull({}, std::nullopt, cloud, [](const QString&) { return false; });
    QCOMPARE(plan.fetch.paths, QStringList("good"));
    QCOMPARE(plan.local.paths, QStringList("good"));
    QCOMPARE(plan.refused.size(), QSet<QString>(cloud.paths.cbegin(), cloud.paths.cend()).size() - 1);
}

// What the cloud does not have any more keeps its lines, and is fetched as soon as it is there.
void TestSyncPlan::filesThatAreMissing()
{
    const Dirmap local = *map("a 1, b 1");
    const Dirmap cloud = *map("a 2, b 2, c 1");
    const auto exists = [](const QString& path) { return path != "c"; };
    const PullPlan plan = withoutFiles(planPull(local, local, cloud, exists), {"a", "c"}, local, local);
    QCOMPARE(text(toText(plan)), QString("fetch b 2"));
    QCOMPARE(text(plan.local), QString("a 1, b 2"));
    QCOMPARE(text(toText(planPull(plan.local, plan.synced, cloud, exists))), QString("fetch a 2, fetch c 1"));
}

// Of any three maps: a pull leaves nothing for a second one, a push nothing for a second one, and whoever
// pulls then without a record has what was pushed.
void TestSyncPlan::afterAnythingASecondRunPlansNothing()
{
    std::mt19937 random(7);
    const auto anyMap = [&random] {
        Dirmap map;
        for (const char* path : {"a", "b", "c/d", "c/e", "f"}) {
            if (random() % 4 != 0)
                map.append(path, qint32(random() % 3));
        }
        return map;
    };
    const auto all = [](const QString&) { return true; };
    for (int i = 0; i < 20'000; ++i) {
        const Dirmap local = anyMap();
        const Dirmap cloud = anyMap();
        const std::optional<Dirmap> synced = random() % 4 == 0 ? std::nullopt : std::optional(anyMap());
        const auto listed = [&local](const QString& path) { return local.paths.contains(path); };
        const PullPlan pull = planPull(local, synced, cloud, listed);
        const auto after = [&pull](const QString& path) { return pull.local.paths.contains(path); };
        QVERIFY(!planPull(pull.local, pull.synced, cloud, after).changesFiles());
        const PushPlan push = planPush(local, {}, synced, cloud);
        QCOMPARE(text(toText(planPush(push.local, {}, push.synced, push.cloud))), QString());
        const PullPlan elsewhere = planPull({}, std::nullopt, push.cloud, all);
        QCOMPARE(elsewhere.local, push.cloud);
    }
}

QTEST_GUILESS_MAIN(TestSyncPlan)
#include "tst_syncplan.moc"
