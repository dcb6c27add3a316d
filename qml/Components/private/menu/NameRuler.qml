// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Tells in which size a name stands uncut in two lines at the most. Never seen.
NameText {
    id: root

    /// The shares of the full size that are tried, and the last of them.
    readonly property var shares: [1, 0.9, 0.8, 0.7, 0.6]
    readonly property real least: shares[shares.length - 1]

    /// The largest share of the full size at which `name` is not cut; the least where it always is. It stands in a line
    /// of `line` pixels beside something that takes the same share of `beside` pixels, and may be `height` pixels high.
    function shareOf(name, line, beside, height) {
        text = name;
        return shares.find(tried => fits(tried, line - beside * tried, height)) || least;
    }

    /// Whether `name` is written from right to left.
    function readsFromRight(name) {
        text = name;
        return horizontalAlignment === Text.AlignRight;
    }

    function fits(tried, room, height) {
        share = tried;
        width = Math.max(1, room);
        return !truncated && contentWidth <= width && contentHeight <= height;
    }

    visible: false
    wrapMode: Text.WordWrap
    elide: Text.ElideNone
}
