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

        Item {
            width: parent.width
            height: title.height

            MenuText {
                id: title
                width: parent.width - cost.width - 16 * root.unit
                height: 44 * root.unit
                text: root.name
                color: root.nameColor
                size: 32 * root.unit
                isBold: true
            }

            MenuText {
                id: cost
                anchors.right: parent.right
                anchors.baseline: title.baseline
                text: root.price
                color: root.priceColor
                size: 32 * root.unit
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
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.image
        }
    }
}
