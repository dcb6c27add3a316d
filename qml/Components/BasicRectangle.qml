// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A plain rectangle.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicRectangle {
    width: 240
    height: 160
    color: '#2878bd'
    radius: 8
}"

    width: 240
    height: 160
    color: "#2878bd"
    radius: 8
    Component.onCompleted: editor = Qt.createComponent("BasicRectangleEditor.qml")

    Component {
        id: preview

        PreviewTile {
            Rectangle {
                anchors.fill: parent
                anchors.margins: 8
                radius: 4
                color: root.color
                border.color: root.border.color
                border.width: root.border.width > 0 ? 1 : 0
            }
        }
    }
}
