// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/commandline.h"

/// Exit code of the event loop that asks for the whole set-up to run again in this process.
constexpr int restartCode = 1000;

/// Builds application, view, native API and shell, and runs the event loop, again as long as it ends with
/// restartCode. Takes the process's own argument vector. Returns the last exit code.
int runHost(int& argc, char** argv, const Options& options);
