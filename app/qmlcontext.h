// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class CAPI;
class QQmlEngine;
class QSize;
struct Deployment;

// What every QML document of this program relies on, set up in one place for the program, the project check
// and the tests. GUI thread.

/// Gives the application its names, which are the scope of its settings and data. Goes before the first CAPI.
void setApplicationNames();

/// Registers the native QML types and makes the modules in the program's resources importable in `engine`.
/// Types are registered once a process: the first call's `deployment` is what the singleton Deployment shows.
void prepareEngine(QQmlEngine& engine, const Deployment& deployment);

/// Registers the fonts compiled into the program, as the shell does when it starts.
void loadProgramFonts();

/// Density factor ("dp") of a screen of `dotsPerInch`: 1 at up to 125 dpi, growing in proportion.
double densityFactor(double dotsPerInch);

/// The context properties that all documents see: `capi`, the tables of icons and theme, the shaders, the
/// folder of pictures, and the screen: its available size in px and its density.
///
/// They hold from construction on, and must go before `capi` does; documents that use them go before this.
class QmlContext
{
public:
    QmlContext(QQmlEngine& engine, CAPI& capi, const QSize& available, double dotsPerInch);
    ~QmlContext();
    Q_DISABLE_COPY(QmlContext)
};
