// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/menu"
import "private/menu/entries.js" as Entries
import "private/menu/samples.js" as Samples

/// A price list: title, and a line with name, price and details for each entry of the model (objects with the members
/// name, price, details and, for a mark behind the name, icon: a name of the icon table such as "fa-leaf"). A long name
/// takes a second line; where that is not enough, the whole list stands in a smaller size. When the list is longer than
/// its place, it turns pages.
ListView {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "CartaMenu {
    width: 600
    height: 640
    title: 'Our menu'
    showDetails: true
    model: [
        { name: 'Cappuccino', price: '3.60', details: 'Double shot, velvet milk' },
        { name: 'Garden salad', price: '7.90', details: 'Leaves, tomato, cucumber, herb dressing' },
        { name: 'Pizza Margherita', price: '11.50', details: 'Tomato, mozzarella, fresh basil' },
        { name: 'Strawberry cake', price: '4.80', details: 'Chocolate sponge, cream, fresh berries' },
        { name: 'Fresh orange juice', price: '4.20', details: 'Pressed while you wait' }
    ]
}"

    property string title: "Our menu"
    property bool showDetails: true
    property alias titleFont: titleStyle.font
    property alias nameFont: nameStyle.font
    property alias priceFont: priceStyle.font
    property alias detailsFont: detailsStyle.font
    property color titleColor: "#f2b04a"
    property color nameColor: "white"
    property color priceColor: "#f2b04a"
    property color detailsColor: "#b7c3ce"
    /// Colour of the marks.
    property color iconColor: "#8fb85f"
    property color backColor: "#17212b"
    /// How long a page stays, in milliseconds, when the list does not fit.
    property int pageTime: 8000

    // Letters and distances shrink where there is no room for a few lines.
    readonly property real unit: Math.max(0.3, Math.min(1, width / 420, height / 400))

    width: 600
    height: 640
    leftMargin: 36 * unit
    rightMargin: 36 * unit
    bottomMargin: 24 * unit
    spacing: 18 * unit
    clip: true
    interactive: false
    model: Samples.menu
    headerPositioning: ListView.OverlayHeader
    header: CartaTitle {
        menu: root
    }
    delegate: CartaLine {
        menu: root
        entry: Entries.of(model)
        share: pages.share
        most: pages.room
        opacity: pages.has(index) ? pages.shade : 0
        LayoutMirroring.enabled: pages.fromRight
        LayoutMirroring.childrenInherit: true
    }
    footer: Item {
        height: pages.tail
    }
    Component.onCompleted: editor = Qt.createComponent("CartaMenuEditor.qml")

    CartaPages {
        id: pages
        menu: root
    }

    // They only hold the fonts, so that a document can set one part of a font and keep the others.
    TextMetrics {
        id: titleStyle
        font.family: "Lobster Two"
        font.bold: true
        font.italic: true
        font.pixelSize: 60
    }

    TextMetrics {
        id: nameStyle
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 30
    }

    TextMetrics {
        id: priceStyle
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 30
    }

    TextMetrics {
        id: detailsStyle
        font.family: "Open Sans"
        font.pixelSize: 20
    }

    Rectangle {
        parent: root
        anchors.fill: parent
        z: -1
        color: root.backColor
    }

    Component {
        id: preview

        PreviewTile {
            icon: "CartaMenu"
        }
    }
}
