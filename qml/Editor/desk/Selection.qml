// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "places.js" as Places

/// The selected items of the document. The first of them is the one whose properties are shown; the editor script
/// knows it by number.
QtObject {
    id: root

    property var desk
    /// The selected live items.
    property var items: []
    readonly property Item item: items.length > 0 ? items[0] : null
    /// Its record in the item map; null when nothing is selected.
    readonly property var record: item && desk.revision >= 0 ? Ejs.map[item.element] || null : null
    /// Whether it is made several times from one place in the source, as by a repeater.
    readonly property bool isRepeated: item !== null && desk.revision >= 0 && desk.live.isRepeated([item.element])
    readonly property bool isRoot: item !== null && item === desk.live.root
    // Lists of the selected items by their numbers, which items that are made several times share.
    readonly property var byNumber: items.reduce((found, item) => {
        (found[item.element] = found[item.element] || []).push(item);
        return found;
    }, {})
    /// The selected items without the document's root, without what lies in other selected ones, and without what is
    /// hidden or locked.
    readonly property var movable: items.filter(item => item !== desk.live.root && !isInOther(item)
                                                        && desk.layers.isFree(item))

    function set(chosen) {
        desk.settle();
        // Panels that follow the selection read it from the script.
        tellScript(chosen.length > 0 ? chosen[0] : null);
        items = chosen;
        if (desk.frame) {
            desk.frame.itemSelected(item);
            desk.frame.selection = items;
        }
    }

    function tellScript(item) {
        const range = item ? Ejs.map[item.element] : { pfirst: 0, plast: 0 };
        Ejs.elementObj = item;
        Ejs.element = item ? item.element : -1;
        Ejs.beg = range.pfirst;
        Ejs.end = range.plast;
        Ejs.codeToEdit = CAPI.sourceCode(Ejs.beg, Ejs.end);
    }

    function clear() {
        set([]);
    }

    // A click at a point of the frame selects the item on top; one that adds takes it in, or out again.
    function click(point, isAdding) {
        const top = at(point);
        if (isAdding && top && top !== desk.live.root)
            toggle(top);
        else if (!isAdding)
            set(top ? [top] : []);
    }

    // Takes the item into the selection, or out of it.
    function toggle(chosen) {
        set(items.indexOf(chosen) >= 0 ? items.filter(item => item !== chosen) : [chosen].concat(items));
    }

    // Selects the item that holds the selected one; false when there is none.
    function goUp() {
        const parent = parentOf(item);
        if (parent)
            set([parent]);
        return parent !== null;
    }

    function selectAll() {
        set(numberedIn(item && !isRoot ? item.parent : desk.live.root));
    }

    /// The nearest item around `item` that stands in the document; null when there is none.
    function parentOf(item) {
        for (let step = item ? item.parent : null; step; step = step.parent) {
            if (isNumbered(step))
                return step;
        }
        return null;
    }

    function isNumbered(item) {
        return item.element !== undefined && item.element !== -1;
    }

    function isInOther(item) {
        for (let step = item.parent; step && step !== desk.live.root; step = step.parent) {
            const chosen = byNumber[step.element];
            if (chosen && chosen.indexOf(step) >= 0)
                return true;
        }
        return false;
    }

    /// The document's items in `parent`, but not those inside them.
    function numberedIn(parent) {
        const found = [];
        gather(parent.children, found);
        return found;
    }

    function gather(children, found) {
        for (let i = 0, count = children.length; i < count; ++i) {
            if (isNumbered(children[i]))
                found.push(children[i]);
            else
                gather(children[i].children, found);
        }
    }

    /// Whether `parent` has items of the document in it.
    function hasNumbered(parent) {
        return Array.prototype.some.call(parent.children, child => isNumbered(child) || hasNumbered(child));
    }

    /// The document's item that is drawn right over `item` in the same parent; null when there is none.
    function nextBeside(item) {
        const beside = numberedIn(item.parent);
        return beside[beside.indexOf(item) + 1] || null;
    }

    function within(parent, test) {
        return numberedIn(parent).filter(item => item.visible && desk.layers.isFree(item) && test(item));
    }

    /// The items that are drawn at a point of the frame, the one on top last.
    function under(point) {
        return Ejs.childrenIn(point.x, point.y, desk.live.root, desk.frame)
                  .filter(item => !desk.layers.isHidden(item));
    }

    // The item on top at a point of the frame, the document itself where there is no other, null beside it.
    function at(point) {
        const found = under(point).filter(item => desk.layers.isFree(item));
        const page = desk.live.root;
        if (found.length > 0)
            return found[found.length - 1];
        return page.contains(page.mapFromItem(desk.frame, point.x, point.y)) ? page : null;
    }

    // What a drag from a point moves: the selected items if it begins on one of them, else the item on top.
    function toDrag(point, modifiers) {
        const isUnder = item => item.contains(item.mapFromItem(desk.frame, point.x, point.y));
        if (movable.some(isUnder))
            return movable;
        const top = at(point);
        if (!top || top === desk.live.root)
            return [];
        set([top]);
        return [top];
    }

    /// Where items stand in the source that the item map is of, so that they are found again in another one.
    function placesOf(items) {
        return items.map(item => Ejs.map[item.element]).filter(record => record && record.plast > record.pfirst)
                    .map(record => record.pfirst);
    }

    /// The items that stood at `places` of the source `before`, as far as they are in the present one.
    function foundAt(places, before) {
        return places.length > 0 ? itemsAt(places.map(Places.mover(before, CAPI.editedSourceCode()))) : [];
    }

    /// The items that begin at `places` of the source, as far as there are such.
    function itemsAt(places) {
        const elements = new Map(Ejs.map.map((record, element) => [record.pfirst, element])
                                        .filter(([place, element]) => Ejs.map[element].plast > place).reverse());
        const items = Ejs.firstByElement(desk.live.root);
        return places.map(place => items.get(elements.get(place))).filter(item => item !== undefined);
    }
}
