// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

/// Runs the test documents of `folder` as Quick tests called `name`, each in an engine prepared as start-up
/// does, with a ComponentFixture. What `makeServer` returns is published as "server". Returns the exit code.
int runQuickTests(int argc, char** argv, const char* name, const char* folder,
                  const std::function<QObject*()>& makeServer = {});
