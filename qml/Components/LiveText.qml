// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A text on a plate that enters and exits: the plate opens from the left, then the words rise into it.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "LiveText {
    width: 560
    height: 110
    text: 'Live text'
    font.family: 'Open Sans'
    font.pixelSize: 56
    color: 'white'
    backColor: '#2878bd'
    borderColor: 'transparent'
    borderWidth: 0
    enterTime: 0
    exitTime: 0
}"

    property string text: "Live text"
    property alias font: label.font
    property color color: "white"
    /// Colour and border of the plate.
    property color backColor: "#2878bd"
    property color borderColor: "transparent"
    property int borderWidth: 0
    property alias horizontalAlignment: label.horizontalAlignment
    /// Milliseconds after which the text enters, from the moment its slide or page is shown.
    property int enterTime: 0
    /// Milliseconds after which it exits; not later than `enterTime`: it stays.
    property int exitTime: 0

    // Progress of the plate and, later, of the words.
    readonly property real opened: Math.min(1, appearance.progress / 0.6)
    readonly property real risen: Math.max(0, (appearance.progress - 0.4) / 0.6)

    width: 560
    height: 110
    Component.onCompleted: editor = Qt.createComponent("LiveTextEditor.qml")

    Appearance {
        id: appearance
        enterTime: root.enterTime
        exitTime: root.exitTime
        moveTime: 900
    }

    Item {
        width: root.width * root.opened
        height: root.height
        visible: root.opened > 0
        clip: true

        Rectangle {
            width: root.width
            height: root.height
            color: root.backColor
            border.color: root.borderColor
            border.width: Math.max(0, root.borderWidth)
        }

        Text {
            id: label
            x: root.height * 0.2
            y: (1 - root.risen) * root.height * 0.5
            width: Math.max(0, root.width - 2 * x)
            height: root.height
            text: root.text
            color: root.color
            opacity: root.risen
            font.family: "Open Sans"
            font.pixelSize: 56
            fontSizeMode: Text.Fit
            minimumPixelSize: 8
            wrapMode: Text.WordWrap
            verticalAlignment: Text.AlignVCenter
        }
    }

    Component {
        id: preview

        TextPreview {
            color: root.backColor
            text: root.text
            textColor: root.color
            family: root.font.family
        }
    }
}
