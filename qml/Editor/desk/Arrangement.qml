// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "arrange.js" as Arrange
import "../canvas/geometry.js" as Geometry

/// How the selected items stand to each other: aligned, spread evenly, in front or behind.
QtObject {
    id: root

    property var desk

    // Aligns by "left", "centre", "right", "top", "middle" or "bottom": several items with each other, one with what
    // holds it.
    function align(how) {
        const items = free();
        if (items.length === 0)
            return;
        const bounds = items.map(Geometry.boundsInParent);
        const parent = items[0].parent;
        const around = items.length > 1 ? Geometry.around(bounds) : Qt.rect(0, 0, parent.width, parent.height);
        shift(items, bounds.map(rect => Arrange.aligned(rect, around, how)));
    }

    // Makes the gaps between three and more items equal, "across" or "down".
    function distribute(direction) {
        const items = free();
        if (items.length > 2)
            shift(items, Arrange.spread(items.map(Geometry.boundsInParent), direction));
    }

    // The selected items beside each other in one parent that can be moved.
    function free() {
        desk.settle();
        const items = desk.selection.movable;
        return items.filter(item => item.parent === items[0].parent && !desk.placingOf(item).by);
    }

    function shift(items, ways) {
        desk.changes.place(items.map((item, i) => {
            const placing = desk.placingOf(item);
            const values = {};
            if (!placing.x && ways[i].x !== 0)
                item.x = values.x = Math.round(item.x + ways[i].x);
            if (!placing.y && ways[i].y !== 0)
                item.y = values.y = Math.round(item.y + ways[i].y);
            return { item: item, values: values };
        }));
    }
}
