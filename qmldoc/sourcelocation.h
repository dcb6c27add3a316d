// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <private/qqmljssourcelocation_p.h>

/// Offset of a token of the syntax tree.
inline int begin(const QQmlJS::SourceLocation& token)
{
    return int(token.begin());
}

/// Offset behind a token of the syntax tree.
inline int end(const QQmlJS::SourceLocation& token)
{
    return int(token.end());
}
