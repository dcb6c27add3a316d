// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/logging.h"

#include "cloud/limits.h"

// Plans, a line a file, only when asked for.
Q_LOGGING_CATEGORY(lcCloud, "nuvex.cloud", QtInfoMsg)

QString shortened(const QString& text)
{
    if (text.size() <= limits::loggedText)
        return text;
    return text.left(limits::loggedText) + QStringLiteral("... (%1 characters)").arg(text.size());
}

QString someOf(const QStringList& paths)
{
    const QString some = shortened(paths.mid(0, limits::loggedPaths).join(QStringLiteral(", ")));
    const int more = paths.size() - limits::loggedPaths;
    return more > 0 ? some + QStringLiteral(" and %1 more").arg(more) : some;
}
