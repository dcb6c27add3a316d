// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

struct Options;
class QQuickView;

/// After the delay of `options`, saves what the window shows to the file of `options` and ends the event
/// loop: with 0, or with 1 and a message when the picture could not be saved or the project to play was not
/// loaded.
void saveScreenshotLater(QQuickView& view, const Options& options);
