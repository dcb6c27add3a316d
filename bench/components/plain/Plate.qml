// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A text on a plate that opens from the left, some time after it comes into view.
Item {
    id: root

    property alias text: label.text
    property alias color: label.color
    property alias pixelSize: label.font.pixelSize
    property color ground: "transparent"
    property int enterTime: 1600

    Rectangle {
        id: plate
        height: parent.height
        color: root.ground
        clip: true

        Label {
            id: label
            x: root.height * 0.2
            width: root.width - 2 * x
            height: root.height
            font.bold: true
            fontSizeMode: Text.Fit
            wrapMode: Text.WordWrap
            verticalAlignment: Text.AlignVCenter
        }
    }

    SequentialAnimation {
        running: root.visible

        PropertyAction { target: plate; property: "width"; value: 0 }
        PauseAnimation { duration: root.enterTime }
        NumberAnimation { target: plate; property: "width"; to: root.width; duration: 900; easing.type: Easing.OutCubic }
    }
}
