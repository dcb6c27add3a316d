// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
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

    // Moves the selected items among those beside them: to the "front", "forward", "backward" or to the "back".
    function order(how) {
        desk.settle();
        const selected = desk.selection.movable;
        if (selected.length === 0)
            return;
        const beside = desk.selection.numberedIn(selected[0].parent);
        const items = beside.filter(item => selected.indexOf(item) >= 0);
        move(items, Arrange.orderedBefore(beside, items, how));
    }

    // Moves an item before another one beside it, with null behind all.
    function moveBefore(item, before) {
        desk.settle();
        move([item], before);
    }

    // Moves items in the source and live before the item `before`; undefined: they stay.
    function move(items, before) {
        if (before === undefined)
            return;
        const parent = desk.selection.parentOf(items[0]);
        const source = CAPI.editedSourceCode();
        if (!Ejs.moveElements(items.map(item => item.element), parent.element, before ? before.element : -1)) {
            desk.say(Ejs.problem);
            return;
        }
        // A slideshow takes its slides as they come.
        if (items.some(item => item.isSlide === true))
            desk.showSource(source);
        else
            items.forEach(item => desk.live.stack(item, before));
        desk.finish();
    }
}
