// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Lines that show where a dragged item comes to rest, with the distances to its neighbours.
ItemSpace {
    id: root

    /// As Snapper tells them, in the coordinates of `target`; with "isMark", where an item will be put.
    property var guides: []

    function show(shown, space) {
        target = space;
        guides = shown;
    }

    function clear() {
        guides = [];
    }

    Repeater {
        model: root.guides

        Item {
            readonly property bool isUpright: modelData.x1 === modelData.x2
            readonly property bool isMark: modelData.isMark === true
            readonly property real thickness: (isMark ? 4 : 1) / root.unit
            readonly property color color: isMark ? "#2a6496" : modelData.isGap ? "#b3197b" : "#d6336c"
            readonly property bool hasDistance: Math.round(modelData.distance) > 0

            x: Math.min(modelData.x1, modelData.x2) - thickness / 2
            y: Math.min(modelData.y1, modelData.y2) - thickness / 2
            width: Math.abs(modelData.x2 - modelData.x1) + thickness
            height: Math.abs(modelData.y2 - modelData.y1) + thickness

            Rectangle {
                anchors.fill: parent
                color: parent.color
            }

            CanvasLabel {
                anchors.centerIn: parent
                visible: parent.hasDistance
                scale: 1 / root.unit
                color: parent.color
                text: Math.round(modelData.distance)
            }
        }
    }
}
