// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/commandline.h"

#include "localcloud/base/encoding.h"
#include "localcloud/limits.h"

#include <cstdlib>
#include <iostream>

#include <getopt.h>

namespace localcloud {

namespace {

constexpr const char* usage =
    R"(nuvex-localcloud --data DIR [OPTION...]: the cloud on one machine, on the loopback interface only.

  --data DIR               keep everything in this folder; the first start makes a service account and a bucket
  --port N                 listen on this port (8090); 0: any free one
  --write-deployment FILE  write the deployment file for nuvex
  --write-key FILE         write the service account's key file, for rclone and other clients
  --token-life SECONDS     how long an access token is valid (3600)
  --verbose                a line for each request on standard error
  --help                   this text

Prints its address on standard output as soon as it listens.
)";

[[noreturn]] void refuse(const std::string& message)
{
    std::cerr << "nuvex-localcloud: " << message << "\nSee nuvex-localcloud --help.\n";
    std::exit(2);
}

long long readNumber(const char* name, const char* text, long long least, long long most)
{
    const std::optional<long long> number = parseNumber(text);
    if (!number || *number < least || *number > most)
        refuse(std::string("--") + name + " is a number from " + std::to_string(least) + " to " +
               std::to_string(most));
    return *number;
}

} // namespace

Options readCommandLine(int argc, char* argv[])
{
    static const option known[] = {{"data", required_argument, nullptr, 'd'},
                                   {"port", required_argument, nullptr, 'p'},
                                   {"write-deployment", required_argument, nullptr, 'w'},
                                   {"write-key", required_argument, nullptr, 'k'},
                                   {"token-life", required_argument, nullptr, 't'},
                                   {"verbose", no_argument, nullptr, 'v'},
                                   {"help", no_argument, nullptr, 'h'},
                                   {nullptr, 0, nullptr, 0}};
    constexpr long long mostPort = 65535;
    Options options;
    for (int letter = 0; (letter = getopt_long(argc, argv, "", known, nullptr)) != -1;) {
        switch (letter) {
        case 'd':
            options.data = optarg;
            break;
        case 'p':
            options.port = static_cast<std::uint16_t>(readNumber("port", optarg, 0, mostPort));
            break;
        case 'w':
            options.deploymentFile = optarg;
            break;
        case 'k':
            options.keyFile = optarg;
            break;
        case 't':
            options.tokenLife =
                std::chrono::seconds(readNumber("token-life", optarg, 1, limits::tokenLife.count()));
            break;
        case 'v':
            options.verbose = true;
            break;
        case 'h':
            std::cout << usage;
            std::exit(0);
        default:
            std::exit(2); // getopt has said why
        }
    }
    if (optind < argc)
        refuse(std::string("what is \"") + argv[optind] + "\"?");
    if (options.data.empty())
        refuse("--data is missing");
    return options;
}

} // namespace localcloud
