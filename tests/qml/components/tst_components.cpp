// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/quickmain.h"

int main(int argc, char** argv)
{
    return runQuickTests(argc, argv, "components", QUICK_TEST_SOURCE_DIR);
}
