// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "expressions.js" as Expressions
import "limits.js" as Limits

/// Changes of properties: shown live first, then written into the source, then recorded as one state.
QtObject {
    id: root

    property var desk
    // The items that a burst of keys is moving.
    property var nudged: []

    // Writes places and sizes that the live items have already: maps of an "item" and its "values" by name.
    function place(entries) {
        const written = entries.filter(entry => Object.keys(entry.values).length > 0);
        if (written.length === 0)
            return;
        written.forEach(entry => write(entry.item, entry.values));
        desk.finish();
    }

    function write(item, values) {
        Ejs.element = item.element;
        Object.keys(values).forEach(name => Ejs.updateProperty(name, String(values[name])));
    }

    // Gives the selected item's property the source text `code`. What cannot be done live is done in the source, and
    // the document is shown anew. False with a message when it cannot be used.
    function property(name, code) {
        desk.settle();
        const item = desk.selection.item;
        if (!canHold(name, code))
            return false;
        const isLive = !Expressions.isHandler(name) && Expressions.isExpression(code) && reaches(item, name);
        if (isLive && !show(item, name, code))
            return false;
        const before = CAPI.editedSourceCode();
        Ejs.element = item.element;
        Ejs.updateProperty(name, code);
        if (!isLive && !desk.showSource(before))
            return false;
        desk.finish();
        return true;
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
        sayUseless(name);
        return false;
    }

    function sayUseless(name) {
        const reason = desk.live.faults[0].message;
        desk.tell(qsTr("%1 cannot be used: %2").arg(name).arg(reason), "danger", Limits.faultMessage);
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
            sayUseless(name);
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
