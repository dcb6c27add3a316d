// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.Native 1.1
import "limits.js" as Limits
import "parts.js" as Parts

/// What comes into the document and goes out of it: components of the library, pasted source, copies.
QtObject {
    id: root

    property var desk

    // Adds a component of that name at a point of `parent`. Where the parent is a slide, what was selected stays so.
    // `values` are source texts by name for properties of the new item. The item; null with a message on failure.
    function add(type, parent, x, y, values) {
        desk.settle();
        const kept = desk.selection.items;
        const item = insert("\n" + CAPI.getItemPrototype(Parts.fileOf(type)) + "\n", parent, null);
        if (!item)
            return null;
        const place = isPlaced(item) ? {} : { x: String(Math.round(x)), y: String(Math.round(y)) };
        give(item, Object.assign(place, values));
        desk.selection.set(parent.isSlide === true && kept.length > 0 ? kept : [item]);
        desk.finish();
        return item;
    }

    function isPlaced(item) {
        const placing = desk.placingOf(item);
        return placing.x && placing.y;
    }

    // Gives a new item values, source texts by name.
    function give(item, values) {
        const names = Object.keys(values);
        names.forEach(name => desk.live.assign(item, name, values[name]));
        if (names.length > 0)
            Ejs.updateProperties(names.map(name => ({ element: item.element, name: name, text: values[name] })));
    }

    // Adds a component at a point of the frame.
    function drop(type, point) {
        const parent = parentAt(point);
        const at = parent.mapFromItem(desk.frame, point.x, point.y);
        return add(type, parent, at.x, at.y, {});
    }

    // Adds a component in what is selected, or in what holds that.
    function addChosen(type) {
        const parent = holderAround(desk.selection.item || desk.live.root);
        return add(type, parent, parent.width / 4, parent.height / 4, {});
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

    // Puts objects into `parent`, live and in the source: before the item `before`, with null at the end. The new live
    // item; null when the objects cannot be there, with a message, or when the document was shown anew for them.
    function insert(code, parent, before) {
        const source = CAPI.editedSourceCode();
        const fresh = SourceEdits.withFreshIds(source, code);
        const imports = importsFor(fresh);
        const lines = desk.imports() + imports.map(line => line + "\n").join("");
        const item = desk.live.insert(lines + fresh, Ejs.map.length, parent);
        if (!item && !desk.live.canMake(lines + fresh)) {
            desk.sayFault({ line: 0, message: desk.live.faults[0].message });
            return null;
        }
        if (!write(fresh, parent, before, imports)) {
            desk.live.remove(item);
            desk.say(Ejs.problem);
            return null;
        }
        // A slideshow takes its slides as they come.
        if (!item || (before && before.isSlide === true)) {
            desk.showSource(source);
            return null;
        }
        if (before)
            desk.live.stack(item, before);
        return item;
    }

    function write(code, parent, before, imports) {
        if (before)
            return Ejs.insertObject(code, parent.element, before.element, imports);
        Ejs.element = parent.element;
        return Ejs.paste(code, imports);
    }

    // The import lines that `code` needs besides those of the document; all there are where nothing helps.
    function importsFor(code) {
        const canMake = lines => desk.live.canMake(desk.imports() + lines.map(line => line + "\n").join("") + code);
        return Parts.needed(Parts.imports, canMake);
    }

    // Takes the selected items away and selects what held them.
    function remove() {
        desk.settle();
        const items = desk.selection.movable;
        if (items.length === 0)
            return;
        const parent = desk.selection.parentOf(items[0]);
        if (!Ejs.removeElements(items.map(item => item.element))) {
            desk.say(Ejs.problem);
            return;
        }
        items.forEach(item => desk.live.remove(item));
        desk.selection.set([parent]);
        desk.finish();
    }

    function copy() {
        const items = desk.selection.items;
        if (items.length === 0)
            return;
        desk.settle();
        CAPI.setClipboard(items.map(sourceOf).join("\n"));
        desk.selection.goUp();
    }

    function cut() {
        if (desk.selection.movable.length === 0)
            return;
        desk.settle();
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
        const pieces = code.length > Limits.longestPaste ? [] : Parts.pieces(code, CAPI.parseAndGetMap);
        if (pieces.length === 0)
            desk.tell(qsTr("The clipboard holds nothing that can be pasted."), "info", Limits.message);
        else
            insertAll(pieces.map(piece => ({ code: piece, parent: desk.selection.item || desk.live.root })));
    }

    // Puts a copy beside each selected item, and selects the copies.
    function duplicate() {
        desk.settle();
        insertAll(desk.selection.movable.map(item => ({
            code: sourceOf(item),
            parent: desk.selection.parentOf(item),
            before: desk.selection.nextBeside(item),
            values: isPlaced(item) ? {} : placeBeside(item)
        })));
    }

    // The copy's place: to the right, or, where there is no room, a bit further down.
    function placeBeside(item) {
        const gap = Limits.duplicateGap;
        const hasRoom = item.x + 2 * item.width + gap <= item.parent.width;
        return { x: String(Math.round(item.x + (hasRoom ? item.width : 0) + gap)),
                 y: String(Math.round(item.y + (hasRoom ? 0 : gap))) };
    }

    // Inserts objects, maps of "code", "parent", "before" and "values", as one change, and selects them.
    function insertAll(parts) {
        const before = CAPI.editedSourceCode();
        const items = parts.map(part => {
            const item = insert(part.code, part.parent, part.before || null);
            if (item && part.values)
                give(item, part.values);
            return item;
        }).filter(item => item !== null);
        if (items.length > 0)
            desk.selection.set(items);
        if (CAPI.editedSourceCode() !== before)
            desk.finish();
    }
}
