// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// bench_archive [FOLDER]: packing and unpacking of 200 MB of media and of 10 000 small files, against zip,
// unzip and the bare library, alternately in one run. FOLDER should be on a tmpfs; the default is /dev/shm.
// Prints a table in Markdown.

#include "api/archivepack.h"
#include "api/archivereader.h"
#include "api/projectimport.h"
#include "base/jobcontrol.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>

#include <quazip/JlCompress.h>

#include <algorithm>
#include <functional>

namespace {

constexpr int rounds = 6; // the first one is dropped

struct Contender
{
    QString name;
    std::function<bool()> run;
    QVector<double> milliseconds;
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

bool tool(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitCode() == 0;
}

bool pack(const QString& zip, const QString& folder)
{
    JobControl control;
    return bool(packArchive(zip, folder, control));
}

bool import(const QString& zip, const QString& work)
{
    JobControl control;
    return bool(importArchive(zip, work, control).outcome);
}

void write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the data");
}

QByteArray noise(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(bytes.data()), size / 4);
    return bytes;
}

void makeMedia(const QString& folder)
{
    for (int i = 0; i < 5; ++i)
        write(QStringLiteral("%1/videos/clip%2.mp4").arg(folder).arg(i), noise(20'000'000));
    for (int i = 0; i < 100; ++i)
        write(QStringLiteral("%1/images/picture%2.jpg").arg(folder).arg(i), noise(1'000'000));
}

void makeSmallFiles(const QString& folder)
{
    for (int i = 0; i < 10'000; ++i) {
        const QByteArray line =
            "Text { x: " + QByteArray::number(i) + "; text: \"" + noise(24).toBase64() + "\" }\n";
        write(QStringLiteral("%1/part%2/item%3.qml").arg(folder).arg(i % 100).arg(i),
              line.repeated(1 + i % 40));
    }
}

// Runs all contenders in turn; `clear` makes the same start for each.
void measure(QVector<Contender>& contenders, const std::function<void()>& clear)
{
    for (int round = 0; round < rounds; ++round) {
        for (Contender& contender : contenders) {
            clear();
            QElapsedTimer clock;
            clock.start();
            if (!contender.run())
                qFatal("%s failed", qPrintable(contender.name));
            if (round > 0)
                contender.milliseconds.append(double(clock.nsecsElapsed()) / 1e6);
        }
    }
}

// The last contender is what the ratios refer to.
void print(const QString& title, const QVector<Contender>& contenders)
{
    QTextStream out(stdout);
    const double base = median(contenders.constLast().milliseconds);
    out << "\n| " << title << " | median ms | min | max | ratio |\n|---|---:|---:|---:|---:|\n";
    for (const Contender& c : contenders) {
        const auto [low, high] = std::minmax_element(c.milliseconds.cbegin(), c.milliseconds.cend());
        out << "| " << c.name << " | " << QString::number(median(c.milliseconds), 'f', 1) << " | "
            << QString::number(*low, 'f', 1) << " | " << QString::number(*high, 'f', 1) << " | "
            << QString::number(median(c.milliseconds) / base, 'f', 2) << " |\n";
    }
}

void compare(const QString& title, const QString& folder)
{
    const QString parent = QFileInfo(folder).path();
    const QString zip = parent + "/packed.zip";
    const QString target = parent + "/unpacked";
    const QString suffixes = QStringLiteral(".mp4:.jpg:.png");
    QVector<Contender> packers{
        {"Nuvex", [&] { return pack(zip, folder); }, {}},
        {"zip",
         [&] {
             return tool("zip", {"-q", "-r", zip, "."}, folder);
         },
         {}},
        {"zip -n " + suffixes,
         [&] {
             return tool("zip", {"-q", "-r", "-n", suffixes, zip, "."}, folder);
         },
         {}},
        {"JlCompress::compressDir", [&] { return JlCompress::compressDir(zip, folder); }, {}},
    };
    measure(packers, [&] { QFile::remove(zip); });
    print("Pack " + title, packers);

    pack(zip, folder);
    QVector<Contender> extractors{
        {"Nuvex, with all checks", [&] { return import(zip, target); }, {}},
        {"Nuvex, checks alone", [&] { return bool(ArchiveReader(zip).open()); }, {}},
        {"Nuvex, name alone", [&] { return !archiveProjectName(zip).isEmpty(); }, {}},
        {"unzip",
         [&] {
             return tool("unzip", {"-q", zip, "-d", target}, parent);
         },
         {}},
        {"JlCompress::extractDir", [&] { return !JlCompress::extractDir(zip, target).isEmpty(); }, {}},
    };
    measure(extractors, [&] {
        QDir(target).removeRecursively();
        QDir().mkpath(target);
    });
    print("Extract " + title, extractors);
    QDir(target).removeRecursively();
    QFile::remove(zip);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QString base = app.arguments().value(1, QStringLiteral("/dev/shm"));
    const QTemporaryDir dir(base + "/bench-archive-XXXXXX");
    if (!dir.isValid())
        qFatal("cannot write to %s", qPrintable(base));
    makeMedia(dir.filePath("media"));
    compare("200 MB of media", dir.filePath("media"));
    makeSmallFiles(dir.filePath("small"));
    compare("10 000 small files", dir.filePath("small"));
}
