.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Places in a source text, in UTF-16 code units, when the text becomes another one.

/// Where what stands at `position` of `before` stands in `after`; -1 when it was part of what changed.
function moved(position, before, after) {
    if (position < _commonStart(before, after))
        return position;
    const behind = before.length - position;
    return _endsAlike(before, after, behind) ? after.length - behind : -1;
}

function _commonStart(one, other) {
    let [same, different] = [0, Math.min(one.length, other.length) + 1];
    while (different - same > 1) {
        const middle = (same + different) >> 1;
        if (one.slice(same, middle) === other.slice(same, middle))
            same = middle;
        else
            different = middle;
    }
    return same;
}

function _endsAlike(one, other, length) {
    return length <= other.length && one.slice(one.length - length) === other.slice(other.length - length);
}
