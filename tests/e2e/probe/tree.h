// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// What the program's window shows, as JSON: {"pid", "active": whether it has the keyboard, "page": object
/// name of the shell's current page, "cursorHidden", "items": [...]}, with an entry for each visible item
/// that has an object name, a text or an icon: "name", "text", "icon", "tip", "rect" ([x, y, width, height]
/// on the screen), "focus", "enabled", "checked", "clickable".
QByteArray windowTree();
