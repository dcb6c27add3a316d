// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

/// What a run of QML source is. The values are the keys of the highlighter's colour table.
enum class TokenClass {
    Plain = 1,
    Comment = 2,
    Number = 3,
    String = 4, ///< string and regular-expression literals
    Operator = 5,
    Keyword = 6,
    BuiltIn = 7, ///< name built into JavaScript
    Type = 15,
    Property = 16,
};
