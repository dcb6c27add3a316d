// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

struct Deployment;

/// Registers the program's native QML types ("Nuvex.Native": 1.0 for documents, 1.1 for the program's own
/// pages) and the singleton Deployment ("Nuvex.Deployment" 1.0), which shows `deployment`. Once a process;
/// further calls do nothing.
void registerNativeTypes(const Deployment& deployment);
