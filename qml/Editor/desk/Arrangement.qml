// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "arrange.js" as Arrange
import "parts.js" as Parts
import "placing.js" as Placing
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

    // Moves objects, by their numbers in the order of the source, into the object `parent`: before the object `before`
    // or, when that is -1, behind all. What is placed by its numbers stays where it is on the page.
    function nest(elements, parent, before) {
        desk.settle();
        const source = CAPI.editedSourceCode();
        const type = Ejs.map[parent].typename;
        const places = elements.reduce((all, element) => all.concat(placeInside(element, parent)), []);
        if (!Parts.takesItems(type))
            desk.say(qsTr("Nothing can be put into %1.").arg(type));
        else if (!Ejs.moveElements(elements, parent, before))
            desk.say(Ejs.problem);
        if (CAPI.editedSourceCode() === source)
            return;
        if (places.length > 0)
            Ejs.updateProperties(places);
        const moved = elements.map(element => Ejs.map[element].pfirst);
        if (!desk.showSource(source))
            return;
        desk.selection.set(desk.selection.itemsAt(moved));
        desk.finish();
    }

    // What gives the item of a number its present place on the page in the item `parent`; none where it keeps it, or
    // something else decides about it. Changes as of Ejs.updateProperties().
    function placeInside(element, parent) {
        const item = Ejs.childrenByElement(desk.live.root, element);
        const holder = Ejs.childrenByElement(desk.live.root, parent);
        if (!item || !holder || desk.selection.parentOf(item) === holder || Parts.placesItems(Ejs.map[parent].typename))
            return [];
        const place = holder.mapFromItem(item.parent, item.x, item.y);
        const isAnchored = desk.live.placement(item).by === "anchors";
        return ["x", "y"].filter(name => !isAnchored && !Placing.isWorkedOut(Ejs.map[element].properties[name]))
                         .map(name => ({ element: element, name: name, text: String(Math.round(place[name])) }));
    }
}
