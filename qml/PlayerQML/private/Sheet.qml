// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A card in the middle of a page, in its upper part where there is room; on a small screen it scrolls.
BGUI.ScrollPane {
    id: root

    property real maximumWidth: 90 * BGUI.Theme.unit
    property alias spacing: card.spacing
    default property alias content: card.content

    anchors.fill: parent
    contentHeight: card.y + card.height + gap

    BGUI.Card {
        id: card
        x: (root.width - width) / 2
        y: Math.max(root.gap, (root.height - height) * 0.4)
        width: Math.min(root.width - 2 * root.gap, root.maximumWidth)
        padding: 4 * BGUI.Theme.unit
        spacing: 2 * BGUI.Theme.unit
    }
}
