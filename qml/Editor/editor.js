// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What the editor pages and panels share: the item map of the document being edited, the selection, and the
// edits that keep the source, the map and each other in step. Positions are offsets into the edited source in
// UTF-16 code units, ends exclusive. Records and property records are those of CAPI.getMap().
//
// A record stays at its item's number in the map; the record of a removed item holds an empty range.

.pragma library
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
/// Selects a live item; the desktop page puts its own function here.
var selectItem = function (item) {};

var _removedRevisions = {};

/// Adds `corr` to every position of the map behind `beg`; a position at `beg` stays.
function updateMap(beg, corr) {
    ItemMap.moveBehind(map, beg, corr);
}

/// Puts `text` in place of the source's range [beg, end) and moves the map with it.
function replaceRange(beg, end, text) {
    JCAPI.replaceSourceCode(beg, end, text);
    ItemMap.replace(map, beg, end, text);
}

/// Source text of the selected item's property; "" when it has none of that name.
function getProperty(prop) {
    const record = _selected();
    return record && _has(record.properties, prop) ? record.properties[prop].value : "";
}

/// Gives the selected item's property the source text `newValue`, or adds it to the item on a line of its own.
/// A signal has no value: it stays as it is.
function updateProperty(prop, newValue) {
    const record = _selected();
    if (record === undefined)
        return;
    if (_has(record.properties, prop))
        _replaceValue(record, record.properties[prop], String(newValue));
    else
        _addProperty(record, prop, String(newValue));
}

function _replaceValue(record, property, newValue) {
    const last = property.plast;
    const text = JCAPI.sourceCode(property.pfirst, last);
    const newText = ItemMap.withValue(text, property.value, newValue);
    if (newText === null) {
        console.warn("No value to replace in:", text);
        return;
    }
    const lineEnd = _lineEnd(record, last);
    replaceRange(property.pfirst, last, newText + lineEnd);
    property.plast -= lineEnd.length;
    property.value = newValue;
}

function _addProperty(record, prop, value) {
    const anchor = _lastOwnProperty(record);
    const at = anchor ? _memberEnd(record, anchor.plast) : record.plast - 1;
    const indentation = anchor ? _indentation(anchor.pfirst) : _indentation(record.pfirst) + "    ";
    const lead = (JCAPI.sourceCode(at - 1, at) === "\n" ? "" : "\n") + indentation;
    const text = prop + " : " + value;
    replaceRange(at, at, lead + text + _lineEnd(record, at));
    const first = at + lead.length;
    record.properties[prop] = { value: value, pfirst: first, plast: first + text.length };
}

/// Where the member ends whose value ends at `position`: a list keeps its semicolon out of its value.
function _memberEnd(record, position) {
    return position + ItemMap.leading(";", JCAPI.sourceCode(position, record.plast)) + 1;
}

/// The last property that stands in the item's own body, not in an object bound to one of its properties.
function _lastOwnProperty(record) {
    const isOwn = property =>
        ItemMap.braceDepth(JCAPI.sourceCode(record.pfirstL, property.pfirst)) === 0;
    return ItemMap.properties(record).sort((one, other) => other.plast - one.plast).find(isOwn);
}

/// What stands between `position` and the start of its line, body or the member before, as blanks.
function _indentation(position) {
    const start = Math.max(...["\n", ";", "{"].map(mark => JCAPI.prevPosInSourceCode(mark, position)));
    return JCAPI.sourceCode(start + 1, position).replace(/\S/g, " ");
}

/// A line end where the member that ends at `position` would run into the next one, else nothing.
function _lineEnd(record, position) {
    return ItemMap.beginsWithMember(JCAPI.sourceCode(position, record.plast)) ? "\n" : "";
}

/// Inserts the object text `src` at the end of the selected item's body and appends its record `obj`, with
/// positions in `src`, to the map. There is one place for it, whatever `atEnd` says.
function addObject(obj, src, atEnd) {
    const parent = _selected();
    if (parent === undefined)
        return;
    const at = parent.plast - 1;
    replaceRange(at, at, src);
    ItemMap.moveRecord(obj, at);
    map.push(obj);
}

/// Takes the selected item out of the source, with the comma that parts it from others in a list. Its record
/// stays, so that the others keep their numbers.
function removeElement() {
    const record = _selected();
    if (record === undefined)
        return;
    const comma = _commaBehind(record.plast);
    if (comma >= 0)
        replaceRange(record.pfirst, comma + 1, "");
    else
        replaceRange(_commaBefore(record), record.plast, "");
}

function _commaBehind(position) {
    const offset = ItemMap.leading(",", JCAPI.editedSourceCode().slice(position));
    return offset < 0 ? -1 : position + offset;
}

/// Position of the comma between the item and the one before it in a list, else where the item begins.
function _commaBefore(record) {
    const before = ItemMap.lastEndBefore(map, record.pfirst);
    const isList = before >= 0 && ItemMap.isComma(JCAPI.sourceCode(before, record.pfirst));
    return isList ? _commaBehind(before) : record.pfirst;
}

function _selected() {
    const record = map[element];
    if (record === undefined)
        console.warn("No item is selected: element", element, "of", map.length);
    return record;
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
