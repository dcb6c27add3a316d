// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QQuickWindow;

/// Lets the items of `window` that wait to be laid out do so now, instead of before its next frame. False
/// when that does not end within limits::layouts of one item, as when a row's item is to be wider than the
/// row: the window would hang over it. Whatever causes it must then go before the next frame.
bool settleLayouts(QQuickWindow& window);
