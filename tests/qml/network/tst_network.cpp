// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "networkfixture.h"
#include "tests/support/quickmain.h"

int main(int argc, char** argv)
{
    return runQuickTests(argc, argv, "network", QUICK_TEST_SOURCE_DIR, [] { return new NetworkFixture; });
}
