// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

/// Whether a second application object can be built in this process: not once a web view was shown.
bool restartableInPlace();

/// Replaces this process by a fresh one of the same program and arguments. Returns only on failure.
void replaceProcess(char** argv);
