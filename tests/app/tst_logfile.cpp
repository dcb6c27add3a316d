// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/limits.h"
#include "app/logfile.h"

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

QTEST_GUILESS_MAIN(TestLogFile)
#include "tst_logfile.moc"
