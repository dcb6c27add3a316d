// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../menu"
import "../picture"
import "../menu/entries.js" as Entries

/// One picture on the ring of a Carousel. Its name shows when it is in front.
Item {
    id: root

    property var entry
    readonly property string name: Entries.text(entry, "name")
    /// How near it is, 0 to 1.
    readonly property real depth: PathView.depth !== undefined ? PathView.depth : 1

    z: depth
    scale: 0.45 + 0.55 * depth
    opacity: Math.min(1, depth * 4)

    RoundedPicture {
        anchors.fill: parent
        anchors.bottomMargin: root.name === "" ? 0 : root.height * 0.15
        radius: height * 0.05
        source: Entries.text(root.entry, "image", "image")
    }

    Rectangle {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        width: Math.min(caption.implicitWidth + height, parent.width)
        height: root.height * 0.13
        visible: root.name !== ""
        radius: height / 2
        color: "#d9121a21"
        opacity: Math.max(0, root.depth * 4 - 3)

        MenuText {
            id: caption
            anchors.centerIn: parent
            width: Math.min(Math.ceil(implicitWidth) + 2, parent.width - parent.height * 0.6)
            text: root.name
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            color: "white"
            size: root.height * 0.075
            isBold: true
        }
    }
}
