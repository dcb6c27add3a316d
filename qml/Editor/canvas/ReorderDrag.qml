// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "geometry.js" as Geometry

/// Moves an item that its row, column, grid, flow or layout places: to another turn among its neighbours.
QtObject {
    id: root

    property Item frame
    property Item item
    property var others: []
    // The turn that it takes: before others[turn], or after all.
    property int turn: -1

    function begin(point, moved) {
        item = moved;
        turn = -1;
        others = frame.desk.selection.numberedIn(item.parent).filter(other => other !== item);
        return others.length > 0;
    }

    function step(point, modifiers) {
        const at = item.parent.mapFromItem(frame, point.x, point.y);
        const before = others.findIndex(other => isBefore(at, other));
        turn = before < 0 ? others.length : before;
        frame.guides.show([mark()], item.parent);
        frame.label = qsTr("Place %1 of %2").arg(turn + 1).arg(others.length + 1);
    }

    readonly property bool isUpright: item !== null && ["column"].indexOf(frame.desk.placingOf(item).by) >= 0

    // Whether the point comes before the middle of `other`, in the order of reading.
    function isBefore(at, other) {
        if (isUpright)
            return at.y < other.y + other.height / 2;
        return at.y < other.y || (at.y < other.y + other.height && at.x < other.x + other.width / 2);
    }

    // A line where the item will stand.
    function mark() {
        const next = others[Math.min(turn, others.length - 1)];
        const isLast = turn === others.length;
        const x = isUpright || !isLast ? next.x : next.x + next.width;
        const y = !isUpright || !isLast ? next.y : next.y + next.height;
        return isUpright ? { x1: x, y1: y, x2: x + next.width, y2: y, distance: 0, isMark: true }
                         : { x1: x, y1: y, x2: x, y2: y + next.height, distance: 0, isMark: true };
    }

    function end() {
        leave();
        if (turn >= 0)
            frame.desk.arrangement.moveBefore(item, turn < others.length ? others[turn] : null);
    }

    function cancel() {
        leave();
    }

    function leave() {
        frame.guides.clear();
        frame.label = "";
    }
}
