// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/commandline.h"

#include <QVariantMap>

/// Initial properties of the shell's root for what the command line asks to open first:
/// "startAction" ("play", "edit", "gallery", or "" for what the settings say) and "startProject" (a name that
/// CAPI::setBaseFolder() takes; a folder outside `workDirectory` becomes a relative path from there).
QVariantMap startPage(const Options& options, const QString& workDirectory);
