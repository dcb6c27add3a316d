// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."
import "../menu"
import "../picture"
import "../menu/entries.js" as Entries

/// One tile of a GridOrganizer: the picture, and its name on a darker foot.
Item {
    id: root

    property var entry
    /// Position in the grid; tiles enter in this order.
    property int place: 0
    /// Whether the tile enters, or is simply there.
    property bool enters: true
    readonly property real entered: enters ? appearance.progress : 1
    readonly property string name: Entries.text(entry, "name")

    opacity: entry === undefined ? 0 : entered
    scale: 0.85 + 0.15 * entered

    Appearance {
        id: appearance
        enterTime: Math.min(2000, root.place * 90)
        moveTime: 600
    }

    FadingPicture {
        anchors.fill: parent
        source: Entries.text(root.entry, "image", "image")
        radius: Math.min(root.width, root.height) * 0.05
    }

    Rectangle {
        anchors { left: parent.left; bottom: parent.bottom }
        anchors.margins: root.height * 0.04
        width: Math.min(Math.ceil(caption.implicitWidth) + 2 + 2 * caption.anchors.margins,
                        parent.width - 2 * anchors.margins)
        height: caption.height + root.height * 0.06
        radius: root.height * 0.03
        visible: root.name !== ""
        color: "#d9121a21"

        MenuText {
            id: caption
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors.margins: root.height * 0.05
            text: root.name
            color: "white"
            size: Math.max(10, root.height * 0.085)
            isBold: true
        }
    }
}
