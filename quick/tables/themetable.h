// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QQmlPropertyMap;

/// The theme: 91 variables named as in the Bootstrap 3 style sheets. Colours are QColor values; font sizes,
/// paddings, radii and caret widths are integers in pixels before scaling by "dp". Built once, process-wide,
/// owned here. GUI thread.
QQmlPropertyMap* themeTable();

/// `color` with its HSL lightness lowered by `amount` percentage points, not below black; hue, saturation and
/// alpha stay.
QColor darkened(const QColor& color, double amount);
