// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The arithmetic of the item map, a list of records as CAPI.getMap() returns it, and of the source text at its
// positions. Nothing here reads or writes a source.

.pragma library

/// Adds `corr` to every position behind `beg`; a position at `beg` stays.
function moveBehind(map, beg, corr) {
    const moved = position => position > beg ? position + corr : position;
    map.forEach(record => _moveRecord(record, moved, moved));
}

/// Moves the map along when the source's range [beg, end) becomes `text`: what lies within the range collapses to
/// its start, what follows or begins at an insertion moves, and a value that encloses the range takes the change.
function replace(map, beg, end, text) {
    const corr = text.length - (end - beg);
    const moved = position => position <= beg ? position : position < end ? beg : position + corr;
    const movedStart = (position, last) =>
        position === beg && beg === end && last > position ? position + corr : moved(position);
    map.forEach(record => {
        properties(record).forEach(property => _changeValue(property, beg, end, text));
        _moveRecord(record, moved, movedStart);
    });
}

/// Adds `distance` to every position of one record.
function moveRecord(record, distance) {
    const moved = position => position + distance;
    _moveRecord(record, moved, moved);
}

function _moveRecord(record, moved, movedStart) {
    properties(record).forEach(property => _moveRange(property, moved, movedStart));
    _moveRange(record, moved, movedStart);
    record.pfirstL = moved(record.pfirstL);
}

function _moveRange(range, moved, movedStart) {
    range.pfirst = movedStart(range.pfirst, range.plast);
    range.plast = moved(range.plast);
}

function _changeValue(property, beg, end, text) {
    const start = property.plast - property.value.length;
    if (start <= beg && end <= property.plast && beg < property.plast)
        property.value = property.value.slice(0, beg - start) + text + property.value.slice(end - start);
}

/// The property records of a record.
function properties(record) {
    return Object.keys(record.properties).map(name => record.properties[name]);
}

/// End of the last item that ends at or before `position`; -1 when there is none. Removed items do not count.
function lastEndBefore(map, position) {
    return map.filter(record => record.plast > record.pfirst && record.plast <= position)
              .reduce((last, record) => Math.max(last, record.plast), -1);
}

/// A binding or declaration `text` with `newValue` in place of its `oldValue`, which is the last that it holds.
/// null when it holds no such value or, as signals and required properties, can have none.
function withValue(text, oldValue, newValue) {
    if (oldValue === "")
        return _takesNoValue(text) ? null : text.replace(/;$/, "") + ": " + newValue;
    const at = text.lastIndexOf(oldValue);
    return at < 0 ? null : text.slice(0, at) + newValue + text.slice(at + oldValue.length);
}

function _takesNoValue(text) {
    return /^(?:signal|required|default\s+required)\b/.test(text.replace(_comments, " "));
}

const _comments = /\/\*[^]*?\*\/|\/\/[^\n\r]*/g;

/// Opening less closing braces of `code`, whole tokens of source, but for those in texts and comments.
function braceDepth(code) {
    const texts = /"(?:\\[^]|[^"\\])*"|'(?:\\[^]|[^'\\])*'|\/\*[^]*?\*\/|\/\/[^\n\r]*/g;
    const braces = code.replace(texts, "");
    return braces.split("{").length - braces.split("}").length;
}

/// Offset of `mark` when `code` begins with it, after blanks and comments; -1 when it begins with something else.
function leading(mark, code) {
    const blanks = /^(?:\s|\/\*[^]*?\*\/|\/\/[^\n\r]*)*/.exec(code)[0].length;
    return code[blanks] === mark ? blanks : -1;
}

/// Whether `code` is a comma, with blanks and comments around it.
function isComma(code) {
    return code.replace(_comments, "").trim() === ",";
}

/// Whether `code`, the source behind a member of an object, has another member on the same line.
function beginsWithMember(code) {
    const rest = code.split("\n", 1)[0].replace(/^(\s|\/\*.*?\*\/)*/, "");
    return rest !== "" && !/^(?:[};]|\/\/)/.test(rest);
}
