// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Relative paths as an archive, a directory map or a peer could send them, none of which may be followed.
inline QStringList hostilePaths()
{
    const QString longPart(256, QLatin1Char('p'));
    return {"c:x",
            QString(128, QChar(0xfc)),
            "",
            ".",
            "..",
            "../out",
            "a/../../out",
            "a/../b",
            "a/..",
            "/etc/passwd",
            "//host/x",
            "a//b",
            "a/./b",
            "./a",
            "a/",
            "/",
            "C:\\out",
            "C:/out",
            "a\\b",
            "a\nb",
            "a\tb",
            "\x7f",
            QString(QChar(0)),
            longPart,
            "a/" + longPart,
            QString("a/").repeated(64) + "a",
            QString("abc/").repeated(256) + "a"};
}
