// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void endWithMessage(FILE* stream, const QString& message, int code)
{
    std::fputs(qPrintable(message), stream);
    std::exit(code);
}

int milliseconds(const QString& seconds)
{
    bool ok = false;
    const double value = seconds.toDouble(&ok);
    if (!ok || value < 0 || value > 86400)
        endWithMessage(stderr, QStringLiteral("--after takes seconds, from 0 to 86400\n"), 2);
    return qRound(value * 1000);
}

} // namespace

Options readCommandLine(int& argc, char** argv)
{
    // The parser needs an application for its texts; the host makes its own ones later.
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nuvex"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NUVEX_VERSION));

    const QCommandLineOption profile("profile", "Keep settings and workspace below DIR.", "DIR");
    const QCommandLineOption deployment("deployment", "Use the cloud described in FILE.", "FILE");
    const QCommandLineOption play("play", "Play PROJECT (a name or a folder).", "PROJECT");
    const QCommandLineOption edit("edit", "Edit PROJECT (a name or a folder).", "PROJECT");
    const QCommandLineOption gallery("gallery", "Show every widget and component.");
    const QCommandLineOption windowed("windowed", "Stay in a window.");
    const QCommandLineOption log("log", "Append the log to FILE.", "FILE");
    const QCommandLineOption screenshot("screenshot", "Save what the window shows to FILE, then quit.",
                                        "FILE");
    const QCommandLineOption after("after", "Take the screenshot after SECONDS.", "SECONDS", "5");
    const QCommandLineOption check("check", "List what is wrong with PROJECT, without a window.", "PROJECT");

    QCommandLineParser parser;
    parser.setApplicationDescription("Digital signage: plays and edits screens made in QML.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({profile, deployment, play, edit, gallery, windowed, log, screenshot, after, check});
    if (!parser.parse(QCoreApplication::arguments()))
        endWithMessage(stderr, parser.errorText() + "\n\n" + parser.helpText(), 2);
    if (parser.isSet("help"))
        endWithMessage(stdout, parser.helpText(), 0);
    if (parser.isSet("version"))
        endWithMessage(stdout, "nuvex " NUVEX_VERSION "\n", 0);

    Options options;
    if (parser.isSet(play) || parser.isSet(edit)) {
        options.start = parser.isSet(play) ? Options::Start::Play : Options::Start::Edit;
        options.project = parser.value(parser.isSet(play) ? play : edit);
    } else if (parser.isSet(gallery)) {
        options.start = Options::Start::Gallery;
    }
    options.profile = parser.value(profile);
    options.deployment = parser.value(deployment);
    options.logFile = parser.value(log);
    options.screenshotFile = parser.value(screenshot);
    options.screenshotDelayMs = milliseconds(parser.value(after));
    options.checkProject = parser.value(check);
    options.windowed = parser.isSet(windowed);
    return options;
}

void useProfile(const Options& options)
{
    if (options.profile.isEmpty())
        return;
    const QDir profile(QDir(options.profile).absolutePath());
    for (const char* place : {"config", "data", "cache"}) {
        profile.mkpath(place);
        const QByteArray variable = "XDG_" + QByteArray(place).toUpper() + "_HOME";
        qputenv(variable.constData(), QFile::encodeName(profile.filePath(place)));
    }
}
