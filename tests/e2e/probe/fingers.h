// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Touches the program's window as a touch screen does. `touches` is a JSON list with an entry for each
/// finger that is down: [number, x, y, state], in pixels of the screen; the state is "press", "move" or
/// "release".
void touchWindow(const QByteArray& touches);
