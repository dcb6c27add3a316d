// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/commandline.h"

#include <QStringList>

class QQmlEngine;

/// What is wrong with the project in `folder`: "file:line: message" for every document that does not compile
/// (syntax, missing components), every media file that is not there and every font that is not known.
/// The engine's import paths and the program's fonts must be set up.
QStringList checkProject(QQmlEngine& engine, const QString& folder);

/// Checks the project that `options` names, without a window, and prints what is wrong. Returns the exit
/// code: 0 when nothing is, else 1.
int runProjectCheck(int& argc, char** argv, const Options& options);
