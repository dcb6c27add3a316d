// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QQuickItem;

/// Lets the items of a window that wait to be laid out do so now, instead of before its next frame. False
/// when `root`, an item of that window, or one inside it does not come to its end within limits::layouts, as
/// when a row's item is to be wider than the row: the window would hang over it. It must then go before the
/// next frame. True without a window.
bool settleLayouts(const QQuickItem& root);
