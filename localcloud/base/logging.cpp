// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/logging.h"

#include <iostream>

namespace localcloud {

void logLine(const std::string& line)
{
    std::cerr << "nuvex-localcloud: " << line << std::endl;
}

} // namespace localcloud
