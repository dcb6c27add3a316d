// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/settings.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void firstStartWritesDefaults();
    void storedValuesSurviveButTheVersionIsRenewed();
    void conversions_data();
    void conversions();
    void brokenStoreIsSetAside_data();
    void brokenStoreIsSetAside();
    void failedWriteKeepsThePreviousFile();

private:
    QString storeFile() const { return m_home.filePath("Nuvex/Nuvex.conf"); }
    QTemporaryDir m_home;
};

void TestSettings::initTestCase()
{
    QVERIFY(m_home.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
    QCoreApplication::setOrganizationName("Nuvex");
    QCoreApplication::setApplicationName("Nuvex");
}

void TestSettings::init()
{
    QSettings store;
    store.clear();
    store.sync();
}

void TestSettings::firstStartWritesDefaults()
{
    {
        Settings settings;
    }
    const Settings again;
    QCOMPARE(again.boolean("firstTime"), true);
    QCOMPARE(again.text("lastProject"), QString());
    QCOMPARE(again.text("doOnStart"), QString("play"));
    QCOMPARE(again.text("userEmail"), QString());
    QCOMPARE(again.text("playerUID"), QString());
    QCOMPARE(again.boolean("shareFolder"), true);
    QCOMPARE(again.text("version"), QString("118"));
    QCOMPARE(QSettings().allKeys().size(), 7);
}

void TestSettings::storedValuesSurviveButTheVersionIsRenewed()
{
    {
        Settings settings;
        settings.set("doOnStart", "edit");
        settings.set("version", "17");
        settings.set("lastProject", QString::fromUtf8("Café \"Größe\" 1.5"));
    }
    const Settings again;
    QCOMPARE(again.text("doOnStart"), QString("edit"));
    QCOMPARE(again.text("version"), QString("118"));
    QCOMPARE(again.text("lastProject"), QString::fromUtf8("Café \"Größe\" 1.5"));
}

void TestSettings::conversions_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("boolean");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("integer");
    QTest::newRow("missing") << QVariant() << false << QString() << 0;
    QTest::newRow("true") << QVariant(true) << true << QString("true") << 1;
    QTest::newRow("false") << QVariant(false) << false << QString("false") << 0;
    QTest::newRow("number") << QVariant(42) << true << QString("42") << 42;
    QTest::newRow("number as text") << QVariant("42") << true << QString("42") << 42;
    QTest::newRow("word") << QVariant("cloud") << true << QString("cloud") << 0;
}

void TestSettings::conversions()
{
    QFETCH(QVariant, stored);
    {
        Settings settings;
        if (stored.isValid())
            settings.set("key", stored);
        QTEST(settings.integer("key"), "integer");
    }
    const Settings again; // now read from disk, where everything is text
    QTEST(again.boolean("key"), "boolean");
    QTEST(again.text("key"), "text");
    QTEST(again.integer("key"), "integer");
}

void TestSettings::brokenStoreIsSetAside_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::newRow("half a file") << QByteArray(
        "[General]\ndoOnStart=edit\n\xff\xfe garbage without meaning\n[[[\n");
    QTest::newRow("cut short") << QByteArray("[General\nlas");
    QTest::newRow("noise") << QByteArray("\xea\x03Z\xe3\x0f\x83\n\xd8\x91\x14\xa9\xd0");
    QTest::newRow("zeros and marks") << QByteArray("\0\xff\xfe[[[\n=%%=\n", 12);
}

void TestSettings::brokenStoreIsSetAside()
{
    QFile::remove(storeFile() + ".broken");
    QFile file(storeFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QFETCH(QByteArray, damage);
    file.write(damage);
    file.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("settings file .* is damaged"));
    {
        Settings settings;
        settings.set("lastProject", "Shop");
    }
    const Settings again;
    QCOMPARE(again.text("lastProject"), QString("Shop"));
    QCOMPARE(again.text("version"), QString("118"));
    QFile aside(storeFile() + ".broken");
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), damage);
}

void TestSettings::failedWriteKeepsThePreviousFile()
{
    Settings settings;
    settings.set("doOnStart", "dashboard");

    // No file may grow beyond its present size: what a full disk does to a write.
    signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit tight = before;
    tight.rlim_cur = 16;
    setrlimit(RLIMIT_FSIZE, &tight);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Settings could not be saved"));
    settings.set("lastProject", QString(100000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);

    QCOMPARE(QSettings(storeFile(), QSettings::IniFormat).value("doOnStart").toString(),
             QString("dashboard"));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
