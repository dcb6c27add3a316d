// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/picture"

/// A menu board entry as a wide card: the picture at the left, name, description, calories and price at its side.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "MenuItem2 {
    width: 680
    height: 230
    color: '#212c37'
    radius: 16
    name: 'Pizza Margherita'
    about: 'Tomato, mozzarella, fresh basil, olive oil'
    calories: '780 kcal'
    price: '11.50'
    image: 'qrc:///Nuvex/Components/icons/samplePizza.png'
}"

    property string name: "Pizza Margherita"
    property string about: "Tomato, mozzarella, fresh basil, olive oil"
    property string calories: "780 kcal"
    property string price: "11.50"
    property url image: "qrc:///Nuvex/Components/icons/samplePizza.png"
    property color nameColor: "white"
    property color aboutColor: "#b7c3ce"
    property color priceColor: "#f2b04a"

    readonly property real unit: Math.max(0, Math.min(width / 680, height / 230))

    width: 680
    height: 230
    color: "#212c37"
    radius: 16
    Component.onCompleted: editor = Qt.createComponent("MenuItem2Editor.qml")

    // Where the name reads from right to left, the card does.
    Item {
        anchors.fill: parent
        LayoutMirroring.enabled: title.isRightToLeft
        LayoutMirroring.childrenInherit: true

        RoundedPicture {
            id: picture
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
            anchors.margins: 14 * root.unit
            width: Math.min(height * 1.15, root.width * 0.4)
            radius: 10 * root.unit
            source: root.image
        }

        MenuName {
            id: title
            anchors { left: picture.right; top: parent.top }
            anchors.leftMargin: 26 * root.unit
            anchors.topMargin: 24 * root.unit
            line: root.width - picture.width - 66 * root.unit
            room: root.height - 98 * root.unit
            face.family: "Manrope"
            face.bold: true
            face.pixelSize: Math.max(1, Math.round(36 * root.unit))
            text: root.name
            color: root.nameColor
        }

        MenuText {
            anchors { left: title.left; right: title.right; top: title.bottom; bottom: cost.top }
            anchors.topMargin: 6 * root.unit
            text: root.about
            color: root.aboutColor
            size: 22 * root.unit
            fontSizeMode: Text.FixedSize
            maximumLineCount: 2
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignLeft
        }

        MenuText {
            id: cost
            anchors { right: title.right; bottom: parent.bottom }
            anchors.bottomMargin: 22 * root.unit
            text: root.price
            color: root.priceColor
            size: 38 * root.unit * title.share
            isBold: true
        }

        MenuText {
            anchors { left: title.left; right: cost.left; baseline: cost.baseline }
            anchors.rightMargin: 16 * root.unit
            text: root.calories
            color: root.aboutColor
            size: 20 * root.unit
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.image
        }
    }
}
