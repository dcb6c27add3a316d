// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/commandline.h"
#include "app/logfile.h"
#include "app/messageguard.h"
#include "app/projectcheck.h"
#include "app/qmlhost.h"

#include <memory>

int main(int argc, char* argv[])
{
    const Options options = readCommandLine(argc, argv);
    useProfile(options);
    if (!options.checkProject.isEmpty())
        return runProjectCheck(argc, argv, options);

    std::unique_ptr<LogFile> log;
    if (!options.logFile.isEmpty()) {
        log = std::make_unique<LogFile>(options.logFile);
        log->captureMessages();
    }
    guardMessages();
    return runHost(argc, argv, options);
}
