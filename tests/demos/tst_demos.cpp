// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/dirmap.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

/// The projects that ship with the program, as far as their files go.
class tst_Demos : public QObject
{
    Q_OBJECT

private slots:
    void projects_data();
    void projects();
};

namespace {

const qint64 largestDemo = 6 * 1024 * 1024;

QDir demos()
{
    return QDir(NUVEX_TEST_DATA "/../../demos");
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every file of the project but its directory map, with revision 1.
QVariantMap filesOf(const QDir& project)
{
    QVariantMap files;
    QDirIterator entries(project.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext())
        files.insert(project.relativeFilePath(entries.next()), 1);
    files.remove("dirmap");
    return files;
}

qint64 sizeOf(const QDir& project)
{
    qint64 size = 0;
    QDirIterator entries(project.path(), QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext())
        size += QFileInfo(entries.next()).size();
    return size;
}

} // namespace

void tst_Demos::projects_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString& name : demos().entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (name != "media")
            QTest::newRow(qPrintable(name)) << demos().filePath(name);
    }
}

void tst_Demos::projects()
{
    QFETCH(QString, folder);
    const QDir project(folder);

    const QByteArray text = contents(project.filePath("dirmap"));
    QCOMPARE(text, *dirmapText(fromVariantMap(filesOf(project))));

    QVERIFY(sizeOf(project) < largestDemo);

    // The root comes first, with the size of a screen before any child.
    const QString document = QString::fromUtf8(contents(project.filePath("main.qml")));
    const QRegularExpression root("^Rectangle \\{\\s+id: page\\s+width: (\\d+)\\s+height: (\\d+)$",
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = root.match(document);
    QVERIFY(match.hasMatch());
    QCOMPARE(match.captured(1).toInt() * match.captured(2).toInt(), 1920 * 1080);
    QVERIFY2(!document.contains("function"), "a demo is plain declarations");
}

QTEST_GUILESS_MAIN(tst_Demos)
#include "tst_demos.moc"
