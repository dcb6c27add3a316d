// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/limits.h"
#include "app/logfile.h"
#include "app/messageguard.h"
#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

class TestLogFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home = std::make_unique<QTemporaryDir>(); }
    void messagesOfAllThreadsComeWhole();
    void startsANewFileAtTheLimit();
    void isQuietWithoutAFile();
    void messagesHaveBoundsAndNoSecrets_data();
    void messagesHaveBoundsAndNoSecrets();

private:
    QString path() const { return m_home->filePath("nuvex.log"); }
    QByteArray content(const QString& path) const;
    std::unique_ptr<QTemporaryDir> m_home;
};

QByteArray TestLogFile::content(const QString& path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestLogFile::messagesOfAllThreadsComeWhole()
{
    {
        LogFile log(path());
        log.captureMessages();
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([] {
                for (int i = 0; i < 250; ++i)
                    qInfo("message %d with a tail", i);
            });
        }
        for (std::thread& thread : threads)
            thread.join();
    }
    qInfo("not in the file");
    const QList<QByteArray> lines = content(path()).split('\n');
    QCOMPARE(lines.size(), 1 + 4 * 250 + 1);
    QVERIFY(lines.first().endsWith(" App started"));
    for (int i = 1; i < lines.size() - 1; ++i)
        QVERIFY2(lines.at(i).endsWith("with a tail"), lines.at(i).constData());
}

void TestLogFile::startsANewFileAtTheLimit()
{
    LogFile log(path());
    const QString line(64 * 1024, 'x');
    for (qint64 written = 0; written < 3 * limits::logFileBytes; written += line.size())
        log.write(line);
    QVERIFY(content(path()).size() <= limits::logFileBytes + line.size());
    QVERIFY(content(path() + ".1").size() > limits::logFileBytes);
    QCOMPARE(QDir(m_home->path()).entryList(QDir::Files).size(), 2);
}

void TestLogFile::isQuietWithoutAFile()
{
    LogFile log(m_home->filePath("no/such/folder/nuvex.log"));
    log.write("nobody reads this");
    QVERIFY(QDir(m_home->path()).isEmpty());
}

void TestLogFile::messagesHaveBoundsAndNoSecrets_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("logged");
    QTest::newRow("plain") << "a=b, Signature=x"
                           << "a=b, Signature=x";
    QTest::newRow("picture")
        << "Error transferring https://h/b/o.jpg?GoogleAccessId=a@b&Expires=1&Signature=ab%2Bc - "
           "server replied: Not Found\nnext"
        << "Error transferring https://h/b/o.jpg?GoogleAccessId=a@b&Expires=1&Signature=...\nnext";
    QTest::newRow("picture that a library names") << "QImageReader: o.jpg?Signature=ab Cannot open: c+/d"
                                                  << "QImageReader: o.jpg?Signature=...";
    QTest::newRow("database") << "\"http://h/x.json?auth=secret&shallow=true\" and ?key=other\n"
                              << "\"http://h/x.json?auth=...&shallow=true\" and ?key=...\n";
    QTest::newRow("huge") << QString(9'000'000, 'x')
                          << QString(limits::messageLength, 'x') + "... (9000000 characters)";
}

// Also on their way past the file.
void TestLogFile::messagesHaveBoundsAndNoSecrets()
{
    QFETCH(QString, message);
    QFETCH(QString, logged);
    const LogCapture seen;
    {
        LogFile log(path());
        log.captureMessages();
        guardMessages();
        qInfo().noquote() << message;
    }
    QCOMPARE(seen.messages(), QStringList(logged));
    QVERIFY(content(path()).endsWith(logged.toUtf8() + '\n'));
}

QTEST_GUILESS_MAIN(TestLogFile)
#include "tst_logfile.moc"
