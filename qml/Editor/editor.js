// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What the editor pages and panels share: the item map of the document being edited, the selection, and the changes of
// the source. Positions are offsets into the edited source in UTF-16 code units, ends exclusive. Records and property
// records are those of CAPI.getMap().
//
// A record stays at its item's number in the map; the record of a removed item holds an empty range. A change is made
// as a whole or not at all: its function then returns false, and `problem` says why.

.pragma library
.import "edits.js" as Edits
.import "private/itemmap.js" as ItemMap
.import "private/liveitems.js" as LiveItems

/// The native API object. The page that opens a document sets it.
var JCAPI = null;

/// Item map: record by element number.
var map = [];
/// Number of the selected item; -1 when there is none.
var element = -1;
/// The selected live item.
var elementObj = null;
/// Range of the source being edited as text.
var beg = 0;
var end = 0;
/// That text.
var codeToEdit = "";
/// Whether source was edited that the live document does not show yet.
var codeEdited = false;
/// Whether a property was edited.
var propertyEdited = false;
/// Items under the pointer; see childrenIn().
var itemsAt = [];
/// The project's directory map: relative path to revision. Set by the page that opens a project, else read on use.
var dirmap = null;
/// Root of the live document.
var editorObj = null;
/// The editing frame or page that shows it.
var editorUi = null;
/// Whether the desktop editor is at work.
var radEditor = false;
/// Why the last change was not made, in words; "" when it was.
var problem = "";
/// Selects a live item; the desktop page puts its own function here.
var selectItem = function (item) {};

var _removedRevisions = {};

/// Adds `corr` to every position of the map behind `beg`; a position at `beg` stays.
function updateMap(beg, corr) {
    ItemMap.moveBehind(map, beg, corr);
}

/// Source text of the selected item's property; "" when it has none of that name.
function getProperty(prop) {
    const record = map[element];
    return record && _has(record.properties, prop) ? record.properties[prop].value : "";
}

/// Gives the selected item's property the source text `newValue`, or adds it to the item on a line of its own.
function updateProperty(prop, newValue) {
    return updateProperties([{ element: element, name: prop, text: String(newValue) }]);
}

/// Gives several properties new values in one step: a list of maps of "element" (the item's number), "name" and "text".
/// `accept`, if given, is called when the source allows it; when it returns false, nothing changes.
function updateProperties(changes, accept) {
    const values = changes.map(change => ({ record: map[change.element], name: change.name, text: change.text }));
    return _change(values.map(value => value.record), document => Edits.setProperties(document, values, accept));
}

/// Inserts the object text `src` at the end of the selected item's body and appends its record to the map: `obj`, which
/// gets its place in the source. Records of objects in it follow. There is one place for it, whatever `atEnd` says.
function addObject(obj, src, atEnd) {
    const first = map.length;
    if (!_change([map[element]], document => Edits.addObjects(document, map[element], src, [])))
        return false;
    map.splice(first, 0, Object.assign(obj, map.pop()));
    return true;
}

/// Inserts the text of objects, as from the clipboard, at the end of the selected item's body, with the import lines
/// that the document lacks, and appends their records to the map in the order that CAPI.generateEditor() numbers them.
/// Ids that the document has are changed in it.
function paste(src, imports) {
    return _change([map[element]], document =>
        Edits.addObjects(document, map[element], Edits.withFreshIds(document, src), imports || []));
}

/// Inserts the text of one object on lines of its own: before the item `before`, a number, or, when that is -1, at the
/// end of the item `parent`. Otherwise like paste().
function insertObject(src, parent, before, imports) {
    return _change([map[parent]], document =>
        Edits.insertObject(document, map[parent], map[before], Edits.withFreshIds(document, src), imports || []));
}

/// Takes the selected item out of the source, with the comma that parts it from others in a list. Its record
/// stays, so that the others keep their numbers.
function removeElement() {
    return removeElements([element]);
}

/// The same for several items, by their numbers.
function removeElements(elements) {
    const records = elements.map(number => map[number]);
    return _change(records, document => Edits.removeObjects(document, records));
}

/// Moves items, by their numbers and in that order, before the item `before`, or, when that is -1, to the end of the
/// item `parent`. They keep their numbers; lines that they leave empty go.
function moveElements(elements, parent, before) {
    const records = elements.map(number => map[number]);
    return _change(records.concat([map[parent]]), document =>
        Edits.moveObjects(document, records, map[parent], map[before]));
}

/// Puts the source of one object in place of the selected item. What the item holds gets new numbers.
function replaceElement(src) {
    return _change([map[element]], document => Edits.replaceObject(document, map[element], src));
}

/// Gives the selected item an id, and the references to its old one with it.
function renameId(id) {
    return _change([map[element]], document => Edits.renameId(document, map[element], id));
}

// Makes a change that concerns `records`.
function _change(records, make) {
    if (records.length === 0 || records.some(record => record === undefined || record.plast <= record.pfirst)) {
        problem = qsTr("No item is selected.");
        console.warn(problem, "Element", element, "of", map.length);
        return false;
    }
    problem = make({ api: JCAPI, map: map });
    return problem === "";
}

function _has(object, name) {
    return Object.prototype.hasOwnProperty.call(object, name);
}

/// Collects in `itemsAt`, and returns, the visible numbered items below `parent` at the point (x, y) of `root`:
/// parents before children, and of siblings the one drawn on top last.
function childrenIn(x, y, parent, root) {
    itemsAt = LiveItems.under(x, y, parent, root);
    return itemsAt;
}

/// The live item with the number `element`: `parent` or an item below it; null when there is none.
function childrenByElement(parent, element) {
    return LiveItems.numbered(parent, element);
}

/// A Map of the item with each number, the first of it: `parent` and what is below it.
function firstByElement(parent) {
    return LiveItems.firstByNumber(parent, new Map());
}

/// Lists a file of the project, given by its relative path, or raises its revision when it is listed, and saves
/// the directory map. False when it was not saved; "", the path of a copy that failed, is not listed.
function addFileToDirmap(path) {
    return path !== "" && incFileInDirmap(path);
}

/// Takes a file off the directory map and saves that; false when it was not saved.
function removeFileFromDirmap(path) {
    _removedRevisions[path] = _revision(path);
    delete dirmap[path];
    return JCAPI.updateDirmapFile(dirmap);
}

/// Raises the revision of a file by one and saves the directory map; false when it was not saved. A file that is
/// not listed gets 1, or what follows its last revision if it was removed in this run: players must see a change.
function incFileInDirmap(path) {
    const revision = _revision(path) + 1;
    dirmap[path] = revision;
    return JCAPI.updateDirmapFile(dirmap);
}

function _revision(path) {
    if (dirmap === null)
        dirmap = JCAPI.dirmap();
    const known = [dirmap, _removedRevisions].find(revisions => _has(revisions, path));
    return known ? known[path] : 0;
}
