// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/logging.h"
#include "localcloud/cloud.h"
#include "localcloud/commandline.h"
#include "localcloud/http/server.h"

#include <csignal>
#include <iostream>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using namespace localcloud;

// Each stream holds a descriptor; the usual soft limit is 1024.
void allowManyConnections()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

void serve(const Options& options)
{
    constexpr int indent = 2;
    Cloud cloud(options.data, options.tokenLife);
    Connection::Log log;
    if (options.verbose)
        log = logLine;
    Server server(cloud, options.port, log);
    const std::string base = "http://127.0.0.1:" + std::to_string(server.port());
    if (!options.deploymentFile.empty())
        replaceFile(options.deploymentFile, deploymentFile(cloud.credentials(), base).dump(indent) + "\n");
    if (!options.keyFile.empty())
        replaceFile(options.keyFile, keyFile(cloud.credentials(), base).dump(indent) + "\n");
    std::cout << base << std::endl;
    server.run();
}

} // namespace

int main(int argc, char* argv[])
{
    const Options options = readCommandLine(argc, argv);
    std::signal(SIGPIPE, SIG_IGN); // sendfile has no flag against it
    ::umask(S_IRWXG | S_IRWXO);    // keys and passwords' hashes lie in the folder
    allowManyConnections();
    try {
        serve(options);
    } catch (const std::exception& exception) {
        logLine(exception.what());
        return 1;
    }
    return 0;
}
