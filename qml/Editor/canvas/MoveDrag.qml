// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import "geometry.js" as Geometry
import "limits.js" as Limits

/// Moves the selected items with the pointer, in whole pixels: to the places of their neighbours with guides, with
/// Ctrl anywhere, with Shift along one direction.
QtObject {
    id: root

    property Item frame
    property point from
    // What moves: maps of the item, its "x" and "y" at the start and whether these are fixed.
    property var starts: []
    // The coordinates that are snapped in: those of the items' parent, if they have the same.
    property Item space: null
    property rect bounds

    readonly property Snapper snapper: Snapper {}

    function begin(point, items) {
        from = point;
        starts = items.map(start).filter(entry => !entry.isFixedX || !entry.isFixedY);
        if (starts.length === 0)
            return false;
        gather(starts.map(entry => entry.item));
        return true;
    }

    function start(item) {
        const placing = frame.desk.placingOf(item);
        return { item: item, x: item.x, y: item.y, isFixedX: placing.x, isFixedY: placing.y };
    }

    function gather(items) {
        space = items.every(item => item.parent === items[0].parent) ? items[0].parent : null;
        if (!space)
            return;
        bounds = Geometry.around(items.map(Geometry.boundsInParent));
        snapper.gather(space, items);
    }

    function step(point, modifiers) {
        const way = snapped(straightened(wayIn(space || frame, point), modifiers), modifiers);
        starts.forEach(entry => move(entry, space ? way : wayIn(entry.item.parent, point)));
        frame.label = qsTr("%1, %2").arg(starts[0].item.x).arg(starts[0].item.y);
    }

    // How far the pointer went, in the coordinates of `item`.
    function wayIn(item, point) {
        const begun = item.mapFromItem(frame, from.x, from.y);
        const now = item.mapFromItem(frame, point.x, point.y);
        return Qt.point(now.x - begun.x, now.y - begun.y);
    }

    function straightened(way, modifiers) {
        if (!(modifiers & Qt.ShiftModifier))
            return way;
        return Math.abs(way.x) > Math.abs(way.y) ? Qt.point(way.x, 0) : Qt.point(0, way.y);
    }

    function snapped(way, modifiers) {
        frame.guides.clear();
        if (!space || modifiers & Qt.ControlModifier)
            return way;
        const moved = Qt.rect(bounds.x + way.x, bounds.y + way.y, bounds.width, bounds.height);
        const rest = snapper.move(moved, Limits.snapReach * dp / Geometry.unit(Geometry.axes(space, frame)));
        frame.guides.show(rest.guides, space);
        return Qt.point(way.x + rest.x, way.y + rest.y);
    }

    function move(entry, way) {
        if (!entry.isFixedX)
            entry.item.x = Math.round(entry.x + way.x);
        if (!entry.isFixedY)
            entry.item.y = Math.round(entry.y + way.y);
    }

    function end() {
        leave();
        frame.desk.changes.place(starts.map(entry => ({ item: entry.item, values: valuesOf(entry) })));
    }

    function valuesOf(entry) {
        const values = {};
        if (!entry.isFixedX)
            values.x = entry.item.x;
        if (!entry.isFixedY)
            values.y = entry.item.y;
        return values;
    }

    function cancel() {
        leave();
        starts.forEach(entry => move(entry, Qt.point(0, 0)));
    }

    function leave() {
        frame.guides.clear();
        frame.label = "";
    }
}
