// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What is dragged over the canvas: components from the palette, pictures and videos from other programs. The item
/// that will take it is marked.
DropArea {
    id: root

    property var desk
    property Item frame

    function mark(drag) {
        frame.marks.dropTarget = desk.insertion.parentAt(Qt.point(drag.x, drag.y));
    }

    function take(drop) {
        const point = Qt.point(drop.x, drop.y);
        if (drop.source && drop.source.componentType !== undefined)
            desk.insertion.drop(drop.source.componentType, point);
        else if (drop.hasUrls)
            desk.fileDrop.take(drop.urls, point, aspectOf);
    }

    // Width by height of the picture at `url`; of one that cannot be read, as of most.
    function aspectOf(url) {
        picture.source = url;
        const aspect = picture.status === Image.Ready ? picture.implicitWidth / picture.implicitHeight : 3 / 2;
        picture.source = "";
        return aspect;
    }

    enabled: frame !== null
    onPositionChanged: mark(drag)
    onExited: frame.marks.dropTarget = null
    onDropped: {
        frame.marks.dropTarget = null;
        take(drop);
        drop.accept(Qt.CopyAction);
    }

    Image {
        id: picture
        visible: false
        cache: false
        sourceSize.width: 64
    }
}
