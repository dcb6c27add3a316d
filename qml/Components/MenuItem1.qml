// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/picture"

/// A menu board entry as a card: the picture above, name, description and price below.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "MenuItem1 {
    width: 400
    height: 440
    color: 'white'
    radius: 16
    name: 'Garden salad'
    about: 'Leaves, tomato, cucumber, herb dressing'
    price: '7.90'
    image: 'qrc:///Nuvex/Components/icons/sampleSalad.png'
}"

    property string name: "Garden salad"
    property string about: "Leaves, tomato, cucumber, herb dressing"
    property string price: "7.90"
    property url image: "qrc:///Nuvex/Components/icons/sampleSalad.png"
    property color nameColor: "#1d2630"
    property color aboutColor: "#5c6874"
    property color priceColor: "#a8521c"

    // Everything grows with the card.
    readonly property real unit: Math.max(0, Math.min(width / 400, height / 440))

    width: 400
    height: 440
    color: "white"
    radius: 16
    Component.onCompleted: editor = Qt.createComponent("MenuItem1Editor.qml")

    // The price in full size: the name has the room that this leaves.
    TextMetrics {
        id: fullPrice
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: Math.max(1, Math.round(32 * root.unit))
        text: root.price
    }

    RoundedPicture {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: lines.top }
        anchors.margins: 14 * root.unit
        radius: 10 * root.unit
        source: root.image
    }

    Column {
        id: lines
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors.margins: 22 * root.unit
        spacing: 4 * root.unit
        LayoutMirroring.enabled: title.isRightToLeft
        LayoutMirroring.childrenInherit: true

        Item {
            width: parent.width
            height: title.height

            MenuName {
                id: title
                anchors.left: parent.left
                line: parent.width - 16 * root.unit
                beside: fullPrice.width
                face: fullPrice.font
                text: root.name
                color: root.nameColor
            }

            MenuText {
                id: cost
                anchors { right: parent.right; baseline: title.baseline }
                text: root.price
                color: root.priceColor
                size: 32 * root.unit * title.share
                isBold: true
            }
        }

        MenuText {
            width: parent.width
            text: root.about
            color: root.aboutColor
            size: 20 * root.unit
            fontSizeMode: Text.FixedSize
            maximumLineCount: 2
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignLeft
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.image
        }
    }
}
