// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "geometry.js" as Geometry

/// Lies over an item of the document, wherever that stands and however it is turned and scaled: what is put inside
/// uses the item's own coordinates.
Item {
    id: root

    property Item target: null
    /// What the canvas coordinates are of; this item is its child.
    property Item canvas: parent

    /// How the item lies on the canvas; see geometry.js.
    readonly property var axes: Geometry.axes(target, canvas)
    /// Pixels of the canvas that one of the item takes.
    readonly property real unit: Geometry.unit(axes)

    width: target ? target.width : 0
    height: target ? target.height : 0
    visible: target !== null
    transform: Matrix4x4 {
        matrix: Geometry.matrix(root.axes)
    }
}
