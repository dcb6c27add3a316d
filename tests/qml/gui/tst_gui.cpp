// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/syntaxhighlighter.h"
#include "tests/support/quickmain.h"

#include <QQmlEngine>

int main(int argc, char** argv)
{
    qmlRegisterType<SyntaxHighlighter>("Nuvex.Native", 1, 0, "QMLSyntaxHighlighter");
    return runQuickTests(argc, argv, "gui", QUICK_TEST_SOURCE_DIR);
}
