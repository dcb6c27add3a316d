// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "presence.js" as Presence

/// Makes an empty container visible in the editor, on any ground: a thin frame and a name on a plate. Shown nowhere
/// else.
Item {
    id: root

    /// The container, its name and the colour of the hint.
    property Item target: parent
    property string label
    property color tint: "#3d8fd6"
    /// Whether the container has nothing else in it.
    property bool isEmpty: target.children.length === 1
    // Only numbered objects are open in the editor; numbers are given once, before completion.
    property bool isEdited: false

    anchors.fill: parent
    visible: isEdited && isEmpty
    Component.onCompleted: isEdited = Presence.isEdited(target)

    Loader {
        anchors.fill: parent
        active: root.visible
        sourceComponent: Rectangle {
            color: "transparent"
            border.color: root.tint
            border.width: 2
            radius: 4

            Rectangle {
                anchors.centerIn: parent
                width: label.width + 1.2 * label.font.pixelSize
                height: label.height * 1.3
                radius: 4
                color: "#d9121a21"
                border.color: root.tint

                Text {
                    id: label
                    anchors.centerIn: parent
                    text: root.label
                    color: "white"
                    font.family: "Open Sans"
                    font.pixelSize: Math.max(12, Math.min(24, root.height / 8))
                }
            }
        }
    }
}
