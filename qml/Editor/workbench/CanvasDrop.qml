// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What is dragged over the canvas: components from the palette, pictures and videos of the project or from other
/// programs. The item that will take it is marked.
DropArea {
    id: root

    property var desk
    property Item frame

    function mark(drag) {
        const point = Qt.point(drag.x, drag.y);
        const file = drag.hasUrls ? drag.urls[0] : cargoOf(drag).file || "";
        frame.marks.dropTarget = desk.fileDrop.showerAt(file, point) || desk.insertion.parentAt(point);
    }

    function take(drop) {
        const point = Qt.point(drop.x, drop.y);
        const cargo = cargoOf(drop);
        if (cargo.component)
            desk.insertion.drop(cargo.component, point);
        else if (cargo.file)
            desk.fileDrop.show(cargo.file, point);
        else if (drop.hasUrls)
            desk.fileDrop.take(drop.urls, point);
    }

    // What a tile carries; see DragTile.
    function cargoOf(drag) {
        return drag.source && drag.source.cargo || ({});
    }

    enabled: frame !== null
    onPositionChanged: mark(drag)
    onExited: frame.marks.dropTarget = null
    onDropped: {
        frame.marks.dropTarget = null;
        take(drop);
        drop.accept(Qt.CopyAction);
    }
}
