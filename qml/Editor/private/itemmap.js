// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The arithmetic of the item map, a list of records as CAPI.getMap() returns it. Nothing here reads or writes a source.

.pragma library

/// Adds `corr` to every position behind `beg`; a position at `beg` stays.
function moveBehind(map, beg, corr) {
    const moved = position => position > beg ? position + corr : position;
    map.forEach(record => _moveRecord(record, moved, moved));
}

/// Moves the map along when in the source the range [beg, end) of each of `edits`, which are in the order of the text
/// and none within another, becomes its "text": what lies within the range collapses to its start, what follows or
/// begins at an insertion moves, and a value that encloses the range takes the change.
function replace(map, edits) {
    const shifts = _shifts(edits);
    const moved = position => _moved(edits, shifts, position);
    const movedStart = (position, last) =>
        moved(position) + (last > position ? _insertedAt(edits, position) : 0);
    map.forEach(record => {
        const next = _firstFrom(edits, record.pfirst);
        if (_isApart(edits, next, record)) {
            _shiftRecord(record, shifts[next]);
            return;
        }
        const isReplaced = _isWithinOne(edits, record);
        for (const name in record.properties)
            _changeValue(record.properties[name], edits);
        _moveRecord(record, moved, movedStart);
        if (isReplaced)
            record.plast = record.pfirst; // whatever stands there now
    });
}

// How far each edit moves what stands behind the edits before it; the last entry is for what stands behind all.
function _shifts(edits) {
    const shifts = [0];
    edits.forEach((edit, i) => shifts.push(shifts[i] + edit.text.length - (edit.end - edit.beg)));
    return shifts;
}

// Index of the first edit at or behind `position`.
function _firstFrom(edits, position) {
    let [first, last] = [0, edits.length];
    while (first < last) {
        const middle = (first + last) >> 1;
        if (edits[middle].beg < position)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

// Whether no edit concerns the record; `next` is the first one from its begin on.
function _isApart(edits, next, record) {
    const isBefore = next === 0 || edits[next - 1].end <= record.pfirst;
    return isBefore && (next === edits.length || edits[next].beg >= record.plast);
}

function _isWithinOne(edits, record) {
    const edit = edits[_firstFrom(edits, record.pfirst + 1) - 1];
    return edit !== undefined && _isThere(record) && record.plast <= edit.end;
}

function _shiftRecord(record, shift) {
    if (shift === 0)
        return;
    for (const name in record.properties) {
        const property = record.properties[name];
        property.pfirst += shift;
        property.plast += shift;
    }
    record.pfirst += shift;
    record.pfirstL += shift;
    record.plast += shift;
}

function _moved(edits, shifts, position) {
    const next = _firstFrom(edits, position);
    const isInside = next > 0 && position < edits[next - 1].end;
    return isInside ? edits[next - 1].beg + shifts[next - 1] : position + shifts[next];
}

// Number of characters that are inserted at `position`.
function _insertedAt(edits, position) {
    let length = 0;
    for (let i = _firstFrom(edits, position); i < edits.length && edits[i].beg === position; ++i)
        length += edits[i].end === position ? edits[i].text.length : 0;
    return length;
}

function _moveRecord(record, moved, movedStart) {
    for (const name in record.properties)
        _moveRange(record.properties[name], moved, movedStart);
    _moveRange(record, moved, movedStart);
    record.pfirstL = moved(record.pfirstL);
}

function _moveRange(range, moved, movedStart) {
    range.pfirst = movedStart(range.pfirst, range.plast);
    range.plast = moved(range.plast);
}

// Makes the edits within a property's value.
function _changeValue(property, edits) {
    const start = property.plast - property.value.length;
    let [value, copied] = ["", 0];
    for (let i = _firstFrom(edits, start); i < edits.length && edits[i].beg < property.plast; ++i) {
        if (edits[i].end > property.plast)
            break;
        value += property.value.slice(copied, edits[i].beg - start) + edits[i].text;
        copied = edits[i].end - start;
    }
    property.value = value + property.value.slice(copied);
}

/// The records of the items that are there, by the position at which they begin.
function byPlace(map) {
    const found = {};
    map.filter(_isThere).forEach(record => { found[record.pfirst] = record; });
    return found;
}

/// The record of the item that begins at `position`; undefined when none does.
function at(map, position) {
    return map.find(record => record.pfirst === position && _isThere(record));
}

/// The records of the items that are there, parents behind their children.
function ordered(map) {
    return map.filter(_isThere).sort((one, other) => one.plast - other.plast);
}

/// Of the records `ordered` those in [beg, end), which holds whole items.
function within(ordered, beg, end) {
    return ordered.slice(_countUpTo(ordered, beg), _countUpTo(ordered, end));
}

// Number of records that end at or before `position`.
function _countUpTo(ordered, position) {
    let [first, last] = [0, ordered.length];
    while (first < last) {
        const middle = (first + last) >> 1;
        if (ordered[middle].plast <= position)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

/// The innermost item around all of `records`, one of them included.
function around(map, records) {
    const first = records.reduce((least, record) => Math.min(least, record.pfirst), Infinity);
    const last = records.reduce((most, record) => Math.max(most, record.plast), 0);
    return map.filter(record => record.pfirst <= first && record.plast >= last)
              .reduce((inner, record) => record.plast - record.pfirst < inner.plast - inner.pfirst ? record : inner);
}

/// The innermost item around all of `records` and `others` that is none of `records`; the root when it is one.
function holder(map, records, others) {
    const inner = around(map, records.concat(others));
    const outer = map.filter(record => record.pfirst < inner.pfirst && record.plast > inner.plast);
    return records.includes(inner) && outer.length > 0 ? around(outer, [inner]) : inner;
}

function _isThere(record) {
    return record.plast > record.pfirst;
}
