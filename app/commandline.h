// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Options
{
    /// What the shell opens first in place of what its settings say.
    enum class Start { BySettings, Play, Edit, Gallery };

    Start start = Start::BySettings;
    QString project;        ///< a project's name in the workspace, or the path of a project folder
    QString profile;        ///< folder for settings and workspace; empty: the user's own
    QString deployment;     ///< deployment file; empty: the usual places
    QString logFile;        ///< empty: no log file
    QString screenshotFile; ///< empty: no screenshot
    int screenshotDelayMs = 5000;
    QString checkProject; ///< empty: no check
    bool windowed = false;
};

/// Reads the command line. Unknown positional arguments are tolerated; --help, --version and mistakes end the
/// program with a message, as is usual.
Options readCommandLine(int& argc, char** argv);

/// Points the platform's settings and data locations below the profile folder of `options`, if it names one.
/// Goes before the first application object; programs started from this one follow.
void useProfile(const Options& options);
