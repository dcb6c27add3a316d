// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "expressions.js" as Expressions
import "limits.js" as Limits
import "outline.js" as Outline
import "../panel/values.js" as Values

/// Changes of properties: shown live first, then written into the source, then recorded as one state.
QtObject {
    id: root

    property var desk
    // The items that a burst of keys is moving.
    property var nudged: []
    // Why the live document did not take the last property.
    property string refusal

    // Writes places and sizes that the live items have already: maps of an "item" and its "values" by name.
    function place(entries) {
        const changes = [];
        entries.forEach(entry => Object.keys(entry.values).forEach(name =>
            changes.push({ element: entry.item.element, name: name, text: String(entry.values[name]) })));
        if (changes.length === 0)
            return;
        const before = CAPI.editedSourceCode();
        if (Ejs.updateProperties(changes)) {
            if (desk.live.isRepeated(changes.map(change => change.element)))
                desk.showSource(before);
            desk.finish();
        } else {
            desk.say(Ejs.problem);
            desk.showAgain();
        }
    }

    // Gives the selected item's property the source text `code`. What cannot be done live is done in the source, and
    // the document is shown anew. False with a message when it cannot be used.
    function property(name, code) {
        desk.settle();
        refusal = "";
        const item = desk.selection.item;
        const before = CAPI.editedSourceCode();
        const isLive = !Expressions.isHandler(name) && Expressions.isExpression(code) && reaches(item, name);
        const accept = () => canHold(name, code) && (!isLive || show(item, name, code));
        if (!Ejs.updateProperties([{ element: item.element, name: name, text: code }], accept)) {
            desk.say(qsTr("%1 cannot be used: %2").arg(name).arg(refusal || Ejs.problem));
            return false;
        }
        if ((!isLive || desk.live.isRepeated([item.element])) && !desk.showSource(before))
            return false;
        desk.finish();
        return true;
    }

    // Gives the selected item another id, and what refers to it with it. False with a message when it cannot have it.
    function rename(id) {
        desk.settle();
        const before = CAPI.editedSourceCode();
        if (!Ejs.renameId(id)) {
            desk.say(Ejs.problem);
            return false;
        }
        if (!desk.showSource(before))
            return false;
        const record = Ejs.map.find(record => Outline.idOf(record) === id);
        desk.selection.set(record ? desk.selection.itemsAt([record.pfirst]) : []);
        desk.finish();
        return true;
    }

    // Gives an item the text that was written on the canvas.
    function text(item, text) {
        if (desk.live.assign(item, "text", Values.quoted(text)))
            place([{ item: item, values: { text: Values.quoted(text) } }]);
    }

    /// The text that can be edited on the canvas; null, with a message where there is a reason, when it cannot.
    function textOf(item) {
        const record = item ? Ejs.map[item.element] : null;
        if (!record || typeof item.text !== "string")
            return null;
        const source = record.properties.text;
        const text = source ? Values.textIn(source.value.replace(/;$/, "")) : item.text;
        if (text === undefined)
            desk.tell(qsTr("This text is worked out: %1").arg(source.value), "info", Limits.message);
        return text === undefined ? null : text;
    }

    // Whether the engine takes the member at all: it knows what may not be written.
    function canHold(name, code) {
        const record = desk.selection.record;
        const property = record.properties[name];
        if (property && !isOwn(record, property))
            return true;
        const head = property ? CAPI.sourceCode(property.pfirst, property.plast - property.value.length) : name + ": ";
        const type = CAPI.sourceCode(record.pfirst, record.pfirstL - 1);
        if (desk.live.couldHold(desk.imports(), type, head + code))
            return true;
        refusal = desk.live.faults[0].message;
        return false;
    }

    // A member of an object that is bound to one of the item's properties counts as the item's own.
    function isOwn(record, property) {
        const before = CAPI.sourceCode(record.pfirstL, property.pfirst);
        return before.split("{").length === before.split("}").length;
    }

    function reaches(item, name) {
        return name.split(".").reduce((at, part) => at === undefined || at === null ? undefined : at[part], item)
            !== undefined || /^[A-Z]/.test(name);
    }

    function show(item, name, code) {
        const isShown = Expressions.isConstant(code) ? desk.live.assign(item, name, code)
                                                     : desk.live.bind(item, name, code);
        if (!isShown) {
            refusal = desk.live.faults[0].message;
            // The attempt may have cost the property its binding.
            desk.showAgain();
        }
        return isShown;
    }

    // Moves the selected items by so many pixels; the moves of a burst of keys count as one change.
    function nudge(dx, dy) {
        desk.selection.movable.forEach(item => {
            const placing = desk.placingOf(item);
            if (!placing.x)
                item.x += dx;
            if (!placing.y)
                item.y += dy;
        });
        nudged = desk.selection.movable;
        burst.restart();
    }

    // Writes what a burst of keys has moved so far.
    function settle() {
        const items = nudged;
        nudged = [];
        burst.stop();
        place(items.map(item => ({ item: item, values: placeOf(item) })));
    }

    function placeOf(item) {
        const placing = desk.placingOf(item);
        return Object.assign({}, placing.x ? {} : { x: item.x }, placing.y ? {} : { y: item.y });
    }

    readonly property Timer burst: Timer {
        interval: Limits.burstPause
        onTriggered: root.settle()
    }
}
