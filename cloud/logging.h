// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>
#include <QStringList>

Q_DECLARE_LOGGING_CATEGORY(lcCloud)

/// A text from outside for a line of the log, which is not longer for it than limits::loggedText.
QString shortened(const QString& text);

/// The first of `paths`, in words, and how many more there are.
QString someOf(const QStringList& paths);
