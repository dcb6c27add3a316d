// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

// A card in the middle of a page, in its upper part where there is room.
BGUI.Card {
    property real maximumWidth: 90 * BGUI.Theme.unit

    readonly property real freeHeight: parent ? parent.height - height : 0

    x: parent ? (parent.width - width) / 2 : 0
    y: Math.max(2 * BGUI.Theme.unit, freeHeight * 0.4)
    width: parent ? Math.min(parent.width - 4 * BGUI.Theme.unit, maximumWidth) : 0
    padding: 4 * BGUI.Theme.unit
    spacing: 2 * BGUI.Theme.unit
}
