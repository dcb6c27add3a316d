// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/show"
import "private/menu/entries.js" as Entries
import "private/presence.js" as Presence
import "private/menu/samples.js" as Samples
import "private/show/tiles.js" as Tiles

/// A grid of pictures with names. The model has texts (addresses of pictures) or objects with the members image and
/// name. Tiles fill the given size, in the last row too; when there are more entries than tiles, an animated grid turns
/// pages.
Grid {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "GridOrganizer {
    width: 840
    height: 480
    columns: 3
    spacing: 12
    animated: true
    model: [
        { name: 'Cappuccino', image: 'qrc:///Nuvex/Components/icons/sampleCoffee.png' },
        { name: 'Garden salad', image: 'qrc:///Nuvex/Components/icons/sampleSalad.png' },
        { name: 'Pizza Margherita', image: 'qrc:///Nuvex/Components/icons/samplePizza.png' },
        { name: 'Strawberry cake', image: 'qrc:///Nuvex/Components/icons/sampleCake.png' },
        { name: 'Fresh orange juice', image: 'qrc:///Nuvex/Components/icons/sampleJuice.png' },
        { name: 'Your picture', image: 'qrc:///Nuvex/Components/icons/noImage.png' }
    ]
}"

    property var model: Samples.menu.concat([{ name: "Your picture", image: Samples.folder + "noImage.png" }])
    /// Whether tiles enter one after the other, and pages turn.
    property bool animated: true
    /// How long a page stays, in milliseconds.
    property int pageTime: 8000
    property int page: 0

    readonly property int across: Math.max(1, columns)
    readonly property real tileWidth: Math.max(0, (width - (across - 1) * spacing) / across)
    readonly property int fittingRows:
        rows > 0 ? rows : Math.max(1, Math.floor((height + spacing) / Math.max(1, tileWidth * 0.75 + spacing)))
    readonly property int count: Entries.count(model)
    readonly property int most: Math.min(200, across * fittingRows)
    readonly property int pages: Math.max(1, Math.ceil(count / most))
    /// Entries on each page: as many on the last one as on the others, or nearly.
    readonly property int pageSize: animated ? Math.ceil(count / pages) : Math.min(count, most)
    readonly property int shown: Math.max(0, Math.min(pageSize, count - page * pageSize))
    readonly property int down: Math.max(1, Math.min(shown, Math.ceil(pageSize / across)))

    width: 840
    height: 480
    columns: 3
    spacing: 12
    onPagesChanged: page = 0
    Component.onCompleted: editor = Qt.createComponent("GridOrgnanizerEditor.qml")

    Timer {
        interval: Math.max(1000, root.pageTime)
        repeat: true
        running: root.animated && root.pages > 1 && root.visible && Presence.presenceOf(root) === Presence.shown
        onTriggered: root.page = (root.page + 1) % root.pages
    }

    Repeater {
        model: root.pageSize

        GridTile {
            width: root.tileWidth
            height: root.height / root.down
            place: Tiles.placeOf(Math.min(index, root.shown - 1), root.shown, root.down, root.width, root.height,
                                 root.spacing)
            order: index
            enters: root.animated
            entry: Entries.at(root.model, index < root.shown ? root.page * root.pageSize + index : -1)
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "GridOrganizer"
        }
    }
}
