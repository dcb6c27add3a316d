// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/dirmap.h"
#include "qmldoc/editingsession.h"
#include "tests/support/files.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// The projects that ship with the program: their files, and how they fare in the editor.
class TestDemos : public QObject
{
    Q_OBJECT

private slots:
    void projects_data();
    void projects();
    void editorText_data() { projects_data(); }
    void editorText();
};

namespace {

const qint64 largestDemo = 6 * 1024 * 1024;

QDir demos()
{
    return QDir(NUVEX_TEST_DATA "/../../demos");
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

/// A copy of the project's folder, its files by reference, with `document` as its main document.
void copyProject(const QDir& project, const QDir& copy, const QByteArray& document)
{
    for (const QString& name : project.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        QVERIFY(QFile::link(project.filePath(name), copy.filePath(name)));
    QFile main(copy.filePath("main.qml"));
    QVERIFY(main.remove() && main.open(QIODevice::WriteOnly));
    main.write(document);
}

} // namespace

void TestDemos::projects_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString& name : demos().entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (name != "media")
            QTest::newRow(qPrintable(name)) << demos().filePath(name);
    }
}

void TestDemos::projects()
{
    QFETCH(QString, folder);
    const QDir project(folder);

    const QByteArray text = contents(project.filePath("dirmap"));
    QCOMPARE(text, *dirmapText(fromVariantMap(filesOf(project))));

    QVERIFY(sizeOf(project) < largestDemo);

    // The root comes first, with the size of a screen before any child.
    const QString document = QString::fromUtf8(contents(project.filePath("main.qml")));
    const QRegularExpression root("^Rectangle \\{\\s+id: root\\s+width: (\\d+)\\s+height: (\\d+)$",
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = root.match(document);
    QVERIFY(match.hasMatch());
    QCOMPARE(match.captured(1).toInt() * match.captured(2).toInt(), 1920 * 1080);
    QVERIFY2(!document.contains("function"), "a demo is plain declarations");
}

/// The text that the editor shows instead of the document names every object, and plays without a warning.
void TestDemos::editorText()
{
    QFETCH(QString, folder);
    EditingSession session([](const QString&, const QString&) { return true; });
    session.setSource(QString::fromUtf8(contents(folder + "/main.qml")));
    const QString generated = session.generateEditor();
    QVERIFY(session.getMap().size() > 5);
    QCOMPARE(generated.count("property int element: "), session.getMap().size());

    const QTemporaryDir copy, profile;
    copyProject(folder, copy.path(), generated.toUtf8());
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(NUVEX_PROGRAM, {"--profile", profile.path(), "--play", copy.path(), "--screenshot",
                                  profile.filePath("picture.png"), "--after", "1"});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString log = QString::fromUtf8(program.readAll());
    QVERIFY2(log.contains("page PlayerPage") && !log.contains(".qml:"), qPrintable(log));
}

QTEST_GUILESS_MAIN(TestDemos)
#include "tst_demos.moc"
