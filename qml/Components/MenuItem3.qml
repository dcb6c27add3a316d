// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/picture"

/// A menu board entry as a card with a round picture: name and description below, the price on a seal.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "MenuItem3 {
    width: 340
    height: 420
    color: 'white'
    radius: 16
    name: 'Cappuccino'
    about: 'Double shot, velvet milk'
    price: '3.60'
    image: 'qrc:///Nuvex/Components/icons/sampleCoffee.png'
    nameColor: '#a8521c'
}"

    property string name: "Cappuccino"
    property string about: "Double shot, velvet milk"
    property string price: "3.60"
    property url image: "qrc:///Nuvex/Components/icons/sampleCoffee.png"
    property color nameColor: "#a8521c"
    property color aboutColor: "#66707a"
    property color priceColor: "white"
    /// Colour of the seal, and of the ring around the picture.
    property color sealColor: "#a8521c"

    readonly property real unit: Math.max(0, Math.min(width / 340, height / 420))

    width: 340
    height: 420
    color: "white"
    radius: 16
    Component.onCompleted: editor = Qt.createComponent("MenuItem3Editor.qml")

    Rectangle {
        id: ring
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top }
        anchors.topMargin: 20 * root.unit
        width: Math.max(0, Math.min(284 * root.unit, root.height - lines.height - 44 * root.unit))
        height: width
        radius: width / 2
        color: "transparent"
        border.color: root.sealColor
        border.width: Math.max(1, 4 * root.unit)

        RoundedPicture {
            anchors.fill: parent
            anchors.margins: 10 * root.unit
            radius: width / 2
            source: root.image
        }
    }

    Rectangle {
        anchors { right: ring.right; bottom: ring.bottom }
        width: 96 * root.unit
        height: width
        radius: width / 2
        visible: root.price !== ""
        color: root.sealColor

        MenuName {
            anchors.centerIn: parent
            line: parent.width - 20 * root.unit
            room: parent.height - 28 * root.unit
            face.family: "Manrope"
            face.bold: true
            face.pixelSize: Math.max(1, Math.round(30 * root.unit))
            text: root.price
            color: root.priceColor
            horizontalAlignment: Text.AlignHCenter
        }
    }

    Column {
        id: lines
        anchors { left: parent.left; right: parent.right; top: ring.bottom }
        anchors.topMargin: 12 * root.unit
        anchors.leftMargin: 16 * root.unit
        anchors.rightMargin: 16 * root.unit
        spacing: 2 * root.unit

        MenuName {
            line: parent.width
            face.family: "Manrope"
            face.bold: true
            face.pixelSize: Math.max(1, Math.round(34 * root.unit))
            text: root.name
            color: root.nameColor
            horizontalAlignment: Text.AlignHCenter
        }

        MenuText {
            width: parent.width
            text: root.about
            color: root.aboutColor
            size: 20 * root.unit
            fontSizeMode: Text.FixedSize
            maximumLineCount: 2
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.image
        }
    }
}
