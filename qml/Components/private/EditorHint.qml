// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "presence.js" as Presence

/// Makes an empty container visible in the editor: a thin frame and a name. Shown nowhere else.
Item {
    id: root

    /// The container, its name and the colour of the hint.
    property Item target: parent
    property string label
    property color tint: "#8096a8"
    /// Whether the container has nothing else in it.
    property bool isEmpty: target.children.length === 1
    // Only numbered objects are open in the editor; numbers are given once, before completion.
    property bool isEdited: false

    anchors.fill: parent
    z: -1
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

            Text {
                anchors.centerIn: parent
                text: root.label
                color: root.tint
                font.family: "Open Sans"
                font.pixelSize: Math.max(12, Math.min(32, parent.height / 8))
            }
        }
    }
}
