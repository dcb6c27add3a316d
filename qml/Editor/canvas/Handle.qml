// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// One of the eight handles of a selected item: -1, 0 or 1 `across` and `down`. On a small item it is hit more outside
/// than inside, so that the item itself can be hit as well.
Item {
    id: root

    property Item frame
    property Item item
    property int across
    property int down
    /// Pixels of the canvas that one of the item takes.
    property real unit: 1
    /// "mouse" or "touch": what it is made for.
    property string pointer: "mouse"

    readonly property real outwardX: across * outward(parent.width)
    readonly property real outwardY: down * outward(parent.height)

    // How far its middle lies outside of an edge, beside a side of that length.
    function outward(side) {
        return Math.max(0, width / 2 - Limits.handleShare * side);
    }

    x: (across + 1) / 2 * parent.width - width / 2 + outwardX
    y: (down + 1) / 2 * parent.height - height / 2 + outwardY
    width: Limits.handleReach[pointer] * dp / unit
    height: width

    Rectangle {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: -root.outwardX
        anchors.verticalCenterOffset: -root.outwardY
        width: Limits.handleEdge[root.pointer] * dp / root.unit
        height: width
        radius: 1.5 / root.unit
        color: area.containsMouse || area.pressed ? "#2a6496" : "white"
        border.width: 1.5 / root.unit
        border.color: "#2a6496"
    }

    MouseArea {
        id: area

        property bool isDragging: false

        function pointOf(mouse) {
            return mapToItem(root.frame, mouse.x, mouse.y);
        }

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: root.cursor
        onPressed: {
            isDragging = false;
            drag.begin(pointOf(mouse), root.item, root.across, root.down);
        }
        onPositionChanged: {
            if (!pressed)
                return;
            isDragging = true;
            root.frame.tool.running = drag;
            drag.step(pointOf(mouse), mouse.modifiers);
        }
        onReleased: {
            if (isDragging && root.frame.tool.running === drag)
                drag.end();
            root.frame.tool.running = null;
        }
        onCanceled: root.frame.tool.cancel()
    }

    readonly property int cursor: across === 0 ? Qt.SizeVerCursor : down === 0 ? Qt.SizeHorCursor
                                  : across === down ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor

    ResizeDrag {
        id: drag
        frame: root.frame
    }
}
