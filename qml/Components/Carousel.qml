// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/show"
import "private/menu/entries.js" as Entries
import "private/presence.js" as Presence
import "private/menu/samples.js" as Samples

/// Pictures on a turning ring. The model has texts (addresses of pictures) or objects with the members image and name.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Carousel {
    width: 960
    height: 480
    pathItemCount: 5
    showTime: 4000
    model: [
        { name: 'Cappuccino', image: 'qrc:///Nuvex/Components/icons/sampleCoffee.png' },
        { name: 'Garden salad', image: 'qrc:///Nuvex/Components/icons/sampleSalad.png' },
        { name: 'Pizza Margherita', image: 'qrc:///Nuvex/Components/icons/samplePizza.png' },
        { name: 'Strawberry cake', image: 'qrc:///Nuvex/Components/icons/sampleCake.png' },
        { name: 'Fresh orange juice', image: 'qrc:///Nuvex/Components/icons/sampleJuice.png' }
    ]
}"

    property var model: Samples.menu
    /// How many pictures are on the ring at a time.
    property int pathItemCount: 5
    /// How long each stays in front, in milliseconds.
    property int showTime: 4000
    property alias currentIndex: ring.currentIndex
    property alias count: ring.count

    width: 960
    height: 480
    Component.onCompleted: editor = Qt.createComponent("CarouselEditor.qml")

    Timer {
        interval: Math.max(500, root.showTime)
        repeat: true
        running: ring.count > 1 && root.visible && Presence.presenceOf(root) === Presence.shown
        onTriggered: ring.incrementCurrentIndex()
    }

    PathView {
        id: ring
        anchors.fill: parent
        interactive: false
        model: root.model
        pathItemCount: Math.max(1, Math.min(15, root.pathItemCount))
        preferredHighlightBegin: 0.5
        preferredHighlightEnd: 0.5
        highlightRangeMode: PathView.StrictlyEnforceRange
        highlightMoveDuration: 900
        delegate: CarouselCard {
            width: Math.min(root.width * 0.5, root.height * 0.95)
            height: root.height * 0.78
            entry: Entries.of(model)
        }
        // Qt's path does not survive lengths beyond reason.
        path: CarouselPath {
            width: Math.max(1, Math.min(20000, root.width))
            height: Math.max(1, Math.min(20000, root.height))
            isOpen: Math.min(ring.count, ring.pathItemCount) === 2
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Carousel"
        }
    }
}
