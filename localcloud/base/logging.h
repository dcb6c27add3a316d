// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace localcloud {

/// Writes a line to standard error, with the program's name before it. Never give it a secret.
void logLine(const std::string& line);

} // namespace localcloud
