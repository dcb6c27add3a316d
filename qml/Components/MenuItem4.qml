// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/picture"

/// A menu board entry as one numbered line: number, small picture, name with calories below, dots, price.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "MenuItem4 {
    width: 760
    height: 104
    color: '#212c37'
    radius: 12
    number: '1'
    name: 'Fresh orange juice'
    calories: '112 kcal'
    price: '4.20'
    image: 'qrc:///Nuvex/Components/icons/sampleJuice.png'
}"

    property string number: "1"
    property string name: "Fresh orange juice"
    property string calories: "112 kcal"
    property string price: "4.20"
    property url image: "qrc:///Nuvex/Components/icons/sampleJuice.png"
    property color nameColor: "white"
    property color caloriesColor: "#b7c3ce"
    property color priceColor: "#f2b04a"
    property color numberColor: "#1d2630"

    readonly property real unit: Math.max(0, Math.min(width / 760, height / 104))

    width: 760
    height: 104
    color: "#212c37"
    radius: 12
    Component.onCompleted: editor = Qt.createComponent("MenuItem4Editor.qml")

    // The price in full size: the name has the room that this leaves.
    TextMetrics {
        id: fullPrice
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: Math.max(1, Math.round(36 * root.unit))
        text: root.price
    }

    // Where the name reads from right to left, the card does.
    Item {
        anchors.fill: parent
        LayoutMirroring.enabled: title.isRightToLeft
        LayoutMirroring.childrenInherit: true

        Row {
            id: head
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: 18 * root.unit
            spacing: 18 * root.unit

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 52 * root.unit
                height: width
                radius: width / 2
                visible: root.number !== ""
                color: root.priceColor

                MenuText {
                    anchors.fill: parent
                    anchors.margins: 6 * root.unit
                    text: root.number
                    color: root.numberColor
                    size: 28 * root.unit
                    isBold: true
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }

            RoundedPicture {
                anchors.verticalCenter: parent.verticalCenter
                width: 76 * root.unit
                height: width
                radius: width / 2
                visible: root.image != ""
                source: root.image
            }
        }

        Column {
            id: lines
            anchors { left: head.right; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: 20 * root.unit

            MenuName {
                id: title
                line: root.width - head.width - 84 * root.unit
                beside: fullPrice.width
                room: root.height - (root.calories === "" ? 12 : 40) * root.unit
                face.family: "Manrope"
                face.bold: true
                face.pixelSize: Math.max(1, Math.round(32 * root.unit))
                text: root.name
                color: root.nameColor
            }

            MenuText {
                id: calories
                width: title.width
                text: root.calories
                color: root.caloriesColor
                size: 19 * root.unit
                horizontalAlignment: Text.AlignLeft
            }
        }

        Leader {
            anchors { left: lines.left; right: cost.left; bottom: cost.bottom }
            anchors.margins: 12 * root.unit
            anchors.leftMargin: 12 * root.unit + Math.max(title.contentWidth, calories.contentWidth)
            size: 32 * root.unit
            color: root.caloriesColor
        }

        MenuText {
            id: cost
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            anchors.rightMargin: 26 * root.unit
            text: root.price
            color: root.priceColor
            size: 36 * root.unit * title.share
            isBold: true
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.image
        }
    }
}
