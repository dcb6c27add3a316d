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

/// Moves the map along when the source's range [beg, end) becomes `text`: what lies within the range collapses to
/// its start, what follows or begins at an insertion moves, and a value that encloses the range takes the change.
function replace(map, beg, end, text) {
    const corr = text.length - (end - beg);
    const moved = position => position <= beg ? position : position < end ? beg : position + corr;
    const movedStart = (position, last) =>
        position === beg && beg === end && last > position ? position + corr : moved(position);
    map.forEach(record => {
        if (record.plast <= beg)
            return;
        for (const name in record.properties)
            _changeValue(record.properties[name], beg, end, text);
        _moveRecord(record, moved, movedStart);
    });
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

function _changeValue(property, beg, end, text) {
    const start = property.plast - property.value.length;
    if (start <= beg && end <= property.plast && beg < property.plast)
        property.value = property.value.slice(0, beg - start) + text + property.value.slice(end - start);
}

/// The record of the item that begins at `position`; undefined when none does.
function at(map, position) {
    return map.find(record => record.pfirst === position && _isThere(record));
}

/// The records of the items in [beg, end), parents behind their children.
function within(map, beg, end) {
    return map.filter(record => record.pfirst >= beg && record.plast <= end && _isThere(record))
              .sort((one, other) => one.plast - other.plast);
}

/// The innermost item around all of `records`, one of them included.
function around(map, records) {
    const first = Math.min(...records.map(record => record.pfirst));
    const last = Math.max(...records.map(record => record.plast));
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
