// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A name that stands alone: it takes a second line before it shrinks, and shrinks before it ends in dots. It takes no
/// room while it is empty.
NameText {
    id: root

    /// The length of its line; the part of that for what stands beside it and takes the same share of its full size;
    /// the most that the name may be high: in pixels.
    property real line: 0
    property real beside: 0
    property real room: Infinity
    /// Whether its text reads from right to left, where it has no alignment of its own.
    readonly property bool isRightToLeft: horizontalAlignment === Text.AlignRight
    // What the share depends on.
    readonly property var basis: [text, line, beside, room, face]

    function fit() {
        share = ruler.shareOf(text, line, beside, room);
    }

    width: Math.max(0, line - beside * share)
    visible: text !== ""
    onBasisChanged: fit()
    Component.onCompleted: fit()

    NameRuler {
        id: ruler
        face: root.face
    }
}
