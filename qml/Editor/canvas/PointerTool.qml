// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// What the mouse does on the canvas: a click selects, a drag moves what is selected or lies under it, or draws a
/// rubber band; with the hand, the middle button or where nobody edits, it pans. The wheel zooms.
MouseArea {
    id: root

    property Item frame
    property Viewport viewport
    /// Whether each drag pans.
    property bool hand: false
    /// The drag that is under way; null when there is none.
    property var running: null

    property point from
    property bool wasDragged: false
    // Whether what is pressed is the second of two clicks: it opens, unless it becomes a drag.
    property bool isSecond: false

    // Ends a drag as if it had not been.
    function cancel() {
        if (running)
            running.cancel();
        running = null;
        wasDragged = true;
    }

    function isFar(mouse) {
        const way = Math.abs(mouse.x - from.x) + Math.abs(mouse.y - from.y);
        return way > Limits.dragDistance * (typeof dp === "number" ? dp : 1);
    }

    function dragOf(mouse) {
        if (!frame.desk || hand || pressedButtons & Qt.MiddleButton)
            return pan.begin(from) ? pan : null;
        if (!(pressedButtons & Qt.LeftButton))
            return null;
        return dragOfItems(frame.desk.selection.toDrag(from, mouse.modifiers), mouse.modifiers);
    }

    function dragOfItems(items, modifiers) {
        if (items.length === 0)
            return band.begin(from, modifiers & Qt.ShiftModifier) ? band : null;
        if (items.length === 1 && frame.desk.isReorderable(items[0]))
            return reorder.begin(from, items[0]) ? reorder : null;
        return move.begin(from, items) ? move : null;
    }

    acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
    cursorShape: hand ? (pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor) : Qt.ArrowCursor
    onPressed: {
        from = Qt.point(mouse.x, mouse.y);
        wasDragged = false;
        isSecond = false;
    }
    onPositionChanged: {
        if (!running && !wasDragged && isFar(mouse)) {
            wasDragged = true;
            running = dragOf(mouse);
        }
        if (running)
            running.step(Qt.point(mouse.x, mouse.y), mouse.modifiers);
    }
    onReleased: {
        const ended = running;
        running = null;
        if (ended)
            ended.end();
        else if (isSecond && !wasDragged)
            frame.itemToOpen(mouse);
    }
    onCanceled: cancel()
    onClicked: {
        if (!wasDragged)
            frame.itemsToEdit(mouse);
    }
    onDoubleClicked: isSecond = true
    onWheel: viewport.zoomBy(wheel.angleDelta.y / 120, wheel.x, wheel.y)

    PanDrag {
        id: pan
        viewport: root.viewport
    }

    BandDrag {
        id: band
        frame: root.frame
    }

    MoveDrag {
        id: move
        frame: root.frame
    }

    ReorderDrag {
        id: reorder
        frame: root.frame
    }

    Rectangle {
        x: band.band.x
        y: band.band.y
        width: band.band.width
        height: band.band.height
        visible: band.isOn
        color: "#332a6496"
        border.color: "#2a6496"
    }
}
