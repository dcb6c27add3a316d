// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace localcloud {

/// What the command line asks for.
struct Options
{
    std::string data; ///< folder in which everything is kept
    std::uint16_t port = 8090;
    std::string deploymentFile; ///< to be written; empty: none
    std::string keyFile;        ///< likewise
    std::chrono::seconds tokenLife{3600};
    bool verbose = false;
};

/// Reads the command line. Ends the process after --help, and with exit code 2 and a message on a wrong one.
Options readCommandLine(int argc, char* argv[]);

} // namespace localcloud
