// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The one writer of the source. A completed change is worked out on the source as it is, with the text of the object
// that it concerns parsed before and after; only a change that leaves everything else as it was is written, and with it
// the item map is brought in step. A change that is refused has changed nothing.
//
// `document` is what is edited: "api", the native API object, which holds the source, and "map", its item map.

.pragma library
.import Nuvex.Native 1.1 as Native
.import "private/itemmap.js" as ItemMap

/// Gives items properties, all or none. `values` is a list of maps of "record" (the item's), "name" and "text", the
/// source of the value. When `accept` is given, it is called when the change is possible and can prevent it by
/// returning false. Returns why it was not made, in words; "" when it was.
function setProperties(document, values, accept) {
    const scope = ItemMap.around(document.map, values.map(value => value.record));
    const list = values.map(value => ({ object: value.record.pfirst, name: value.name, text: value.text }));
    const change = Native.SourceEdits.setProperties(_source(document), scope.pfirst, scope.plast, list);
    if (change.refusal === "" && accept && !accept())
        return qsTr("This value cannot be used.");
    return _carryOut(document, change);
}

/// Puts the source of objects just before the closing brace of the item `parent`, and the import lines that the
/// document lacks to its others. The new records come to the end of the map, parents behind their children.
function addObjects(document, parent, code, imports) {
    const scope = _scopeOf(document, parent, imports);
    return _carryOut(document, Native.SourceEdits.addObjects(_source(document), scope.pfirst, scope.plast,
                                                             parent.pfirst, code, imports));
}

/// Puts the source of one object on lines of its own before the item `before`, or, without one, at the end of `parent`.
function insertObject(document, parent, before, code, imports) {
    const scope = _scopeOf(document, parent, imports);
    return _carryOut(document, Native.SourceEdits.insertObject(_source(document), scope.pfirst, scope.plast,
                                                               parent.pfirst, before ? before.pfirst : -1,
                                                               code, imports));
}

/// Takes items out of the source. Their records stay in the map, so that the others keep their numbers, with empty
/// ranges.
function removeObjects(document, records) {
    const scope = ItemMap.holder(document.map, records, []);
    return _carryOut(document, Native.SourceEdits.removeObjects(_source(document), scope.pfirst, scope.plast,
                                                                records.map(record => record.pfirst)));
}

/// Moves items, in their order, before the item `before`, or, without one, to the end of `parent`. They keep their
/// numbers.
function moveObjects(document, records, parent, before) {
    const scope = ItemMap.holder(document.map, records, [parent]);
    return _carryOut(document, Native.SourceEdits.moveObjects(_source(document), scope.pfirst, scope.plast,
                                                              records.map(record => record.pfirst), parent.pfirst,
                                                              before ? before.pfirst : -1));
}

/// Puts the source of one object in place of an item. The item keeps its number, what it holds gets new ones.
function replaceObject(document, record, code) {
    const holder = ItemMap.holder(document.map, [record], []);
    const scope = holder === record ? _wholeOf(document) : holder;
    return _carryOut(document, Native.SourceEdits.replaceObject(_source(document), scope.pfirst, scope.plast,
                                                                record.pfirst, code));
}

/// Gives an item an id, and the references to its old one with it.
function renameId(document, record, name) {
    return _carryOut(document, Native.SourceEdits.renameId(_source(document), record.pfirst, name));
}

/// `code` with other ids in place of those that the document has.
function withFreshIds(document, code) {
    return Native.SourceEdits.withFreshIds(_source(document), code);
}

function _source(document) {
    return document.api.editedSourceCode();
}

function _scopeOf(document, record, imports) {
    return imports.length > 0 ? _wholeOf(document) : record;
}

function _wholeOf(document) {
    return { pfirst: 0, plast: _source(document).length };
}

function _carryOut(document, change) {
    if (change.refusal !== "")
        return change.refusal;
    const ordered = change.edits.some(edit => edit.movedBeg >= 0) ? ItemMap.ordered(document.map) : [];
    const old = change.edits.map(edit => edit.objects.length > 0 ? _recordsIn(document.map, ordered, edit) : []);
    _write(document.api, change.edits);
    ItemMap.replace(document.map, change.edits);
    change.edits.forEach((edit, i) => edit.objects.forEach((record, k) => _put(document.map, record, old[i][k])));
    const known = ItemMap.byPlace(document.map);
    change.records.forEach(record => _put(document.map, record, known[record.pfirst]));
    return "";
}

// Makes all edits in one replacement: each one costs as much as the source is long.
function _write(api, edits) {
    if (edits.length === 0)
        return;
    let [text, copied] = ["", edits[0].beg];
    edits.forEach(edit => {
        text += api.sourceCode(copied, edit.beg) + edit.text;
        copied = edit.end;
    });
    api.replaceSourceCode(edits[0].beg, copied, text);
}

// The records of the items that the objects in the edit's text are, in their order: those that were moved there, or the
// one that it replaces, which is the last of them.
function _recordsIn(map, ordered, edit) {
    if (edit.movedBeg >= 0)
        return ItemMap.within(ordered, edit.movedBeg, edit.movedEnd);
    const replaced = ItemMap.at(map, edit.beg);
    const isReplaced = replaced && replaced.plast === edit.end;
    return edit.objects.map((record, k) => isReplaced && k === edit.objects.length - 1 ? replaced : undefined);
}

function _put(map, record, known) {
    if (known)
        Object.assign(known, record);
    else
        map.push(record);
}
