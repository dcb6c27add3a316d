// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/picture"
import "private/menu/entries.js" as Entries
import "private/presence.js" as Presence
import "private/menu/samples.js" as Samples

/// A menu whose entries take turns: the one that is marked in the list shows its picture. The model has objects with
/// the members name, price, details, image.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "MenuSlideshow {
    width: 1120
    height: 600
    title: 'Today'
    mode: 'right'
    showTime: 6000
    model: [
        { name: 'Cappuccino', price: '3.60',
          details: 'Double shot, velvet milk', image: 'qrc:///Nuvex/Components/icons/sampleCoffee.png' },
        { name: 'Garden salad', price: '7.90',
          details: 'Leaves, tomato, cucumber, herb dressing', image: 'qrc:///Nuvex/Components/icons/sampleSalad.png' },
        { name: 'Pizza Margherita', price: '11.50',
          details: 'Tomato, mozzarella, fresh basil', image: 'qrc:///Nuvex/Components/icons/samplePizza.png' },
        { name: 'Strawberry cake', price: '4.80',
          details: 'Chocolate sponge, cream, fresh berries', image: 'qrc:///Nuvex/Components/icons/sampleCake.png' },
        { name: 'Fresh orange juice', price: '4.20',
          details: 'Pressed while you wait', image: 'qrc:///Nuvex/Components/icons/sampleJuice.png' }
    ]
}"

    property string title: "Today"
    property var model: Samples.menu
    /// Where the picture stands: "right", "left" or "top" of the list. Where there is no room beside it: on top.
    property string mode: "right"
    /// How long each entry stays marked, in milliseconds.
    property int showTime: 6000
    property color backColor: "#17212b"
    property color titleColor: "#f2b04a"
    property color textColor: "white"
    property color detailsColor: "#b7c3ce"
    property color markColor: "#a8521c"
    property int currentIndex: 0

    readonly property int count: Entries.count(model)
    readonly property bool isUpright: mode === "top" || height > width * 1.2
    readonly property real unit: Math.max(0, isUpright ? Math.min(width / 560, height / 1000)
                                                       : Math.min(height / 600, width / 1000))
    readonly property real margin: 28 * unit

    width: 1120
    height: 600
    onCountChanged: currentIndex = 0
    Component.onCompleted: editor = Qt.createComponent("MenuSlideshowEditor.qml")

    Timer {
        interval: Math.max(500, root.showTime)
        repeat: true
        running: root.count > 1 && root.visible && Presence.presenceOf(root) === Presence.shown
        onTriggered: root.currentIndex = (root.currentIndex + 1) % root.count
    }

    Rectangle {
        anchors.fill: parent
        color: root.backColor
    }

    FadingPicture {
        id: picture
        x: root.mode === "right" && !root.isUpright ? root.width - width - root.margin : root.margin
        y: root.margin
        width: Math.max(0, root.isUpright ? root.width - 2 * root.margin : root.width * 0.46)
        height: Math.max(0, root.isUpright ? root.height * 0.4 : root.height - 2 * root.margin)
        radius: 14 * root.unit
        source: Entries.text(Entries.at(root.model, root.currentIndex), "image", "image")
    }

    MenuList {
        x: root.mode === "right" || root.isUpright ? root.margin : picture.width + 2 * root.margin
        y: root.isUpright ? picture.height + 2 * root.margin : root.margin
        width: Math.max(0, root.width - x - root.margin
                           - (root.mode === "right" && !root.isUpright ? picture.width + root.margin : 0))
        height: Math.max(0, root.height - y - root.margin)
        menu: root
    }

    Component {
        id: preview

        PreviewTile {
            icon: "MenuSlideshow"
        }
    }
}
