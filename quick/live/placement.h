// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QQuickItem;

/// What decides where an item stands, besides its own x, y, width and height.
struct Placement
{
    /// "row", "column", "grid", "flow", "layout", "list", "anchors"; "" for nothing.
    QString by;
    /// Which of the item's own values have no effect.
    bool x = false;
    bool y = false;
    bool width = false;
    bool height = false;
};

/// How `item` is placed at present.
Placement placementOf(const QQuickItem& item);
