// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "entries.js" as Entries

/// One picture on the ring of a Carousel. Its name shows when it is in front.
Item {
    id: root

    property var entry
    /// How near it is, 0 to 1.
    readonly property real depth: PathView.depth !== undefined ? PathView.depth : 1

    z: depth
    scale: 0.45 + 0.55 * depth
    opacity: Math.min(1, depth * 4)

    RoundedPicture {
        anchors.fill: parent
        anchors.bottomMargin: caption.height
        radius: height * 0.05
        source: Entries.text(root.entry, "image", "image")
    }

    MenuText {
        id: caption
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: text === "" ? 0 : root.height * 0.13
        text: Entries.text(root.entry, "name")
        color: "#2878bd"
        opacity: Math.max(0, root.depth * 4 - 3)
        size: root.height * 0.08
        isBold: true
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignBottom
    }
}
