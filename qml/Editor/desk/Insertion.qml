// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "limits.js" as Limits
import "parts.js" as Parts

/// What comes into the document and goes out of it: components from the palette, pasted source, files, copies.
QtObject {
    id: root

    property var desk

    // Adds a component of that name at a point of `parent`. Where the parent is a slide, what was selected stays so.
    function add(type, parent, x, y) {
        desk.settle();
        const kept = desk.selection.items;
        const item = insert("\n" + CAPI.getItemPrototype(Parts.fileOf(type)) + "\n", parent);
        if (!item)
            return null;
        if (!isPlacing(item)) {
            [item.x, item.y] = [Math.round(x), Math.round(y)];
            desk.changes.write(item, { x: item.x, y: item.y });
        }
        desk.selection.set(parent.isSlide === true && kept.length > 0 ? kept : [item]);
        desk.finish();
        return item;
    }

    function isPlacing(item) {
        const placing = desk.placingOf(item);
        return placing.x && placing.y;
    }

    // Adds a component at a point of the frame.
    function drop(type, parent, point) {
        const at = parent.mapFromItem(desk.frame, point.x, point.y);
        return add(type, parent, at.x, at.y);
    }

    // Adds a component in the middle of what is selected, or of what holds that.
    function addChosen(type) {
        const parent = holderAround(desk.selection.item || desk.live.root);
        return add(type, parent, parent.width / 4, parent.height / 4);
    }

    // The item at a point of the frame into which something can be put.
    function parentAt(point) {
        return holderAround(desk.selection.at(point) || desk.live.root);
    }

    function holderAround(item) {
        for (let step = item; step; step = desk.selection.parentOf(step)) {
            const record = Ejs.map[step.element];
            if (record && Parts.takesItems(record.typename))
                return step;
        }
        return desk.live.root;
    }

    // Puts the object `code` at the end of `parent`, live and in the source. The live item; null when it cannot be
    // there, with a message.
    function insert(code, parent) {
        const first = Ejs.map.length;
        const item = desk.live.insert(Parts.imports + desk.imports() + code, first, parent);
        if (!item) {
            desk.sayFault({ line: 0, message: desk.live.faults[0].message });
            return null;
        }
        Ejs.element = parent.element;
        const at = Ejs.map[parent.element].plast - 1;
        Ejs.replaceRange(at, at, code);
        CAPI.parseAndGetMap(code).forEach(record => Ejs.map.push(Parts.movedRecord(record, at)));
        return item;
    }

    // Takes the selected items away and selects what held them.
    function remove() {
        desk.settle();
        const items = desk.selection.movable;
        if (items.length === 0)
            return;
        const parent = desk.selection.parentOf(items[0]);
        items.forEach(item => {
            Ejs.element = item.element;
            desk.live.remove(item);
            Ejs.removeElement();
        });
        desk.selection.set([parent]);
        desk.finish();
    }

    function copy() {
        const items = desk.selection.items;
        if (items.length === 0)
            return;
        CAPI.setClipboard(items.map(sourceOf).join("\n"));
        desk.selection.goUp();
    }

    function cut() {
        if (desk.selection.movable.length === 0)
            return;
        CAPI.setClipboard(desk.selection.movable.map(sourceOf).join("\n"));
        remove();
    }

    function sourceOf(item) {
        const record = Ejs.map[item.element];
        return CAPI.sourceCode(record.pfirst, record.plast);
    }

    // Puts the clipboard's source into the selected item, or into the document when nothing is selected.
    function paste() {
        desk.settle();
        const code = CAPI.getClipboard();
        const parent = desk.selection.item || desk.live.root;
        const pieces = code.length > Limits.longestPaste ? [] : Parts.pieces(code, CAPI.parseAndGetMap);
        if (pieces.length === 0) {
            desk.tell(qsTr("The clipboard holds nothing that can be pasted."), "info", Limits.message);
            return;
        }
        const items = pieces.map(piece => insert(piece, parent)).filter(item => item !== null);
        if (items.length > 0) {
            desk.selection.set(items);
            desk.finish();
        }
    }
}
